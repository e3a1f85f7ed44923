#include "layouts/LayoutFrame.h"

#include "activity/AnswerBoxFilter.h"
#include "activity/BestTimeCheck.h"
#include "activity/PraiseList.h"
#include "activity/RunPanel.h"
#include "core/Input.h"
#include "core/NumberText.h"
#include "core/Platform.h"

#include <algorithm>

namespace nb {

namespace {
constexpr std::uint32_t kDesk = rgb(255, 246, 228);
constexpr std::uint32_t kPromptInk = rgb(0, 110, 60);

// The right-hand panel: stopwatch, score and the three buttons.
constexpr int kPanelLeft = 8300;
constexpr int kPanelWidth = 3300;

constexpr std::string_view kSetOut = "Set out the question.";
constexpr std::string_view kWorkGrid = "Work out the answers in the grid.";
constexpr std::string_view kWorkAnswer = "Work out the answer to the question.";
} // namespace

LayoutFrame::LayoutFrame(App &app, Value PupilProgress::*best, Sizes sizes, Clearing clearing)
    : Screen(app)
    , best_(best)
    , sizes_(std::move(sizes))
    , clearing_(clearing)
    , run_(*this, {"Command1", "time", "score", "Timer1"}, kQuestions)
{
    setSize(12000, 9000);
    setBackColor(kDesk);

    Control &prompt = label("text17", "", kPageLeft, kPromptTop, kPageRight - kPageLeft, 900);
    prompt.font.points = 20;
    prompt.font.bold = true;
    prompt.foreColor = kPromptInk;
    prompt.align = Align::Center;

    addRunPanel(*this, {kPanelLeft, kPanelWidth, 1500, kInk, "Command1", "START", "Command10",
                        "NEXT", "Command13", "EXIT"});

    timer("Timer1", 1000);
}

Control &LayoutFrame::answerBox(std::string name, std::string spoken, int index, int l, int t,
                                int w, int h, double points)
{
    Control &c = textBox(std::move(name), std::move(spoken), l, t, w, h, index);
    c.font.points = points;
    c.font.bold = true;
    c.align = Align::Center;
    c.enabled = false;
    c.maxLength = 6;
    paint(c, colors::white);
    boxes_.add(c.name, index);
    return c;
}

Control &LayoutFrame::fixedLabel(std::string name, std::string caption, int index, int l, int t,
                                 int w, int h, double points)
{
    Control &c = label(std::move(name), std::move(caption), l, t, w, h, index);
    c.font.points = points;
    c.font.bold = true;
    c.foreColor = kInk;
    c.align = Align::Center;
    c.mouseTransparent = true;
    return c;
}

Control &LayoutFrame::questionLine(int l, int t, int w, int h)
{
    Control &q = label("questionbox", "", l, t, w, h);
    q.font.points = 36;
    q.font.bold = true;
    q.foreColor = kInk;
    q.backColor = colors::white;
    q.border = true;
    q.align = Align::Center;
    return q;
}

void LayoutFrame::halo()
{
    halo_ =
        &shape("halo", ShapeKind::RoundedRectangle, rgb(255, 140, 0), rgb(230, 100, 0), 0, 0, 0, 0);
    halo_->visible = false;
    halo_->mouseTransparent = true;
}

void LayoutFrame::paint(Control &box, std::uint32_t back)
{
    box.backColor = back;
    // Dark ink reads on every colour the boxes take except full red.
    box.foreColor = back == colors::red ? colors::white : kInk;
}

const LayoutStep *LayoutFrame::waiting() const
{
    return inQuestion_ && current_ < steps_.size() ? &steps_[current_] : nullptr;
}

void LayoutFrame::onOpened()
{
    announceBestTime(platform(), progress(), &(progress().*best_));
    setEnabled("Command1", true);
    setFocus("Command1");
}

void LayoutFrame::onClick(const std::string &name, int index)
{
    (void)index;
    if (name == "Command1") {
        if (ctl("Command1").enabled)
            start();
    } else if (name == "Command10") {
        if (ctl("Command10").visible)
            next();
    } else if (name == "Command13") {
        exitToMenu();
    }
}

void LayoutFrame::onTimer(const std::string &name)
{
    if (name == "Timer1")
        run_.tick();
}

void LayoutFrame::onKeyPress(const std::string &name, int index, int &key)
{
    if (!boxes_.contains(name, index))
        return;
    Control &box = ctl(name, index);
    // A box that is not waiting for an entry takes no keys.
    if (!box.enabled) {
        key = 0;
        return;
    }
    // Untidy text ("07", "12a", a lone "-") is wiped and the key that found it goes nowhere:
    // the pupil starts the box again. Only an empty box lets the key in.
    const bool hadText = !box.caption.empty();
    const bool submitted = filterAnswerKey(box.caption, key).has_value();
    if (hadText && box.caption.empty()) {
        key = 0;
        return;
    }
    const LayoutStep *step = waiting();
    // The entry is compared as the number it reads as, not cut to 16 bits: a 3-digit by 2-digit
    // product reaches 35341.
    if (submitted && step && step->index == index && name == step->box)
        check(box, readNumber(box.caption));
}

void LayoutFrame::onScreenKey(int key)
{
    // A key that finds no box (the focus strayed from the box) belongs to the box that is
    // waiting: the key goes in there and the focus is asked back to it.
    const LayoutStep *step = waiting();
    if (!step)
        return;
    const std::string name = step->box;
    const int index = step->index;
    setFocus(name, index);
    onKeyPress(name, index, key);
    if (key != 0 && key != kEnterKey)
        applyKey(ctl(name, index), key);
}

void LayoutFrame::start()
{
    if (clearing_ == Clearing::BeforeQuestion) {
        caption("questionbox").clear();
        boxes_.clear(*this);
    }
    run_.begin();
    newQuestion();
}

void LayoutFrame::next()
{
    if (clearing_ == Clearing::BeforeQuestion)
        boxes_.clear(*this);
    if (run_.running() && run_.score() < kQuestions)
        newQuestion();
}

void LayoutFrame::newQuestion()
{
    setVisible("Command10", false);
    const auto drawDigits = [this](const std::vector<Range> &ranges) {
        std::vector<int> digits;
        for (const Range &r : ranges)
            digits.push_back(int(draw() * (r.hi - r.lo + 1)) + r.lo);
        return digits;
    };
    const std::vector<int> a = drawDigits(sizes_.a);
    const std::vector<int> b = drawDigits(sizes_.b);
    caption("questionbox") = numberText(numberOf(a)) + "x" + numberText(numberOf(b));
    caption("text17") = std::string(kSetOut);
    steps_ = plan(a, b);
    inQuestion_ = true;
    questionStarted();
    open(0);
}

void LayoutFrame::open(std::size_t step)
{
    current_ = step;
    const LayoutStep &s = steps_[step];
    Control &box = ctl(s.box, s.index);
    box.enabled = true;
    paint(box, colours(s.stage).waiting);
    setFocus(s.box, s.index);
    if (halo_) {
        const int ring = std::clamp(box.height / 7, 60, 110);
        halo_->left = box.left - ring;
        halo_->top = box.top - ring;
        halo_->width = box.width + 2 * ring;
        halo_->height = box.height + 2 * ring;
        halo_->visible = true;
    }
    if (step > 0 && steps_[step - 1].stage != s.stage)
        caption("text17") =
            std::string(s.stage == LayoutStep::Stage::Work ? kWorkGrid : kWorkAnswer);
    stepOpened(s);
}

void LayoutFrame::check(Control &box, double value)
{
    const LayoutStep &s = steps_[current_];
    if (value != s.expected) {
        box.caption.clear();
        run_.penalty(2);
        return;
    }
    platform().beep();
    box.enabled = false;
    const std::uint32_t answered = colours(s.stage).answered;
    if (answered != kDefaultColor)
        paint(box, answered);
    stepAnswered(s);
    if (current_ + 1 < steps_.size()) {
        open(current_ + 1);
        return;
    }
    if (completingColour() != kDefaultColor)
        paint(box, completingColour());
    questionDone();
}

void LayoutFrame::questionDone()
{
    inQuestion_ = false;
    if (halo_)
        halo_->visible = false;
    if (clearing_ == Clearing::AfterQuestion) {
        caption("questionbox").clear();
        boxes_.clear(*this);
    }
    caption("text17") = std::string(praiseFor(draw()));
    setVisible("Command10", true);
    setFocus("Command10");
    if (run_.scorePoint())
        endRun();
}

void LayoutFrame::endRun()
{
    setVisible("Command10", false);
    if (run_.finish(platform(), progress(), &(progress().*best_)) == kYes)
        start();
    else
        exitToMenu();
}

void LayoutFrame::exitToMenu()
{
    run_.stop();
    handOver("mulmenu");
}

} // namespace nb
