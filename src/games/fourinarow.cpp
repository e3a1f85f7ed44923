#include "games/fourinarow.h"

#include "core/Platform.h"
#include "core/PupilProgress.h"
#include "games/FourRowComputer.h"

#include <algorithm>

namespace nb {

using namespace fourrow;

namespace {
const char *const kChoose = "Choose a number from the left, followed by a number from the right.";
}

FourInARow::FourInARow(App &app)
    : FourRowFrame(app)
{
    const int y = kStripTop, h = kStripHeight;
    Control &start = strip(button("Command1", "Start", kNumberMargin, y, kNumberWidth, h), 20);
    start.backColor = rgb(120, 220, 120);
    Control &pass = strip(button("pass", "PASS", kBoardLeft, y, 1500, h), 20);
    pass.backColor = rgb(255, 230, 120);
    pass.enabled = false;
    strip(label("timelabel", "Time", 4500, y + 150, 1000, 600), 18).align = Align::Right;
    Control &time = strip(label("time", "", 5600, y, 1000, h), 26);
    time.border = true;
    time.backColor = colors::white;
    strip(label("levellabel", "Level", 6800, y + 150, 1100, 600), 18).align = Align::Right;
    Control &level = strip(label("level", "", 8000, y, 900, h), 26);
    level.border = true;
    level.backColor = colors::white;
    level.foreColor = rgb(200, 40, 40);
    const int exitLeft = kWidth - kNumberMargin - kNumberWidth;
    strip(button("exit", "Exit", exitLeft, y, kNumberWidth, h), 20).backColor = rgb(250, 150, 150);

    timer("Timer1", kThinkingMs);
    timer("Timer2", 1000);
    setFocus("Command1");
}

void FourInARow::onOpened()
{
    const int stored = progress().ExtraBestB.whole();
    level_ = 1;
    if (stored > 1 && askYesNo("You have reached level " + std::to_string(stored) +
                               " before, would you like to go straight to this level now?") == kYes)
        level_ = stored;
    showLevel();
    say("Press Start to begin.");
}

void FourInARow::setState(State state)
{
    state_ = state;
    // PASS only while the pupil may move, so a greyed button shows whose turn it is.
    setEnabled("pass", state == State::PupilTurn);
}

std::string FourInARow::choosePrompt() const
{
    return kChoose;
}

void FourInARow::showLevel()
{
    caption("level") = std::to_string(level_);
}

void FourInARow::onCommand(const std::string &name)
{
    if (name == "Command1" && state_ == State::Waiting) {
        setEnabled("Command1", false);
        newGame();
        tellOk("You are allowed 60 seconds for each turn.");
        pupilTurn();
    } else if (name == "pass" && state_ == State::PupilTurn) {
        computerTurn();
    } else if (name == "exit") {
        leave();
    }
}

void FourInARow::newGame()
{
    newBoard(computerGameNumbers([this] { return draw(); }, level_));
}

void FourInARow::pupilTurn()
{
    setState(State::PupilTurn);
    secondsLeft_ = kTurnSeconds;
    caption("time") = std::to_string(secondsLeft_);
    setTimer("Timer2", true);
    say(kChoose);
    parkFocus();
}

void FourInARow::computerTurn()
{
    setState(State::Thinking);
    clearPicks();
    setTimer("Timer2", false);
    setTimer("Timer1", true);
    say("Wait a moment, I am thinking!!!");
    parkFocus();
}

void FourInARow::onTimer(const std::string &name)
{
    if (name == "Timer1") {
        setTimer("Timer1", false);
        if (state_ == State::Thinking)
            computerMove();
    } else if (name == "Timer2") {
        if (state_ == State::PupilTurn)
            tickClock();
        else
            setTimer("Timer2", false);
    }
}

void FourInARow::tickClock()
{
    secondsLeft_ = std::max(0, secondsLeft_ - 1);
    caption("time") = std::to_string(secondsLeft_);
    if (secondsLeft_ > 0)
        return;
    setTimer("Timer2", false);
    tellOk("You ran out of time. Your turn passes to the computer.");
    computerTurn();
}

void FourInARow::computerMove()
{
    const Move move = chooseMove(board_, [this] { return draw(); });
    const bool four = claimCell(move.cell, Owner::Green);
    platform().beep();
    if (four)
        gameOver("The computer has won.", "The computer has won. Do you want another go?");
    else if (board_.full())
        gameOver("The game is drawn.", "The game is drawn. Do you want another go?");
    else
        pupilTurn();
}

void FourInARow::rightCell(Cell cell)
{
    setTimer("Timer2", false);
    if (claimCell(cell, Owner::Red)) {
        setState(State::Over);
        say("Well done, you have won!");
        if (askYesNo("Well done, you have won! Do you want to try the next level?") != kYes) {
            leave();
            return;
        }
        levelUp();
        newGame();
        pupilTurn();
    } else if (board_.full()) {
        gameOver("The game is drawn.", "The game is drawn. Do you want another go?");
    } else {
        computerTurn();
    }
}

void FourInARow::wrongCell()
{
    setTimer("Timer2", false);
    tellOk("That is not correct! Your turn is passed to the computer.");
    computerTurn();
}

void FourInARow::gameOver(const std::string &result, const std::string &question)
{
    setState(State::Over);
    say(result);
    setTimer("Timer1", false);
    setTimer("Timer2", false);
    if (askYesNo(question) != kYes) {
        leave();
        return;
    }
    newGame();
    pupilTurn();
}

void FourInARow::levelUp()
{
    ++level_;
    showLevel();
    // The level kept is the highest reached, and never above 9.
    const int reached = std::min(level_, kHighestStoredLevel);
    if (reached > progress().ExtraBestB.whole())
        progress().ExtraBestB = Value::int16(std::int16_t(reached));
}

void FourInARow::leave()
{
    setState(State::Over);
    setTimer("Timer1", false);
    setTimer("Timer2", false);
    handOver("addmenu");
}

} // namespace nb
