#include "puzzles/search2.h"

#include "activity/Ask.h"
#include "core/Platform.h"

namespace nb {

namespace {

constexpr std::uint32_t kPlayerInk[2] = {rgb(200, 40, 40), rgb(30, 90, 200)};

// Letters as a pupil counts them: characters, not bytes.
std::size_t letterCount(const std::string &text)
{
    std::size_t n = 0;
    for (unsigned char ch : text)
        n += (ch & 0xC0) != 0x80;
    return n;
}

bool blank(const std::string &text)
{
    return text.find_first_not_of(' ') == std::string::npos;
}

} // namespace

Search2::Search2(App &app)
    : SearchFrame(app)
{
    const int x = kPanelLeft, w = kPanelWidth;
    for (int p = 0; p < 2; ++p) {
        const std::string n = std::to_string(p + 1);
        Control &name = textLabel("p" + n, "Player " + n, x + 100, 1450 + p * 950, 2100, 700);
        name.foreColor = kPlayerInk[p];
        valueLabel("p" + n + "score", x + 2300, 1350 + p * 950, 1250, 800, kPlayerInk[p]).caption =
            "0";
    }
    textLabel("timelabel", "Time left", x + 100, 3400, 2100, 700);
    valueLabel("time", x + 2300, 3300, 1250, 800, rgb(30, 60, 140)).caption =
        std::to_string(kSeconds);
    textLabel("turnlabel", "This turn", x + 100, 4350, 2100, 700);
    valueLabel("turntime", x + 2300, 4250, 1250, 800, rgb(30, 60, 140));

    Control &line = textLabel("text1", "Take turns to find the pairs.", x, 5200, w, 1150);
    line.font.points = 20;
    line.align = Align::Center;
    for (int p = 0; p < 2; ++p) {
        Control &box =
            textBox("player" + std::to_string(p + 1), "player " + std::to_string(p + 1) + " name",
                    x + 150, 6400, w - 300, 700);
        box.font.points = 18;
        box.maxLength = 40;
        box.visible = false;
    }

    startAndExit();
    caption("target") = "Press START to enter your names.";
    setFocus("start");
}

void Search2::onClick(const std::string &name, int)
{
    if (name == "start") {
        setEnabled("start", false);
        askName(0);
    } else if (name == "exit") {
        leave();
    }
}

void Search2::askName(int player)
{
    const std::string n = std::to_string(player + 1);
    caption("target") = "Who is playing?";
    caption("text1") = "Player " + n + ", please enter your name.";
    Control &box = ctl("player" + n);
    box.caption.clear();
    box.visible = true;
    setFocus(box.name);
}

void Search2::onKeyPress(const std::string &name, int, int &key)
{
    const int player = name == "player1" ? 0 : name == "player2" ? 1 : -1;
    if (player < 0 || key != 13)
        return;
    key = 0;
    nameEntered(player);
}

void Search2::nameEntered(int player)
{
    Control &box = ctl(player == 0 ? "player1" : "player2");
    if (blank(box.caption))
        return;
    if (letterCount(box.caption) >= kNameLimit) {
        box.caption.clear();
        tell(platform(), progress(), "You must use less than 15 letters.");
        return;
    }
    names_[std::size_t(player)] = box.caption;
    caption(player == 0 ? "p1" : "p2") = box.caption;
    box.visible = false;
    if (player == 0)
        askName(1);
    else
        beginGame();
}

void Search2::beginGame()
{
    scores_ = {};
    showScores();
    turn_ = 0;
    beginRound(kLevel);
    turnLeft_ = kTurnSeconds;
    showTurn();
}

void Search2::showScores()
{
    caption("p1score") = std::to_string(scores_[0]);
    caption("p2score") = std::to_string(scores_[1]);
}

void Search2::showTurn()
{
    Control &line = ctl("text1");
    line.caption = names_[std::size_t(turn_)] + ", it is your turn.";
    line.foreColor = kPlayerInk[turn_];
    ctl("turntime").caption = std::to_string(turnLeft_);
    ctl("turntime").foreColor = kPlayerInk[turn_];
}

void Search2::passTurn()
{
    dropChoice(); // a number chosen by one pupil is not left for the other
    turn_ = 1 - turn_;
    turnLeft_ = kTurnSeconds;
    showTurn();
}

void Search2::pairFound()
{
    ++scores_[std::size_t(turn_)];
    showScores();
    passTurn();
}

void Search2::pairWrong()
{
    passTurn();
}

void Search2::secondPassed()
{
    if (--turnLeft_ <= 0)
        passTurn();
    else
        ctl("turntime").caption = std::to_string(turnLeft_);
}

void Search2::timeUp()
{
    ctl("turntime").caption.clear();
    const auto found = [this](int p) {
        return names_[std::size_t(p)] + " found " + std::to_string(scores_[std::size_t(p)]);
    };
    std::string result = "Time is up. " + found(0) + " and " + found(1) + ". ";
    if (scores_[0] == scores_[1])
        result += "It is a draw.";
    else
        result += names_[scores_[0] > scores_[1] ? 0 : 1] + " has won!";
    if (ask(result + " Do you want another game?") != kYes)
        return leave();
    beginGame();
}

} // namespace nb
