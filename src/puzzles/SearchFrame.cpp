#include "puzzles/SearchFrame.h"

#include "activity/Ask.h"
#include "core/Platform.h"
#include "core/PupilProgress.h"

#include <cmath>

namespace nb {

namespace {

// The board canvas: cells of kCellSize twips every kCellStep twips, kMargin from its edges.
constexpr int kCellStep = 930, kCellSize = 900, kMargin = 30;
constexpr int kBoardSize = 2 * kMargin + 7 * kCellStep + kCellSize;
constexpr int kBoardLeft = 270, kBoardTop = 1320;

constexpr std::uint32_t kBoardBack = rgb(43, 90, 168);
constexpr std::uint32_t kInk = rgb(30, 60, 140);
constexpr std::uint32_t kCellBack = colors::white;
constexpr std::uint32_t kCellChosen = colors::yellow;
constexpr std::uint32_t kCellFound = rgb(150, 225, 150);
constexpr std::uint32_t kFoundInk = rgb(30, 80, 30);
constexpr std::uint32_t kFoundBar = rgb(95, 185, 95);

const char *ruleFor(SearchOp op)
{
    switch (op) {
    case SearchOp::Add:
        return "Add the two numbers together.";
    case SearchOp::Subtract:
        return "Take the smaller number away from the bigger one.";
    case SearchOp::Times:
        return "Multiply the two numbers together.";
    case SearchOp::Divide:
        return "Divide the bigger number by the smaller one.";
    }
    return "";
}

} // namespace

SearchFrame::SearchFrame(App &app)
    : Screen(app)
{
    setSize(kWidth, kHeight);
    setBackColor(rgb(235, 245, 255));
    caller_ = int(progress().SearchCaller.number());
    if (caller_ < 1 || caller_ > 4)
        caller_ = 1;
    board_ = SearchBoard(searchOpFor(caller_));

    Control &line = label("target", "Press START to begin.", 300, 150, 11400, 750);
    line.font.points = 24;
    line.font.bold = true;
    line.align = Align::Center;
    line.foreColor = kInk;
    Control &rule = label("rule", ruleFor(board_.op()), kBoardLeft, 880, kBoardSize, 430);
    rule.font.points = 15;
    rule.align = Align::Center;
    rule.foreColor = rgb(70, 70, 70);

    Control &board = canvas("board", kBoardLeft, kBoardTop, kBoardSize, kBoardSize);
    board.backColor = kBoardBack;
    // A quick double press on a cell is one choice, not a choice and its undoing.
    board.doubleClicks = false;
    timer("Timer1", 1000);
    render(); // empty cells until START
}

const char *SearchFrame::menuFor(int caller)
{
    static const char *const menus[] = {"addmenu", "submenu", "mulmenu", "divmenu"};
    return caller >= 1 && caller <= 4 ? menus[caller - 1] : menus[0];
}

std::string SearchFrame::targetText(int target)
{
    return "Find two numbers next to each other that make " + std::to_string(target);
}

Control &SearchFrame::valueLabel(std::string name, int l, int t, int w, int h, std::uint32_t ink)
{
    Control &c = label(std::move(name), "", l, t, w, h);
    c.font.points = 26;
    c.font.bold = true;
    c.align = Align::Center;
    c.border = true;
    c.backColor = colors::white;
    c.foreColor = ink;
    return c;
}

Control &SearchFrame::textLabel(std::string name, std::string text, int l, int t, int w, int h)
{
    Control &c = label(std::move(name), std::move(text), l, t, w, h);
    c.font.points = 18;
    c.font.bold = true;
    c.foreColor = kInk;
    return c;
}

void SearchFrame::startAndExit()
{
    const auto big = [](Control &c, std::uint32_t back) {
        c.font.points = 22;
        c.font.bold = true;
        c.backColor = back;
    };
    big(button("start", "START", kPanelLeft + 100, 7600, 1750, 950), rgb(120, 220, 120));
    big(button("exit", "EXIT", kPanelLeft + 2000, 7600, 1550, 950), rgb(250, 150, 150));
}

int SearchFrame::ask(const std::string &text)
{
    return nb::ask(platform(), progress(), text);
}

void SearchFrame::beginRound(int level)
{
    level_ = level;
    board_.fill(level_, [this] { return draw(); });
    selected_ = -1;
    secondsLeft_ = kSeconds;
    running_ = true;
    setTimer("Timer1", true);
    newTarget();
    // The board takes the clicks; keys have nothing to do, and Enter must not reach a button.
    setFocus("target");
}

void SearchFrame::dropChoice()
{
    if (selected_ < 0)
        return;
    selected_ = -1;
    render();
}

void SearchFrame::stopRound()
{
    running_ = false;
    selected_ = -1;
    setTimer("Timer1", false);
    render();
}

void SearchFrame::leave()
{
    stopRound();
    handOver(homeMenu());
}

void SearchFrame::newTarget()
{
    std::optional<int> t = board_.pickTarget([this] { return draw(); });
    // Every pair on the board has been found (or none makes a target): fresh numbers.
    for (int tries = 0; !t && tries < 20; ++tries) {
        board_.fill(level_, [this] { return draw(); });
        t = board_.pickTarget([this] { return draw(); });
    }
    if (!t) {
        // Draws that never make a pair: a pair is placed, a number and its double.
        board_.setValue(1, 2 * board_.value(0));
        t = board_.pickTarget([this] { return draw(); });
    }
    target_ = t.value_or(0);
    render();
}

int SearchFrame::cellAt(double x, double y)
{
    // Each cell owns the gap around it, so a press near an edge still counts.
    const int column = int(std::floor((x - kMargin / 2.0) / kCellStep));
    const int row = int(std::floor((y - kMargin / 2.0) / kCellStep));
    if (column < 0 || column >= SearchBoard::kSide || row < 0 || row >= SearchBoard::kSide)
        return -1;
    return row * SearchBoard::kSide + column;
}

void SearchFrame::cellCentre(int cell, double &x, double &y)
{
    x = kMargin + cell % SearchBoard::kSide * kCellStep + kCellSize / 2.0;
    y = kMargin + cell / SearchBoard::kSide * kCellStep + kCellSize / 2.0;
}

void SearchFrame::onMouseDown(const MousePress &press)
{
    if (press.name == "board")
        cellClicked(cellAt(press.x, press.y));
}

void SearchFrame::cellClicked(int cell)
{
    if (!running_ || !SearchBoard::onBoard(cell) || board_.found(cell))
        return;
    if (selected_ < 0 || !SearchBoard::neighbours(selected_, cell)) {
        // A first choice; the same cell again takes it back; a cell that does not touch the
        // first choice becomes the first choice instead.
        selected_ = selected_ == cell ? -1 : cell;
        render();
        return;
    }
    const int first = selected_;
    selected_ = -1;
    if (board_.isAnswer(first, cell, target_)) {
        board_.markFound(first, cell);
        platform().beep();
        newTarget();
        pairFound();
    } else {
        render();
        pairWrong();
    }
}

void SearchFrame::onTimer(const std::string &name)
{
    if (name != "Timer1" || !running_)
        return;
    --secondsLeft_;
    showClock(); // the board is unchanged, so the window keeps its picture of it
    secondPassed();
    if (running_ && secondsLeft_ <= 0) {
        stopRound();
        timeUp();
    }
}

void SearchFrame::render()
{
    Drawing &d = ctl("board").drawing;
    d.clear();
    const auto box = [](int cell) {
        return PointTw{double(kMargin + cell % SearchBoard::kSide * kCellStep),
                       double(kMargin + cell / SearchBoard::kSide * kCellStep)};
    };
    for (int cell = 0; cell < SearchBoard::kCells; ++cell) {
        const PointTw p = box(cell);
        const std::uint32_t back = board_.found(cell)  ? kCellFound
                                   : cell == selected_ ? kCellChosen
                                                       : kCellBack;
        d.rect(p.x, p.y, p.x + kCellSize, p.y + kCellSize, back, back, 0);
    }
    // A short bar across the gap joins the two numbers of each pair found.
    for (const auto &[a, b] : board_.foundPairs()) {
        const PointTw pa = box(a), pb = box(b);
        const double dx = pb.x - pa.x, dy = pb.y - pa.y, half = kCellSize / 2.0;
        d.line(pa.x + half + 0.3 * dx, pa.y + half + 0.3 * dy, pa.x + half + 0.7 * dx,
               pa.y + half + 0.7 * dy, kFoundBar, 140);
    }
    for (int cell = 0; cell < SearchBoard::kCells; ++cell) {
        const PointTw p = box(cell);
        if (board_.value(cell))
            d.text(p.x, p.y, p.x + kCellSize, p.y + kCellSize, std::to_string(board_.value(cell)),
                   board_.found(cell) ? kFoundInk : kInk, 22, true);
    }
    if (target_ > 0)
        Screen::caption("target") = targetText(target_);
    showClock();
}

void SearchFrame::showClock()
{
    if (Control *time = find("time"))
        time->caption = std::to_string(secondsLeft_);
}

} // namespace nb
