#pragma once
// Four in a row against the computer. The pupil (red) claims a cell by adding a left and a right
// number and clicking a cell that holds the sum, within 60 seconds a turn; a wrong cell, PASS or
// the end of the clock gives the turn to the computer (green), which thinks for a moment and then
// moves. Four in a line wins; a full board is a draw. A win lets the pupil move to the next level,
// and the level reached is kept in ExtraBestB.
#include "games/FourRowFrame.h"

namespace nb {

class FourInARow : public FourRowFrame
{
public:
    explicit FourInARow(App &app);

    void onOpened() override;
    void onTimer(const std::string &name) override;

    static constexpr int kTurnSeconds = 60;
    static constexpr int kThinkingMs = 1200;
    static constexpr int kHighestStoredLevel = 9;

    int level() const { return level_; }

protected:
    bool picking() const override { return state_ == State::PupilTurn; }
    std::string choosePrompt() const override;
    void rightCell(fourrow::Cell cell) override;
    void wrongCell() override;
    void onCommand(const std::string &name) override;

private:
    enum class State { Waiting, PupilTurn, Thinking, Over };

    void setState(State state);
    void newGame();
    void pupilTurn();
    void computerTurn();
    void computerMove();
    void tickClock();
    // The result stays on the message line behind the question.
    void gameOver(const std::string &result, const std::string &question);
    void levelUp();
    void showLevel();
    void leave();

    State state_ = State::Waiting;
    int level_ = 1;
    int secondsLeft_ = kTurnSeconds;
};

} // namespace nb
