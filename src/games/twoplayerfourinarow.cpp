#include "games/twoplayerfourinarow.h"

#include "core/Platform.h"
#include "core/PupilProgress.h"

namespace nb {

using namespace fourrow;

namespace {

constexpr std::uint32_t kFadedRed = rgb(255, 205, 205);
constexpr std::uint32_t kFadedGreen = rgb(205, 250, 205);

// Letters as the player sees them: one for each UTF-8 character.
std::size_t letters(const std::string &text)
{
    std::size_t n = 0;
    for (const char ch : text)
        n += (static_cast<unsigned char>(ch) & 0xC0) != 0x80 ? 1 : 0;
    return n;
}

// The name without the blanks a player may type before or after it: they would show in every
// message that names the player.
std::string trimmed(const std::string &text)
{
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

} // namespace

TwoPlayerFourInARow::TwoPlayerFourInARow(App &app)
    : FourRowFrame(app)
{
    const int y = kStripTop, h = kStripHeight;
    Control &start = strip(button("Command1", "Start", kNumberMargin, y, kNumberWidth, h), 20);
    start.backColor = rgb(120, 220, 120);
    // Each player's name box and, once the name is in, the name in the player's colour.
    const int nameWidth = 2200, gap = 150;
    for (int p = 1; p <= 2; ++p) {
        const int left = kBoardLeft + (p - 1) * (nameWidth + gap);
        const std::string n = std::to_string(p);
        Control &box =
            textBox("player" + n, "Player " + n + " name", left, y + 100, nameWidth, h - 200);
        box.font.points = 16;
        box.visible = false;
        Control &shown = strip(label("p" + n, "", left, y + 100, nameWidth, h - 200), 18);
        shown.border = true;
        shown.backColor = p == 1 ? kRedCell : kGreenCell;
        shown.foreColor = p == 1 ? colors::white : colors::black;
        shown.visible = false;
    }
    const int passLeft = kBoardLeft + 2 * (nameWidth + gap);
    Control &pass = strip(button("pass", "PASS", passLeft, y, 1400, h), 20);
    pass.backColor = rgb(255, 230, 120);
    pass.enabled = false;
    // The second press of a double-click would hand the turn straight back.
    pass.doubleClicks = false;
    const int exitLeft = kWidth - kNumberMargin - kNumberWidth;
    strip(button("exit", "Exit", exitLeft, y, kNumberWidth, h), 20).backColor = rgb(250, 150, 150);
    setFocus("Command1");
}

void TwoPlayerFourInARow::onOpened()
{
    say("Press Start to begin.");
}

void TwoPlayerFourInARow::setState(State state)
{
    state_ = state;
    setEnabled("pass", state == State::Playing);
}

std::string TwoPlayerFourInARow::choosePrompt() const
{
    return name(turn_) + " choose your two numbers.";
}

void TwoPlayerFourInARow::onCommand(const std::string &name)
{
    if (name == "Command1" && state_ == State::Waiting) {
        setEnabled("Command1", false);
        askName(1);
    } else if (name == "pass" && state_ == State::Playing) {
        handOverTurn();
    } else if (name == "exit") {
        setState(State::Over);
        handOver("pairmenu");
    }
}

void TwoPlayerFourInARow::askName(int player)
{
    setState(player == 1 ? State::Naming1 : State::Naming2);
    const std::string n = std::to_string(player);
    say("Player " + n + ", please enter your name.");
    Control &box = ctl("player" + n);
    box.visible = true;
    box.enabled = true;
    box.caption.clear();
    setFocus("player" + n);
}

void TwoPlayerFourInARow::onKeyPress(const std::string &name, int, int &key)
{
    const int player = name == "player1" ? 1 : name == "player2" ? 2 : 0;
    if (key != 13 || player == 0)
        return;
    key = 0;
    if ((player == 1 && state_ == State::Naming1) || (player == 2 && state_ == State::Naming2))
        nameEntered(player);
}

void TwoPlayerFourInARow::nameEntered(int player)
{
    const std::string n = std::to_string(player);
    Control &box = ctl("player" + n);
    const std::string typed = trimmed(box.caption);
    if (typed.empty())
        return; // nothing typed yet: the question stays
    if (letters(typed) >= kNameLimit) {
        tellOk("You must use less than 15 letters.");
        box.caption.clear();
        return;
    }
    names_[player - 1] = typed;
    box.visible = false;
    box.enabled = false;
    caption("p" + n) = typed;
    setVisible("p" + n, true);
    if (player == 1) {
        askName(2);
        return;
    }
    newGame();
}

void TwoPlayerFourInARow::newGame()
{
    const int mode = progress().FourRowOptionA.whole();
    const int level = progress().FourRowOptionB.whole();
    const auto numbers = twoPlayerNumbers([this] { return draw(); }, mode, level);
    // Any other mode leaves the numbers undrawn: every one of them is 0.
    newBoard(numbers ? *numbers : std::array<Numbers, 2>{});
    setState(State::Playing);
    turn_ = nextStarter_;
    nextStarter_ = 3 - nextStarter_;
    showTurn();
}

void TwoPlayerFourInARow::showTurn()
{
    say(name(turn_) + " choose your two numbers.");
    // The name of the player to move stands in full colour, the other's faded.
    Control &one = ctl("p1"), &two = ctl("p2");
    one.backColor = turn_ == 1 ? kRedCell : kFadedRed;
    one.foreColor = turn_ == 1 ? colors::white : colors::black;
    two.backColor = turn_ == 2 ? kGreenCell : kFadedGreen;
    parkFocus();
}

void TwoPlayerFourInARow::handOverTurn()
{
    clearPicks();
    turn_ = other();
    showTurn();
}

void TwoPlayerFourInARow::rightCell(Cell cell)
{
    const bool four = claimCell(cell, turn_ == 1 ? Owner::Red : Owner::Green);
    if (!four && !board_.full()) {
        handOverTurn();
        return;
    }
    setState(State::Over);
    say(four ? name(turn_) + " has won!" : "The game is drawn.");
    const std::string question = four ? name(turn_) + " has won! Do you want another game?"
                                      : "The game is drawn. Do you want another go?";
    if (askYesNo(question) == kYes)
        newGame();
    else
        handOver("pairmenu");
}

void TwoPlayerFourInARow::wrongCell()
{
    tellOk("That is not correct! Your turn is passed to " + name(other()) + ".");
    handOverTurn();
}

} // namespace nb
