#pragma once
// A darts match for two pupils at one machine, on any of the three boards: `dart` (trebles),
// `doubledarts` (doubles only) and `quaddarts` (quads and trebles). Each leg starts at 301 for
// both; the players take turns of three darts, each typing the score left after every dart; the
// first to win the agreed number of legs wins the match.
#include "games/DartsFrame.h"

#include <array>
#include <optional>
#include <string>

namespace nb {

class Dart : public DartsFrame
{
public:
    Dart(App &app, darts::BoardKind kind);

    static constexpr int kMaxNameLetters = 8;
    static constexpr int kMostLegs = 9;
    static constexpr const char *kLegsRule = "Please type a whole number of games from 1 to 9.";

private:
    void start() override;
    void turnOver() override;
    void finished() override;
    void tick() override;
    std::string pauseHint() const override;
    std::string throwerCall() const override;

    std::optional<std::string> askName(int player);
    std::optional<int> askLegs();
    void beginLeg();

    std::array<std::string, 2> names_;
    std::array<int, 2> legs_{};
    int legsToWin_ = 0;
    int legStarter_ = 0;
};

} // namespace nb
