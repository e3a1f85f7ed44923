#pragma once
// The frame both search puzzles share: the 8 x 8 board of numbers drawn on the canvas `board`
// (a press on a cell chooses it), the target line, the rule line, the 120-second clock counting
// down in `time`, and the pairing of two clicked cells. A right pair is marked found and a new
// target follows; a wrong pair is cleared. The screens over it decide what a find and the end of
// the time mean.
#include "core/Screen.h"
#include "puzzles/SearchBoard.h"

#include <string>

namespace nb {

class SearchFrame : public Screen
{
public:
    static constexpr int kSeconds = 120;
    static constexpr int kWidth = 12000, kHeight = 9000;
    static constexpr int kPanelLeft = 8050, kPanelWidth = 3650; // the screen's own controls

    // The topic menu a caller (SearchCaller) returns to; anything other than 1 to 4 is adding.
    static const char *menuFor(int caller);
    // "Find two numbers next to each other that make 24"
    static std::string targetText(int target);

    void onMouseDown(const MousePress &press) override;
    // The cell (0 to 63) under a point of the board canvas in twips, or -1 off the cells.
    static int cellAt(double x, double y);
    // The centre of a cell on the board canvas, in twips.
    static void cellCentre(int cell, double &x, double &y);
    void onTimer(const std::string &name) override;

    const SearchBoard &board() const { return board_; }
    int target() const { return target_; }
    int selected() const { return selected_; } // the first cell of a pair, or -1
    int secondsLeft() const { return secondsLeft_; }
    bool running() const { return running_; }

protected:
    explicit SearchFrame(App &app);

    int caller() const { return caller_; }
    // A new board for the level, a target, the full time on the clock and the clock running.
    void beginRound(int level);
    // Takes back a first choice that has no partner yet.
    void dropChoice();
    // Stops the clock; the board stays as it is.
    void stopRound();
    void leave(); // back to the home menu
    // The menu the screen returns to: the caller's topic menu.
    virtual const char *homeMenu() const { return menuFor(caller_); }
    int ask(const std::string &text);
    // A framed white label for a number the pupil watches.
    Control &valueLabel(std::string name, int l, int t, int w, int h, std::uint32_t ink);
    // The START and EXIT buttons at the foot of the panel.
    void startAndExit();
    Control &textLabel(std::string name, std::string text, int l, int t, int w, int h);

    // A right pair has been marked and a new target is on show.
    virtual void pairFound() = 0;
    // A neighbouring pair that does not make the target has been cleared.
    virtual void pairWrong() {}
    // The clock reached 0 (it has been stopped).
    virtual void timeUp() = 0;
    // Each second of the clock, after it has been shown.
    virtual void secondPassed() {}

private:
    void cellClicked(int cell);
    void newTarget();
    void render();
    void showClock();

    int caller_ = 1;
    int level_ = 1;
    SearchBoard board_;
    int target_ = 0;
    int selected_ = -1;
    int secondsLeft_ = kSeconds;
    bool running_ = false;
};

} // namespace nb
