#pragma once
// The darts tournament: the pupil plays the computer from 301 each, round after round, from the
// "First" to the "Final". The computer aims by its checkout table and misses by less in every
// round; its darts land one at a time on Timer1 so the pupil sees each one. The round reached is
// kept in DartsBest.
#include "games/DartsFrame.h"

namespace nb {

class Darts : public DartsFrame
{
public:
    explicit Darts(App &app);

    void onOpened() override;

    static constexpr int kRounds = 7;
    static const char *roundName(int round); // 1 to 7
    // The computer's error size in twips for a round: 500 / round.
    static double errorSize(int round) { return 500.0 / round; }

private:
    void start() override;
    void turnOver() override;
    void finished() override;
    void tick() override;
    std::string pauseHint() const override;
    std::string throwerCall() const override;

    void beginRound(int round);
    void computerDart();
    void anotherGame(const std::string &question);

    int round_ = 1;
    double error_ = 500;
    int computerDarts_ = 0;
    bool computerBust_ = false;
};

} // namespace nb
