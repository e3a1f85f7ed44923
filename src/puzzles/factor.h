#pragma once
// The factor race: the pupil types every factor of a number, one per box, and each right factor
// drives the pupil's car down a road drawn in perspective; the computer's car drives on a timer
// that runs faster at higher levels, and every wrong factor gives it an extra move. The first car
// to reach the finishing line wins the level; the last level won is kept in FactorBest.
#include "core/Screen.h"

#include <string>

namespace nb {

class Factor : public Screen
{
public:
    explicit Factor(App &app);

    void onOpened() override;
    void onClick(const std::string &name, int index) override;
    void onKeyPress(const std::string &name, int index, int &key) override;
    void onTimer(const std::string &name) override;

    // The finishing line: a car whose top plus width reaches it has finished.
    static constexpr double kFinishY = 7085;
    static constexpr int kBoxes = 8; // 24 and 30 have eight factors, the most of 2..31

    // A car's place in twips. Left and width move in fractions of a twip, so they are kept
    // exactly here and rounded only when shown.
    struct Place
    {
        double left, top, width;
        bool finished() const { return top + width >= kFinishY; }
    };
    static constexpr Place kComputerStart{2955, 945, 495};
    static constexpr Place kPupilStart{3765, 945, 495};

    // Milliseconds between the computer's moves at a level.
    static int moveInterval(double level);

private:
    void buildControls();
    void drawScenery();
    void resetRace();
    void clearBoxes();
    void newNumber();
    void checkEntry();
    bool computerMove(); // false when the move ended the race
    void won();
    void lost();
    void leave();
    void showCar(const char *name, const Place &p);
    void openBox(int k);
    int ask(const std::string &text);
    double levelValue() const;
    // The level of the race, kept as a number and shown in the `level` label.
    void setLevel(double level);

    double level_ = 1;
    int number_ = 0;
    int factorCount_ = 0;
    int currentBox_ = 1;
    int wrongCount_ = 0;
    int pupilStep_ = 1;
    int computerStep_ = 1;
    Place pupil_ = kPupilStart;
    Place computer_ = kComputerStart;
};

} // namespace nb
