#include "puzzles/perfection.h"

#include "activity/Ask.h"
#include "core/Platform.h"
#include "core/PupilProgress.h"
#include "puzzles/PuzzleLevels.h"

#include <algorithm>
#include <cmath>

namespace nb {

namespace {

constexpr int kMax = PerfectionSquare::kMaxSide;
constexpr int kGridLeft = 300, kGridTop = 950, kGridSize = 7800;
constexpr int kPanelLeft = 8500;

constexpr std::uint32_t kInk = rgb(30, 60, 140);
constexpr std::uint32_t kHeadBack = rgb(43, 90, 168);
constexpr std::uint32_t kGivenBack = rgb(222, 232, 250);
constexpr std::uint32_t kRightBack = rgb(150, 225, 150);
constexpr std::uint32_t kWrongBack = rgb(255, 140, 140);

const char *const kFillHint =
    "Type the missing numbers. Enter takes you to the next blank square. Press MARK IT when "
    "you have finished.";

Control &styled(Control &c, double points, bool bold, Align align = Align::Center)
{
    c.font.points = points;
    c.font.bold = bold;
    c.align = align;
    return c;
}

} // namespace

Perfection::Perfection(App &app)
    : Screen(app)
{
    setSize(12000, 9000);
    setBackColor(rgb(255, 248, 230));
    buildControls();
    square_.clear(level_); // the layout of level 1 until START
    layOut();
}

void Perfection::buildControls()
{
    styled(label("heading", "Fill in the missing numbers.", kGridLeft, 200, kGridSize, 650), 20,
           true)
        .foreColor = kInk;
    // The headings and the given products are drawn; the blanks are boxes over the drawing.
    canvas("grid", kGridLeft, kGridTop, kGridSize, kGridSize);
    for (int row = 0; row < kMax; ++row) {
        for (int column = 0; column < kMax; ++column) {
            const int i = indexOf(row, column);
            Control &box =
                textBox("answer", std::to_string(row + 1) + " times " + std::to_string(column + 1),
                        0, 0, 0, 0, i);
            styled(box, 16, true).maxLength = 3;
            box.foreColor = colors::black;
            box.visible = false;
        }
    }

    const int x = kPanelLeft;
    styled(label("levellabel", "Level", x + 100, 1050, 1600, 650), 20, true, Align::Left)
        .foreColor = kInk;
    for (auto [name, top, ink] : {std::tuple{"level", 950, rgb(200, 40, 40)},
                                  std::tuple{"percent", 2050, rgb(40, 130, 40)}}) {
        Control &v = styled(label(name, "", x + 1800, top, 1400, 850), 26, true);
        v.border = true;
        v.backColor = colors::white;
        v.foreColor = ink;
    }
    styled(label("percentlabel", "Right", x + 100, 2150, 1600, 650), 20, true, Align::Left)
        .foreColor = kInk;
    styled(label("status", "Press START for a new times square.", x, 3200, 3300, 1900), 15, true)
        .foreColor = rgb(70, 70, 70);

    Control &mark = styled(button("mark", "MARK IT", x + 100, 5400, 3100, 950), 22, true);
    mark.backColor = rgb(255, 220, 120);
    mark.enabled = false;
    Control &start = styled(button("start", "START", x + 100, 7600, 1550, 950), 22, true);
    start.backColor = rgb(120, 220, 120);
    Control &exit = styled(button("exit", "EXIT", x + 1800, 7600, 1400, 950), 22, true);
    exit.backColor = rgb(250, 150, 150);
    setFocus("start");
}

void Perfection::layOut()
{
    const int side = square_.side();
    const int cell = kGridSize / (side + 1);
    const int gap = std::max(15, cell / 40);
    // Bigger numbers at the lower levels, where the squares are bigger.
    const double points = std::min(28.0, std::round(16.0 * cell / 600));

    Drawing &d = ctl("grid").drawing;
    d.clear();
    const auto square = [&](int gridRow, int gridColumn, std::uint32_t back, std::string text,
                            std::uint32_t ink) {
        const double l = gridColumn * cell + gap, t = gridRow * cell + gap;
        const double r = (gridColumn + 1) * cell - gap, b = (gridRow + 1) * cell - gap;
        d.rect(l, t, r, b, back, back, 0);
        if (!text.empty())
            d.text(l, t, r, b, std::move(text), ink, points, true);
    };
    square(0, 0, kHeadBack, "x", colors::white);
    for (int k = 1; k <= side; ++k) {
        square(0, k, kHeadBack, std::to_string(k), colors::white);
        square(k, 0, kHeadBack, std::to_string(k), colors::white);
    }
    for (int row = 0; row < side; ++row)
        for (int column = 0; column < side; ++column)
            if (!square_.blank(row, column))
                // The products appear when the pupil starts.
                square(row + 1, column + 1, kGivenBack,
                       filling_ ? std::to_string(PerfectionSquare::product(row, column)) : "",
                       kInk);

    for (int row = 0; row < kMax; ++row) {
        for (int column = 0; column < kMax; ++column) {
            Control &box = ctl("answer", indexOf(row, column));
            box.left = kGridLeft + (column + 1) * cell + gap;
            box.top = kGridTop + (row + 1) * cell + gap;
            box.width = box.height = cell - 2 * gap;
            box.font.points = points;
            box.visible = row < side && column < side && square_.blank(row, column);
            box.caption.clear();
            box.backColor = colors::white;
            box.enabled = filling_;
        }
    }
}

int Perfection::ask(const std::string &text)
{
    return nb::ask(platform(), progress(), text);
}

void Perfection::onOpened()
{
    level_ =
        offerLevel(platform(), progress(), progress().PerfectionBest, PerfectionSquare::kLevels);
    caption("level") = std::to_string(level_);
    square_.clear(level_);
    layOut();
}

void Perfection::onClick(const std::string &name, int)
{
    if (name == "start" && !filling_)
        begin();
    else if (name == "mark" && filling_)
        markIt();
    else if (name == "exit")
        leave();
}

void Perfection::begin()
{
    filling_ = true;
    square_.fill(level_, [this] { return draw(); });
    layOut();
    caption("level") = std::to_string(level_);
    caption("percent").clear();
    caption("status") = kFillHint;
    setEnabled("start", false);
    setEnabled("mark", true);
    focusBlank(0);
}

void Perfection::focusBlank(int from)
{
    const auto &blanks = square_.blanks();
    if (blanks.empty())
        return;
    const auto at = std::lower_bound(blanks.begin(), blanks.end(), from);
    setFocus("answer", (at == blanks.end() ? blanks.front() : *at) + 1);
}

void Perfection::onKeyPress(const std::string &name, int index, int &key)
{
    if (name != "answer" || !filling_) {
        key = 0;
        return;
    }
    // The square typed in has the focus (the pupil may have clicked it): noted, so that Enter
    // moves on from here even to the square the cursor was last sent to.
    setFocus("answer", index);
    if (key == 13) {
        key = 0;
        focusBlank(index); // the blank after this one (indices count from 1)
        return;
    }
    // Digits and Backspace only: the answers are whole numbers.
    if (key != 8 && (key < '0' || key > '9'))
        key = 0;
}

void Perfection::markIt()
{
    const auto &blanks = square_.blanks();
    const auto empty = std::find_if(blanks.begin(), blanks.end(),
                                    [this](int b) { return caption("answer", b + 1).empty(); });
    if (empty != blanks.end() &&
        ask("Some squares are still blank. Do you want to mark the square now?") != kYes) {
        setFocus("answer", *empty + 1);
        return;
    }
    int right = 0;
    for (int b : blanks) {
        Control &box = ctl("answer", b + 1);
        const bool ok = PerfectionSquare::right(box.caption, b / kMax, b % kMax);
        right += ok;
        box.backColor = ok ? kRightBack : kWrongBack;
        box.enabled = false;
    }
    filling_ = false;
    setEnabled("mark", false);
    const int pc = PerfectionSquare::percent(right, square_.blankCount());
    caption("percent") = std::to_string(pc) + "%";
    if (pc == 100) {
        caption("status") = "Perfect! Every square is right.";
        setFocus("status");
        passed();
        return;
    }
    // The marked square stays in view, with no box over it, until the pupil starts again; the
    // focus rests on START, never on EXIT.
    caption("status") = "You got " + std::to_string(right) + " out of " +
                        std::to_string(square_.blankCount()) +
                        " right. The red squares are wrong. Press START to try again.";
    setEnabled("start", true);
    setFocus("start");
}

void Perfection::passed()
{
    level_ = levelPassed(platform(), progress(), progress().PerfectionBest, level_,
                         PerfectionSquare::kLevels,
                         "Perfect! You have passed level " + std::to_string(level_));
    if (level_ == 0)
        return leave();
    begin();
}

void Perfection::leave()
{
    filling_ = false;
    handOver("mulmenu");
}

} // namespace nb
