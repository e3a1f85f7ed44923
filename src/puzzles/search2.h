#pragma once
// The search puzzle for two pupils sharing one board: they take turns, each find scores for the
// pupil who made it, and the one with more finds when the 120-second clock stops wins. A turn
// passes after a find, after a wrong pair, or when its own clock runs out. Nothing is saved.
#include "puzzles/SearchFrame.h"

#include <array>

namespace nb {

class Search2 : public SearchFrame
{
public:
    static constexpr int kLevel = 2;        // the board's number ranges
    static constexpr int kTurnSeconds = 20; // the longest a turn lasts
    static constexpr int kNameLimit = 15;   // names must be shorter than this

    explicit Search2(App &app);

    void onClick(const std::string &name, int index) override;
    void onKeyPress(const std::string &name, int index, int &key) override;

    int turn() const { return turn_; } // 0 player 1, 1 player 2
    int score(int player) const { return scores_[std::size_t(player)]; }

protected:
    const char *homeMenu() const override { return "pairmenu"; }
    void pairFound() override;
    void pairWrong() override;
    void timeUp() override;
    void secondPassed() override;

private:
    void askName(int player);
    void nameEntered(int player);
    void beginGame();
    void passTurn();
    void showTurn();
    void showScores();

    std::array<std::string, 2> names_;
    std::array<int, 2> scores_{};
    int turn_ = 0;
    int turnLeft_ = kTurnSeconds;
};

} // namespace nb
