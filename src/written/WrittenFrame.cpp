#include "written/WrittenFrame.h"

#include "activity/AnswerBoxFilter.h"
#include "activity/Ask.h"
#include "activity/BestTimeCheck.h"
#include "activity/PraiseList.h"
#include "activity/RunPanel.h"
#include "core/NumberText.h"
#include "core/Platform.h"

#include <algorithm>

namespace nb {

namespace {
constexpr std::uint32_t kDesk = rgb(255, 248, 225);
constexpr std::uint32_t kPaper = rgb(253, 253, 248);
constexpr std::uint32_t kSquares = rgb(205, 225, 245);
constexpr std::uint32_t kMargin = rgb(235, 90, 90);
constexpr std::uint32_t kInk = rgb(25, 45, 120);
constexpr std::uint32_t kPencil = rgb(110, 120, 140);
constexpr std::uint32_t kPromptInk = rgb(0, 110, 60);

// The right-hand panel: stopwatch, score and the three buttons.
constexpr int kPanelLeft = 8000;
constexpr int kPanelWidth = 3400;
} // namespace

WrittenFrame::WrittenFrame(App &app, Value PupilProgress::*best, std::string menu)
    : Screen(app)
    , best_(best)
    , menu_(std::move(menu))
    , run_(*this, {}, kQuestions)
{
    setSize(12000, 9000);
    setBackColor(kDesk);

    // Squared paper with a red margin; the sum sits on its squares. Drawn with shapes and lines
    // so that it lies under the digits.
    const int right = cellX(kPageColumns);
    const int bottom = cellY(kPageRows);
    shape("paper", ShapeKind::Rectangle, kPaper, kSquares, kPageLeft, kPageTop, right - kPageLeft,
          bottom - kPageTop)
        .lineWidth = 30;
    int gridLine = 0;
    for (int c = 1; c < kPageColumns; ++c)
        line("grid", cellX(c), kPageTop, cellX(c), bottom, kSquares, gridLine++);
    for (int r = 1; r < kPageRows; ++r)
        line("grid", kPageLeft, cellY(r), right, cellY(r), kSquares, gridLine++);
    shape("Shape1", ShapeKind::Rectangle, kMargin, kMargin, kPageLeft + kCell / 2, kPageTop, 30,
          bottom - kPageTop);

    Control &prompt = label("text17", "", kPageLeft, bottom + 250, right - kPageLeft, 1000);
    prompt.font.points = 24;
    prompt.font.bold = true;
    prompt.foreColor = kPromptInk;
    prompt.align = Align::Center;

    addRunPanel(*this, {kPanelLeft, kPanelWidth, 1600, kInk, "Command11", "Start", "Command10",
                        "Next", "Command22", "Exit"});

    timer("Timer1", 1000);
}

Control &WrittenFrame::digitLabel(std::string name, int column, int row)
{
    Control &c = label(std::move(name), "", cellX(column), cellY(row), kCell, kCell);
    c.font.points = 36;
    c.font.bold = true;
    c.foreColor = kInk;
    c.align = Align::Center;
    return c;
}

Control &WrittenFrame::signLabel(std::string text, int column, int row)
{
    Control &c = digitLabel("sign", column, row);
    c.caption = std::move(text);
    return c;
}

void WrittenFrame::headings(int firstColumn, int row, std::initializer_list<const char *> letters)
{
    int i = 0;
    for (const char *letter : letters) {
        Control &c = label("heading", letter, cellX(firstColumn + i), cellY(row) + kCell / 2, kCell,
                           kCell / 2, i);
        c.font.points = 14;
        c.font.bold = true;
        c.foreColor = kPencil;
        c.align = Align::Center;
        ++i;
    }
}

Control &WrittenFrame::answerBox(std::string name, std::string spoken, int column, int row)
{
    constexpr int inset = 70;
    boxes_.add(name);
    Control &c = textBox(std::move(name), std::move(spoken), cellX(column) + inset,
                         cellY(row) + inset, kCell - 2 * inset, kCell - 2 * inset);
    c.font.points = 32;
    c.font.bold = true;
    c.foreColor = kInk;
    c.align = Align::Center;
    c.backColor = kIdleBox;
    c.visible = false;
    return c;
}

Control &WrittenFrame::carryBox(std::string name, std::string spoken, int column, int row)
{
    constexpr int size = 560;
    Control &c = answerBox(std::move(name), std::move(spoken), column, row);
    c.left = cellX(column) + (kCell - size) / 2;
    c.top = cellY(row) + 120;
    c.width = c.height = size;
    c.font.points = 20;
    return c;
}

void WrittenFrame::rules(int answerRow, int firstColumn, int lastColumn, bool doubleRule)
{
    rule("Line1", cellY(answerRow), firstColumn, lastColumn);
    rule("Line2", cellY(answerRow + 1), firstColumn, lastColumn);
    if (doubleRule)
        rule("Line3", cellY(answerRow + 1) + 90, firstColumn, lastColumn);
}

Control &WrittenFrame::penLine(std::string name, int x1, int y1, int x2, int y2)
{
    Control &c = line(std::move(name), x1, y1, x2, y2, kInk);
    c.lineWidth = 40;
    return c;
}

Control &WrittenFrame::rule(std::string name, int y, int firstColumn, int lastColumn)
{
    return penLine(std::move(name), cellX(firstColumn) + 60, y, cellX(lastColumn + 1) - 60, y);
}

Control &WrittenFrame::sideHint(std::string text)
{
    Control &c = label("hint", std::move(text), kPanelLeft, 5700, kPanelWidth, 1700);
    c.font.points = 14;
    c.font.bold = true;
    c.foreColor = kPencil;
    return c;
}

bool WrittenFrame::isAnswerBox(std::string_view name) const
{
    return boxes_.contains(name);
}

void WrittenFrame::onOpened()
{
    announceBestTime(platform(), progress(), &bestTime());
    setEnabled("Command11", true);
    setFocus("Command11");
}

void WrittenFrame::onClick(const std::string &name, int index)
{
    if (name == "Command11")
        startExercise();
    else if (name == "Command10")
        newQuestion();
    else if (name == "Command22")
        backToMenu();
    else
        onPageClick(name, index);
}

void WrittenFrame::onTimer(const std::string &name)
{
    if (name == "Timer1")
        run_.tick();
}

void WrittenFrame::onKeyPress(const std::string &name, int index, int &key)
{
    if (!boxes_.contains(name, index))
        return;
    Control &box = ctl(name);
    if (const auto value = filterAnswerKey(box.caption, keyReference(name), key))
        submit(name, *value);
}

double WrittenFrame::keyReference(const std::string &box)
{
    return readNumber(caption(box));
}

int WrittenFrame::drawDigit(const char *label, int n, int lo)
{
    const int value = int(draw() * n) + lo;
    caption(label) = numberText(value);
    return value;
}

void WrittenFrame::startExercise()
{
    run_.begin();
    newQuestion();
}

void WrittenFrame::backToMenu()
{
    handOver(menu_);
}

void WrittenFrame::rightEntry()
{
    platform().beep();
}

void WrittenFrame::wrongEntry(const std::string &box)
{
    caption(box).clear();
    run_.penalty(2);
}

void WrittenFrame::addPenalty(int seconds)
{
    if (seconds > 0)
        run_.penalty(seconds);
}

void WrittenFrame::clearPage()
{
    questionComplete_ = false;
    setVisible("Command10", false);
    boxes_.clear(*this);
    setPrompt("");
}

void WrittenFrame::questionDone()
{
    questionComplete_ = true;
    setPrompt(praiseFor(draw()));
    setVisible("Command10", true);
    setFocus("Command10");
    if (run_.scorePoint())
        finishExercise();
}

void WrittenFrame::stopExercise()
{
    setVisible("Command10", false);
    run_.stop();
}

void WrittenFrame::finishExercise()
{
    setVisible("Command10", false);
    carryOn(run_.finish(platform(), progress(), &bestTime()));
}

void WrittenFrame::askAnotherGo(std::string message)
{
    carryOn(ask(platform(), progress(), message + "Do you want another go ?"));
}

void WrittenFrame::carryOn(int reply)
{
    if (reply == kYes)
        startExercise();
    else
        backToMenu();
}

} // namespace nb
