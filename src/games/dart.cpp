#include "games/dart.h"

#include "activity/Ask.h"
#include "core/Input.h"
#include "core/NumberText.h"
#include "core/Platform.h"

namespace nb {

using namespace darts;

namespace {

std::string trimmed(const std::string &s)
{
    const auto first = s.find_first_not_of(" \t");
    if (first == std::string::npos)
        return {};
    return s.substr(first, s.find_last_not_of(" \t") - first + 1);
}

} // namespace

Dart::Dart(App &app, BoardKind kind)
    : DartsFrame(app, kind, "pairmenu")
{
    sides_[0].nameLabel = "player1";
    sides_[1].nameLabel = "player2";
    sides_[1].answerBox = "newtargetcom";
    const auto block = [this](int player, int top) {
        const std::string n = std::to_string(player);
        panelLabel("player" + n, "Player " + n, top, 500, 18);
        styled(label("wonlabel", "Games won", 250, top + 560, 1550, 420, player - 1), 12, true,
               Align::Right, kChalk);
        Control &legs = styled(label("player" + n + "score", "0", 1900, top + 520, 750, 500), 18,
                               true, Align::Center, colors::black);
        legs.backColor = rgb(255, 222, 89);
        legs.border = true;
        scoreBoard(player == 1 ? "target" : "targetcom", top + 1100);
        answerBox(player == 1 ? "newtarget" : "newtargetcom", "player " + n + " score left",
                  top + 2130);
    };
    block(1, 250);
    block(2, 3350);
    styled(label("legsinfo", "", 9150, 250, 3200, 1100), 14, true, Align::Center, kYellowText);
}

std::string Dart::throwerCall() const
{
    return names_[std::size_t(thrower_)] + ",";
}

std::string Dart::pauseHint() const
{
    return "Wait a moment: " + names_[std::size_t(1 - thrower_)] + " throws next.";
}

// Asked again while the name is too long; an empty answer (Cancel) gives up.
std::optional<std::string> Dart::askName(int player)
{
    const std::string prompt = "Player " + std::to_string(player) +
                               " please enter your name (maximum " +
                               std::to_string(kMaxNameLetters) + " letters).";
    for (;;) {
        std::string name =
            trimmed(platform().inputBox(prompt, {}, names_[std::size_t(player - 1)]));
        if (name.empty())
            return std::nullopt;
        if (utf8Length(name) <= kMaxNameLetters) // letters, not bytes: "Zoë" has three
            return name;
    }
}

// A whole number from 1 to 9; anything else is explained and asked again. Empty gives up.
std::optional<int> Dart::askLegs()
{
    for (;;) {
        const std::string text = trimmed(
            platform().inputBox("What number of games will be needed to win ?.", {},
                                legsToWin_ > 0 ? std::to_string(legsToWin_) : std::string()));
        if (text.empty())
            return std::nullopt;
        const double n = readNumber(text);
        if (isCleanNumberText(text) && n >= 1 && n <= kMostLegs && n == double(int(n)))
            return int(n);
        tell(kLegsRule);
    }
}

// The questions come first: a Cancel on any of them leaves a game in play as it was.
void Dart::start()
{
    std::optional<std::string> first, second;
    std::optional<int> legs;
    if (!(first = askName(1)) || !(second = askName(2)) || !(legs = askLegs())) {
        if (phase_ == Phase::Waiting)
            setStatus("Press START to begin: each player types a name, then the number of "
                      "games needed to win.");
        return;
    }
    resetBoard();
    names_ = {*first, *second};
    legsToWin_ = *legs;
    caption("player1") = names_[0];
    caption("player2") = names_[1];
    legs_ = {0, 0};
    caption("player1score") = "0";
    caption("player2score") = "0";
    caption("legsinfo") = "First to " + std::to_string(legsToWin_) +
                          (legsToWin_ == 1 ? " game" : " games") + " wins the match.";
    legStarter_ = 0;
    beginLeg();
}

void Dart::beginLeg()
{
    setRemaining(0, kStartScore);
    setRemaining(1, kStartScore);
    beginTurn(legStarter_);
}

void Dart::turnOver()
{
    setStatus("End of " + names_[std::size_t(thrower_)] + "'s turn.");
    setTimer("Timer1", true);
}

// The pause after a turn is over: the next player's turn begins.
void Dart::tick()
{
    setTimer("Timer1", false);
    beginTurn(1 - thrower_);
}

void Dart::finished()
{
    const std::size_t w = std::size_t(thrower_);
    tell(names_[w] + " is the winner of that leg!!");
    ++legs_[w];
    caption(w == 0 ? "player1score" : "player2score") = std::to_string(legs_[w]);
    if (legs_[w] < legsToWin_) {
        legStarter_ = 1 - legStarter_; // the players take turns to throw first
        beginLeg();
        return;
    }
    tell(names_[w] + " has won by " + std::to_string(legs_[w]) + " games to " +
         std::to_string(legs_[1 - w]));
    if (ask(platform(), progress(), "Do you want another game ?") == kYes)
        start();
    else
        leave();
}

} // namespace nb
