#pragma once
// Four in a row for two pupils at one machine. Both type their names, then take turns: choose a
// left and a right number, click a cell holding their sum. Player 1 plays red and player 2 green;
// a wrong cell or PASS hands the turn over. The number mode and level come from the pair menu
// (FourRowOptionA, FourRowOptionB). There are no timers. The players start new games in turn.
#include "games/FourRowFrame.h"

namespace nb {

class TwoPlayerFourInARow : public FourRowFrame
{
public:
    explicit TwoPlayerFourInARow(App &app);

    void onOpened() override;
    void onKeyPress(const std::string &name, int index, int &key) override;

    static constexpr int kNameLimit = 15; // a name must be shorter than this many letters

protected:
    bool picking() const override { return state_ == State::Playing; }
    std::string choosePrompt() const override;
    void rightCell(fourrow::Cell cell) override;
    void wrongCell() override;
    void onCommand(const std::string &name) override;

private:
    enum class State { Waiting, Naming1, Naming2, Playing, Over };

    void setState(State state);
    void askName(int player);
    void nameEntered(int player);
    void newGame();
    void handOverTurn();
    void showTurn();
    const std::string &name(int player) const { return names_[std::size_t(player - 1)]; }
    int other() const { return 3 - turn_; }

    State state_ = State::Waiting;
    std::string names_[2];
    int turn_ = 1;        // the player to move: 1 red, 2 green
    int nextStarter_ = 1; // who starts the next game
};

} // namespace nb
