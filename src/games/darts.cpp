#include "games/darts.h"

#include "activity/Ask.h"
#include "core/Platform.h"
#include "core/PupilProgress.h"
#include "games/DartsCheckout.h"

#include <algorithm>
#include <cmath>

namespace nb {

using namespace darts;

namespace {
constexpr const char *kRoundNames[Darts::kRounds] = {"First",   "Second",  "Third", "Fourth",
                                                     "Q-Final", "S-Final", "Final"};
} // namespace

const char *Darts::roundName(int round)
{
    return kRoundNames[std::clamp(round, 1, kRounds) - 1];
}

Darts::Darts(App &app)
    : DartsFrame(app, BoardKind::Standard, "submenu")
{
    panelLabel("you", "YOU", 300, 450, 18);
    scoreBoard("target", 800);
    answerBox("newtarget", "your score left", 1900);
    panelLabel("com", "COMPUTER", 3300, 450, 18);
    scoreBoard("targetcom", 3800);

    styled(label("Text5", "ROUND", 9150, 250, 3200, 450), 16, true, Align::Center, kChalk);
    styled(label("text6", "", 9150, 700, 3200, 650), 24, true, Align::Center, kYellowText);
}

void Darts::onOpened()
{
    const Value &best = progress().DartsBest;
    // A new pupil's record holds 0 here: no round has been won yet.
    if (best.isEmpty() || best.equalsNumber(0))
        return;
    tell("Your best performance was to get past the " + best.str() + " round");
}

void Darts::start()
{
    beginRound(1);
}

void Darts::beginRound(int round)
{
    resetBoard();
    round_ = round;
    error_ = errorSize(round);
    caption("text6") = roundName(round);
    setRemaining(0, kStartScore);
    setRemaining(1, kStartScore);
    beginTurn(0);
}

std::string Darts::throwerCall() const
{
    return "Your turn:";
}

std::string Darts::pauseHint() const
{
    return "Wait: the computer is throwing its darts.";
}

void Darts::turnOver()
{
    setEnabled("newtarget", false);
    computerDarts_ = 0;
    computerBust_ = false;
    setStatus("The computer's turn.");
    setTimer("Timer1", true);
}

// One tick, one computer dart; the tick after its last dart (or a bust) hands the board back.
void Darts::tick()
{
    if (computerDarts_ == kDartsPerTurn || computerBust_) {
        setTimer("Timer1", false);
        beginTurn(0);
        return;
    }
    computerDart();
}

void Darts::computerDart()
{
    if (computerDarts_ == 0) {
        setThrower(1);
        dart_ = 0;
        turnStart_ = sides_[1].remaining;
        hideMarks();
    }
    ++computerDarts_;
    const Aim aim = computerAim(sides_[1].remaining);
    const double e = std::trunc(draw() * error_);
    const int sx = signFrom(draw());
    const int sy = signFrom(draw());
    const Hit hit = landDart(aim.point.x + e * sx, aim.point.y + e * sy);
    const int left = sides_[1].remaining;
    const int d = hit.score();
    // The computer's sums are always right; it finishes only on a double.
    if (d == left && multiplierOf(hit.bed) == 2) {
        setRemaining(1, 0);
        anotherGame(std::string("The computer has won in the ") + roundName(round_) +
                    " round!! Do you want another game ?");
        return;
    }
    // Leaving 1, going below 0, or reaching 0 off a double (the bull too) is a bust for it.
    if (d >= left - 1) {
        computerBust_ = true;
        tell("The computer has bust !!. The darts will not count.");
        setRemaining(1, turnStart_);
        return;
    }
    setRemaining(1, left - d);
    setStatus("The computer's dart " + std::to_string(computerDarts_) + " scored " +
              std::to_string(d) + ".");
}

void Darts::finished()
{
    if (round_ < kRounds) {
        tell("Well done. You have won a place in the next round!!");
        // The round reached is kept as it stands, even below one reached before.
        progress().DartsBest = Value::text(roundName(round_ + 1));
        beginRound(round_ + 1);
        return;
    }
    progress().DartsBest = Value::text("Champion.");
    anotherGame("That's fantastic. You are the champion!!. Do you want another game ?");
}

// Asked with the last dart still on the board; either answer clears it.
void Darts::anotherGame(const std::string &question)
{
    setTimer("Timer1", false);
    if (ask(platform(), progress(), question) == kYes)
        start();
    else
        leave();
}

} // namespace nb
