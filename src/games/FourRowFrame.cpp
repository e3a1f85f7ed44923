#include "games/FourRowFrame.h"

#include "activity/Ask.h"

#include <algorithm>
#include <cstdlib>

namespace nb {

using namespace fourrow;

namespace {

constexpr std::uint32_t kLeftColor = rgb(190, 220, 255);
constexpr std::uint32_t kRightColor = rgb(255, 214, 170);
constexpr std::uint32_t kChosenColor = rgb(255, 225, 0);
constexpr std::uint32_t kInk = rgb(30, 40, 110);
constexpr std::uint32_t kWinMark = rgb(20, 30, 140);
constexpr int kMarkOverlap = 30; // twips a mark reaches beyond its cell

int cellLeft(int col)
{
    return FourRowFrame::kBoardLeft + (col - kFirst) * FourRowFrame::kCellStep;
}
int cellTop(int row)
{
    return FourRowFrame::kBoardTop + (row - kFirst) * FourRowFrame::kCellStep;
}

} // namespace

FourRowFrame::FourRowFrame(App &app)
    : Screen(app)
{
    setSize(kWidth, kHeight);
    setBackColor(rgb(232, 242, 252));
    buildBoard();
}

void FourRowFrame::buildBoard()
{
    Control &text = label("text1", "", 400, 250, kWidth - 800, 850);
    text.font.points = 18;
    text.font.bold = true;
    text.align = Align::Center;
    text.foreColor = kInk;

    for (int k = kFirst; k <= kLast; ++k) {
        for (const bool left : {true, false}) {
            Control &b = button(left ? "xvalue" : "expression", "",
                                left ? kNumberMargin : kWidth - kNumberMargin - kNumberWidth,
                                cellTop(k), kNumberWidth, kCellSize, k);
            b.font.points = 26;
            b.font.bold = true;
            b.align = Align::Center;
            b.backColor = left ? kLeftColor : kRightColor;
            b.foreColor = kInk;
            b.doubleClicks = false;
        }
    }
    for (int r = kFirst; r <= kLast; ++r)
        for (int c = kFirst; c <= kLast; ++c) {
            Control &cell =
                label("Label1", "", cellLeft(c), cellTop(r), kCellSize, kCellSize, cellId(r, c));
            cell.font.points = 22;
            cell.font.bold = true;
            cell.align = Align::Center;
            cell.border = true;
            cell.backColor = kFreeCell;
            cell.foreColor = kInk;
            // The second press of a double-click must not claim again (or count as a wrong cell).
            cell.doubleClicks = false;
        }
    // The model's working labels, never shown.
    for (const char *name : {"playerstatus", "compstatus", "freestatus"})
        for (int r = kFirst; r <= kLast; ++r)
            for (int c = kFirst; c <= kLast; ++c)
                label(name, "0", 0, 0, 10, 10, cellId(r, c)).visible = false;
    label("swapper", "", 0, 0, 10, 10).visible = false;

    // Frames that mark the cells of a winning line (up to six when a gap is filled), drawn over
    // the cells so the numbers stay readable.
    for (int k = 0; k < kSide; ++k) {
        Control &mark = shape("winmark", ShapeKind::RoundedRectangle, kDefaultColor, kWinMark, 0, 0,
                              kCellSize + 2 * kMarkOverlap, kCellSize + 2 * kMarkOverlap, k);
        mark.lineWidth = 110;
        mark.visible = false;
        mark.mouseTransparent = true;
    }
}

Control &FourRowFrame::strip(Control &c, double points)
{
    c.font.points = points;
    c.font.bold = true;
    c.align = Align::Center;
    c.foreColor = kInk;
    return c;
}

void FourRowFrame::newBoard(const std::array<Numbers, 2> &numbers)
{
    board_.setUp(numbers[0], numbers[1], [this] { return draw(); });
    for (int k = kFirst; k <= kLast; ++k) {
        caption("xvalue", k) = std::to_string(board_.left(k));
        caption("expression", k) = std::to_string(board_.right(k));
    }
    for (int r = kFirst; r <= kLast; ++r)
        for (int c = kFirst; c <= kLast; ++c) {
            Control &cell = ctl("Label1", cellId(r, c));
            cell.caption = std::to_string(board_.sum(r, c));
            cell.backColor = kFreeCell;
            cell.foreColor = kInk;
        }
    for (int k = 0; k < kSide; ++k)
        setVisible("winmark", false, k);
    clearPicks();
    showStatus();
}

bool FourRowFrame::claimCell(Cell cell, Owner who)
{
    const bool four = board_.claim(cell.row, cell.col, who);
    Control &c = ctl("Label1", cellId(cell.row, cell.col));
    c.backColor = who == Owner::Red ? kRedCell : kGreenCell;
    c.foreColor = who == Owner::Red ? colors::white : colors::black;
    showStatus();
    if (const auto ends = board_.fourThrough(cell.row, cell.col); four && ends)
        markLine((*ends)[0], (*ends)[1]);
    return four;
}

void FourRowFrame::markLine(Cell from, Cell to)
{
    const int dr = (to.row > from.row) - (to.row < from.row);
    const int dc = (to.col > from.col) - (to.col < from.col);
    const int length = std::max(std::abs(to.row - from.row), std::abs(to.col - from.col)) + 1;
    for (int k = 0; k < kSide; ++k) {
        Control &mark = ctl("winmark", k);
        mark.visible = k < length;
        if (mark.visible) {
            mark.left = cellLeft(from.col + k * dc) - kMarkOverlap;
            mark.top = cellTop(from.row + k * dr) - kMarkOverlap;
        }
    }
}

void FourRowFrame::showStatus()
{
    for (int r = kFirst; r <= kLast; ++r)
        for (int c = kFirst; c <= kLast; ++c) {
            const int id = cellId(r, c);
            caption("playerstatus", id) = std::to_string(board_.status(Owner::Red, r, c));
            caption("compstatus", id) = std::to_string(board_.status(Owner::Green, r, c));
            caption("freestatus", id) = std::to_string(board_.freeScore(r, c));
        }
}

void FourRowFrame::clearPicks()
{
    leftPick_ = rightPick_ = 0;
    showPicks();
}

void FourRowFrame::showPicks()
{
    for (int k = kFirst; k <= kLast; ++k) {
        ctl("xvalue", k).backColor = k == leftPick_ ? kChosenColor : kLeftColor;
        ctl("expression", k).backColor = k == rightPick_ ? kChosenColor : kRightColor;
    }
}

void FourRowFrame::parkFocus()
{
    // The window moves the focus only when the wanted control changes, so alternate between two
    // harmless ones: after a click on PASS the focus must not stay there for Enter to repeat it.
    focusOnLeft_ = !focusOnLeft_;
    setFocus(focusOnLeft_ ? "xvalue" : "expression", kFirst);
}

int FourRowFrame::askYesNo(const std::string &text)
{
    return ask(platform(), progress(), text);
}

void FourRowFrame::tellOk(const std::string &text)
{
    tell(platform(), progress(), text);
}

void FourRowFrame::onClick(const std::string &name, int index)
{
    if (name == "xvalue" || name == "expression")
        pickNumber(name, index);
    else if (name == "Label1")
        clickCell(index / 100, index % 100);
    else
        onCommand(name);
}

void FourRowFrame::pickNumber(const std::string &side, int index)
{
    if (!picking() || index < kFirst || index > kLast)
        return;
    (side == "xvalue" ? leftPick_ : rightPick_) = index;
    showPicks();
    if (leftPick_ && rightPick_)
        say("Add your two numbers together.");
}

void FourRowFrame::clickCell(int row, int col)
{
    if (!picking() || !onBoard(row, col) || !board_.isFree(row, col))
        return;
    if (!leftPick_ || !rightPick_) {
        say(choosePrompt());
        return;
    }
    const bool right = board_.sum(row, col) == board_.left(leftPick_) + board_.right(rightPick_);
    clearPicks();
    if (right)
        rightCell({row, col});
    else
        wrongCell();
}

} // namespace nb
