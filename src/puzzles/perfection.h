#pragma once
// The perfection puzzle: a times square with some squares blank. The pupil fills the blanks
// (Enter moves on to the next one) and asks for the square to be marked; the screen shows the
// percentage right and colours every square right or wrong. Only 100% passes the level; the
// highest level passed is kept in PerfectionBest.
#include "core/Screen.h"
#include "puzzles/PerfectionSquare.h"

namespace nb {

class Perfection : public Screen
{
public:
    explicit Perfection(App &app);

    void onOpened() override;
    void onClick(const std::string &name, int index) override;
    void onKeyPress(const std::string &name, int index, int &key) override;

    // The control index of a square of the 12 x 12 layout (rows and columns from 0).
    static int indexOf(int row, int column)
    {
        return row * PerfectionSquare::kMaxSide + column + 1;
    }

    int level() const { return level_; }
    const PerfectionSquare &square() const { return square_; }
    bool filling() const { return filling_; }

private:
    void buildControls();
    void layOut(); // places the square's controls for its side
    void begin();
    void markIt();
    // 100%: the level is passed and the next one offered.
    void passed();
    void leave();
    void focusBlank(int from); // the first blank from that place in reading order, wrapping
    int ask(const std::string &text);

    PerfectionSquare square_;
    int level_ = 1;
    bool filling_ = false;
};

} // namespace nb
