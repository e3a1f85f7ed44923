#include "games/twoplayersnap.h"

#include "activity/Ask.h"
#include "core/NumberText.h"
#include "core/Platform.h"
#include "core/PupilProgress.h"
#include "games/SnapCardFace.h"

#include <algorithm>

namespace nb {

namespace {

constexpr int kWidth = 12000;
constexpr int kHeight = 9000;

// The two players' panels stand at the sides, the cards between them.
constexpr int kPanelWidth = 3000;
constexpr std::array<int, 2> kPanelLeft = {150, kWidth - 150 - kPanelWidth};
constexpr int kPanelTop = 1450, kPanelHeight = 6000;

// The cards: 5:7 like a real playing card. The one just dealt lies a little lower and over the
// edge of the one beneath, as on a pile, without hiding its calculation.
constexpr int kCardWidth = 2700, kCardHeight = 3780;
constexpr std::array<int, 2> kCardLeft = {3300, 5850};
constexpr std::array<int, 2> kCardTop = {1500, 1800};

constexpr std::uint32_t kCloth = rgb(24, 104, 62);
constexpr std::uint32_t kPanel = rgb(16, 78, 46);
constexpr std::uint32_t kChalk = rgb(255, 250, 225);
constexpr std::uint32_t kGold = rgb(255, 205, 60);
constexpr std::array<std::uint32_t, 2> kPlayerInk = {rgb(255, 200, 90), rgb(140, 210, 255)};

const std::string kPlayerBox[2] = {"player1", "player2"};
const std::string kNameLabel[2] = {"player1label", "player2label"};
const std::string kScore[2] = {"p1score", "p2score"};
const std::string kPoint[2] = {"p1point", "p2point"};
const std::string kHint[2] = {"p1hint", "p2hint"};
const std::string kSaid[2] = {"p1said", "p2said"};

Control &styled(Control &c, double points, bool bold, Align align, std::uint32_t ink)
{
    c.font.points = points;
    c.font.bold = bold;
    c.align = align;
    c.foreColor = ink;
    return c;
}

// Leading and trailing blanks do not count as part of a name.
std::string trimmed(const std::string &s)
{
    const auto first = s.find_first_not_of(' ');
    if (first == std::string::npos)
        return {};
    return s.substr(first, s.find_last_not_of(' ') - first + 1);
}

} // namespace

TwoPlayerSnap::TwoPlayerSnap(App &app)
    : Screen(app)
{
    setSize(kWidth, kHeight);
    setBackColor(kCloth);
    buildControls();
}

void TwoPlayerSnap::buildControls()
{
    Control &instruct = label("instruct", "Press START to play.", 300, 150, kWidth - 600, 600);
    styled(instruct, 20, true, Align::Center, kChalk);
    // The rule of the game, under the instruction once the game is under way.
    Control &rule = label("rule", "", 300, 750, kWidth - 600, 500);
    styled(rule, 15, true, Align::Center, kGold);

    for (int p = 0; p < 2; ++p)
        buildPlayerPanel(p, kPanelLeft[std::size_t(p)]);

    for (int slot = 0; slot < 2; ++slot)
        canvas("cardface", kCardLeft[std::size_t(slot)], kCardTop[std::size_t(slot)], kCardWidth,
               kCardHeight)
            .index = slot;

    // The cards still to deal, face down, with their count.
    image("Image1", "snap_deck.svg", 3400, 5750, 1270, 1730);
    styled(label("cardsleft", "", 4750, 6250, 1500, 900), 14, true, Align::Left, kChalk);

    styled(label("levellabel", "Level", 6300, 5900, 1300, 500), 16, true, Align::Right, kChalk);
    Control &level = label("level", "1", 7700, 5850, 800, 600);
    styled(level, 18, true, Align::Center, rgb(20, 60, 30)).backColor = kChalk;
    styled(label("timelabel", "Seconds per card", 6000, 6650, 1600, 700), 12, true, Align::Right,
           kChalk);
    Control &time = label("time", "", 7700, 6650, 800, 600);
    styled(time, 18, true, Align::Center, rgb(20, 60, 30)).backColor = kChalk;

    Control &start = button("start", "START", 3450, 7750, 2300, 950);
    styled(start, 22, true, Align::Center, colors::black).backColor = rgb(120, 220, 120);
    Control &exit = button("exit", "EXIT", 6250, 7750, 2300, 950);
    styled(exit, 22, true, Align::Center, colors::black).backColor = rgb(250, 150, 150);

    // Keys reach this screen whatever has the focus; the box stays hidden.
    Control &controller = textBox("controller", "controller", 0, 0, 300, 300);
    controller.visible = false;
    controller.enabled = false;

    timer("Timer1", dealInterval(1));
    setFocus("start");
}

void TwoPlayerSnap::buildPlayerPanel(int player, int left)
{
    const std::size_t p = std::size_t(player);
    const std::uint32_t ink = kPlayerInk[p];
    shape(player ? "p2panel" : "p1panel", ShapeKind::RoundedRectangle, kPanel, ink, left, kPanelTop,
          kPanelWidth, kPanelHeight)
        .lineWidth = 40;

    Control &name = label(kNameLabel[p], "Player " + std::to_string(player + 1), left + 100,
                          kPanelTop + 250, kPanelWidth - 200, 800);
    styled(name, 24, true, Align::Center, ink).fit = TextFit::Shrink;
    Control &box = textBox(kPlayerBox[p], "Player " + std::to_string(player + 1) + " name",
                           left + 250, kPanelTop + 250, kPanelWidth - 500, 700);
    styled(box, 18, true, Align::Center, colors::black);
    box.visible = false;
    Control &hint =
        label(kHint[p], "Then press Enter.", left + 100, kPanelTop + 1000, kPanelWidth - 200, 440);
    styled(hint, 13, false, Align::Center, kChalk).visible = false;

    // The key, drawn as a key cap.
    Control &key = label(player ? "Label2" : "key1", player ? "Key : L" : "Key : A", left + 450,
                         kPanelTop + 1450, kPanelWidth - 900, 1000);
    styled(key, 26, true, Align::Center, rgb(30, 30, 40)).backColor = rgb(245, 242, 230);
    key.border = true;

    Control &score =
        label(kScore[p], " : 0", left + 100, kPanelTop + 3000, kPanelWidth - 200, 1300);
    styled(score, 22, true, Align::Center, colors::white).fit = TextFit::Shrink;

    // A gold counter for every point, five in a row.
    constexpr int kDot = 440, kGap = 90;
    const int first = left + (kPanelWidth - 5 * kDot - 4 * kGap) / 2;
    for (int i = 0; i < kWinningPoints; ++i)
        shape(kPoint[p], ShapeKind::Oval, kPanel, kGold, first + i * (kDot + kGap),
              kPanelTop + 4600, kDot, kDot, i)
            .lineWidth = 30;

    // What the last call earned, until the next card comes.
    styled(label(kSaid[p], "", left + 100, kPanelTop + 5150, kPanelWidth - 200, 700), 20, true,
           Align::Center, kGold);
}

int TwoPlayerSnap::dealInterval(int level)
{
    // Working out two calculations takes longer as the numbers grow, so the higher levels deal
    // a little more slowly.
    switch (level) {
    case 2:
        return 3000;
    case 3:
        return 3500;
    default:
        return 2500;
    }
}

void TwoPlayerSnap::onOpened()
{
    const int option = progress().SnapOption.whole();
    level_ = option >= 1 && option <= snap::kLevels ? option : 1;
    caption("level") = std::to_string(level_);
    ctl("Timer1").interval = dealInterval(level_);
    caption("time") = numberText(dealInterval(level_) / 1000.0);
    showCards();
    showScores();
}

void TwoPlayerSnap::onClick(const std::string &name, int)
{
    if (name == "exit") {
        leave();
    } else if (name == "start" && stage_ == Stage::Waiting) {
        // START stays enabled (so the focus rests on it, never on EXIT) but only starts once.
        ctl("start").backColor = colors::silver;
        askName(0);
    }
}

void TwoPlayerSnap::askName(int player)
{
    stage_ = player == 0 ? Stage::Naming1 : Stage::Naming2;
    caption("instruct") = player == 0 ? "Player 1, enter your name." : "Player 2, enter your name.";
    Control &box = ctl(kPlayerBox[std::size_t(player)]);
    box.caption.clear();
    box.visible = true;
    box.enabled = true;
    setVisible(kNameLabel[std::size_t(player)], false);
    setVisible(kHint[std::size_t(player)], true);
    setFocus(box.name);
}

void TwoPlayerSnap::onKeyPress(const std::string &name, int, int &key)
{
    const int player = name == kPlayerBox[0] ? 0 : name == kPlayerBox[1] ? 1 : -1;
    if (player < 0) {
        key = 0;
        return;
    }
    if (key != 13)
        return;
    key = 0;
    if (stage_ == (player == 0 ? Stage::Naming1 : Stage::Naming2))
        acceptName(player);
}

void TwoPlayerSnap::acceptName(int player)
{
    const std::size_t p = std::size_t(player);
    Control &box = ctl(kPlayerBox[p]);
    const std::string name = trimmed(box.caption);
    if (name.empty())
        return; // Enter on an empty box: the box waits for a name
    if (snap::characterCount(name) > kLongestName) {
        stage_ = Stage::Boxed;
        tell(platform(), progress(), "You must use less than 15 letters.");
        stage_ = player == 0 ? Stage::Naming1 : Stage::Naming2;
        box.caption.clear();
        return;
    }
    names_[p] = name;
    box.visible = false;
    box.enabled = false;
    setVisible(kHint[p], false);
    Control &shown = ctl(kNameLabel[p]);
    shown.caption = name;
    shown.visible = true;
    showScores();
    if (player == 0) {
        askName(1);
        return;
    }
    setFocus("start");
    caption("rule") = "First to get 5 points wins.";
    caption("instruct") = "Press your key to call SNAP!";
    newGame();
}

void TwoPlayerSnap::newGame()
{
    points_ = {0, 0};
    showScores();
    showCallResult(-1, false);
    const snap::Draw draw = [this] { return this->draw(); };
    deck_.make(level_, draw);
    deck_.shuffle(draw);
    dealt_ = 0;
    shown_ = {-1, -1};
    stage_ = Stage::Dealing;
    setTimer("Timer1", true);
    dealNext();
}

void TwoPlayerSnap::onTimer(const std::string &name)
{
    if (name != "Timer1" || stage_ != Stage::Dealing)
        return;
    showCallResult(-1, false);
    if (dealt_ == snap::kCards)
        reshuffle();
    else
        dealNext();
}

void TwoPlayerSnap::dealNext()
{
    shown_[0] = shown_[1];
    shown_[1] = deck_.cardAt(dealt_++);
    showCards();
}

void TwoPlayerSnap::reshuffle()
{
    stage_ = Stage::Boxed;
    tell(platform(), progress(), "All the cards have been dealt. Shuffle and deal again.");
    stage_ = Stage::Dealing;
    // The pile is picked up with the rest: the new deal starts on an empty table.
    deck_.shuffle([this] { return draw(); });
    dealt_ = 0;
    shown_ = {-1, -1};
    dealNext();
    restartDealing();
}

void TwoPlayerSnap::onScreenKey(int key)
{
    const int player = key == 'a' || key == 'A' ? 0 : key == 'l' || key == 'L' ? 1 : -1;
    if (player < 0)
        return;
    // Every press is a call on the two cards on show, however quickly it follows the last one,
    // except the keyboard's quick repeats of a key held down (each repeat restarts the span, so
    // the whole stream is passed over). The keyboard's first repeat comes after a pause as long
    // as a pupil's second press and calls like one. A clock set back never makes a repeat.
    const auto now = platform().now();
    auto &last = lastPress_[std::size_t(player)];
    const bool repeat = last && now >= *last && now - *last < kRepeat;
    last = now;
    if (!repeat && stage_ == Stage::Dealing && shown_[0] >= 0)
        call(player);
}

void TwoPlayerSnap::call(int player)
{
    const bool right = snap::snaps(shown_[0], shown_[1]);
    const int scorer = right ? player : 1 - player;
    if (right)
        platform().beep();
    ++points_[std::size_t(scorer)];
    showScores();
    showCallResult(player, right);
    if (points_[std::size_t(scorer)] >= kWinningPoints) {
        won(scorer);
        return;
    }
    if (dealt_ == snap::kCards) {
        reshuffle();
        return;
    }
    dealNext();
    restartDealing();
}

void TwoPlayerSnap::won(int player)
{
    stage_ = Stage::Boxed;
    setTimer("Timer1", false);
    if (ask(platform(), progress(),
            names_[std::size_t(player)] + " has won! Do you want another game?") == kYes)
        newGame();
    else
        leave();
}

void TwoPlayerSnap::leave()
{
    stage_ = Stage::Boxed;
    setTimer("Timer1", false);
    handOver("pairmenu");
}

void TwoPlayerSnap::restartDealing()
{
    // The card just dealt stays for a whole interval.
    ++ctl("Timer1").timerRestarts;
}

void TwoPlayerSnap::showCards()
{
    for (int slot = 0; slot < 2; ++slot) {
        Control &face = ctl("cardface", slot);
        const int card = shown_[std::size_t(slot)];
        if (card < 0) {
            snap::drawPlace(face.drawing, kCardWidth, kCardHeight);
            face.caption.clear();
        } else {
            face.caption = deck_.caption(card);
            snap::drawFace(face.drawing, kCardWidth, kCardHeight, card, face.caption);
        }
    }
    const int left =
        stage_ == Stage::Waiting || stage_ == Stage::Naming1 || stage_ == Stage::Naming2
            ? snap::kCards
            : snap::kCards - dealt_;
    caption("cardsleft") = left == 1 ? "1 card to deal" : std::to_string(left) + " cards to deal";
    setVisible("Image1", left > 0);
}

void TwoPlayerSnap::showCallResult(int caller, bool right)
{
    for (int p = 0; p < 2; ++p) {
        Control &said = ctl(kSaid[std::size_t(p)]);
        said.caption.clear();
        said.foreColor = kGold;
        if (caller < 0)
            continue;
        if (p == caller && right) {
            said.caption = "SNAP!  +1";
        } else if (p == caller) {
            said.caption = "Not a snap!";
            said.foreColor = rgb(255, 160, 150);
        } else if (!right) {
            said.caption = "+1";
        }
    }
}

void TwoPlayerSnap::showScores()
{
    for (std::size_t p = 0; p < 2; ++p) {
        Control &score = ctl(kScore[p]);
        score.caption = names_[p] + " : " + std::to_string(points_[p]);
        for (int i = 0; i < kWinningPoints; ++i)
            ctl(kPoint[p], i).backColor = i < points_[p] ? kGold : kPanel;
    }
}

} // namespace nb
