#include "written/AnswerBoxMethod.h"

#include "activity/AnswerBoxFilter.h"
#include "core/NumberText.h"

#include <algorithm>

namespace nb {

namespace {
constexpr const char *kCheck = "Command13";
constexpr const char *kFillIn = "Write the answer, then CHECK.";
constexpr const char *kMissing = "Fill in H, T and U first.";
constexpr const char *kCorrect = "Change the red digits.";
constexpr std::uint32_t kInk = rgb(25, 45, 120);
} // namespace

AnswerBoxMethod::AnswerBoxMethod(App &app, Value PupilProgress::*best, std::string menu,
                                 std::string hint)
    : WrittenFrame(app, best, std::move(menu))
{
    Control &check = button(kCheck, "CHECK", 8000, 5500, 3400, 800);
    check.font.points = 20;
    check.font.bold = true;
    check.backColor = rgb(120, 200, 240);
    check.visible = false;
    sideHint(std::move(hint)).top = 6450;
}

void AnswerBoxMethod::digitBox(std::string name, std::string spoken, int column, int row)
{
    answerBox(std::move(name), std::move(spoken), column, row).maxLength = 1;
}

Control &AnswerBoxMethod::noteBox(std::string name, std::string spoken, int left, int top, int size)
{
    notes_.push_back(name);
    Control &c = answerBox(std::move(name), std::move(spoken), 0, 0);
    c.left = left;
    c.top = top;
    c.width = c.height = size;
    c.font.points = 16;
    c.maxLength = 2;
    return c;
}

std::vector<AnswerBoxMethod::Digit>
AnswerBoxMethod::answerDigits(int answer, std::initializer_list<const char *> boxes)
{
    std::vector<Digit> digits;
    int rest = answer;
    for (const char *box : boxes) {
        const int value = rest > 0 || digits.empty() ? rest % 10 : kLeading;
        digits.push_back({box, value, value != kLeading && digits.size() < 3});
        rest /= 10;
    }
    return digits;
}

void AnswerBoxMethod::beginAnswer(std::vector<Digit> digits)
{
    clearPage();
    digits_ = std::move(digits);
    marks_.assign(digits_.size(), Mark::Open);
    for (std::size_t i = 0; i < digits_.size(); ++i)
        reopen(i);
    for (const std::string &note : notes_) {
        Control &c = ctl(note);
        c.visible = c.enabled = true;
        c.backColor = kNoteBox;
    }
    setVisible(kCheck, true);
    setEnabled(kCheck, true);
    setPrompt(kFillIn);
    setFocus(digits_.front().box);
}

void AnswerBoxMethod::reopen(std::size_t i)
{
    marks_[i] = Mark::Open;
    Control &c = ctl(digits_[i].box);
    c.visible = c.enabled = true;
    c.backColor = kActiveBox;
    c.foreColor = kInk;
}

int AnswerBoxMethod::digitIndex(const std::string &box) const
{
    for (std::size_t i = 0; i < digits_.size(); ++i)
        if (digits_[i].box == box)
            return int(i);
    return -1;
}

void AnswerBoxMethod::onKeyPress(const std::string &name, int index, int &key)
{
    // The box typed in has the focus (the pupil may have clicked it): noted, so that a move
    // on from it is a move the window makes.
    if (index == -1 && isAnswerBox(name))
        setFocus(name);
    // A digit box holds one digit: a digit typed into a full box replaces it, and a red digit
    // is written afresh by the first key other than Enter.
    const int i = digitIndex(name);
    if (index == -1 && i >= 0 && key != kEnterKey) {
        const bool wrong = marks_[std::size_t(i)] == Mark::Wrong;
        if (wrong || (key >= '0' && key <= '9' && !caption(name).empty()))
            caption(name).clear();
        if (wrong)
            reopen(std::size_t(i));
    }
    // Enter asks for the whole answer to be marked, also from a box left empty (a place in
    // front of the answer, where the cursor may stop).
    if (index == -1 && key == kEnterKey && isAnswerBox(name) && caption(name).empty()) {
        key = 0;
        markAnswer();
        return;
    }
    WrittenFrame::onKeyPress(name, index, key);
}

void AnswerBoxMethod::onChange(const std::string &name, int index)
{
    const int i = digitIndex(name);
    if (index != -1 || i < 0)
        return;
    if (marks_[std::size_t(i)] == Mark::Wrong)
        reopen(std::size_t(i));
    // A digit written moves the cursor on to the next empty box to the left, as the method goes
    // from the units upwards; it stops at the hundreds, so that Enter after the last digit of a
    // three-digit answer marks it rather than landing in an empty thousands box.
    if (caption(name).empty())
        return;
    for (std::size_t next = std::size_t(i) + 1; next < std::min<std::size_t>(digits_.size(), 3);
         ++next) {
        if (marks_[next] == Mark::Open && caption(digits_[next].box).empty()) {
            setFocus(digits_[next].box);
            return;
        }
    }
}

void AnswerBoxMethod::submit(const std::string &, int)
{
    markAnswer();
}

void AnswerBoxMethod::onPageClick(const std::string &name, int)
{
    if (name == kCheck)
        markAnswer();
}

void AnswerBoxMethod::markAnswer()
{
    if (questionComplete_ || digits_.empty() || !run().running())
        return;
    // An answer with a required digit missing is not marked yet.
    for (const Digit &d : digits_) {
        if (d.required && caption(d.box).empty()) {
            setPrompt(kMissing);
            setFocus(d.box);
            return;
        }
    }
    int wrong = 0;
    const Digit *firstWrong = nullptr;
    for (std::size_t i = 0; i < digits_.size(); ++i) {
        const Digit &d = digits_[i];
        Control &c = ctl(d.box);
        if (marks_[i] == Mark::Open) {
            const bool right = d.value == kLeading ? c.caption.empty() || c.caption == "0"
                                                   : c.caption == numberText(d.value);
            marks_[i] = right ? Mark::Right : Mark::Wrong;
            c.enabled = !right;
            c.backColor = right ? kRightBox : kWrongBox;
            c.foreColor = right ? kInk : colors::white;
            // Each newly wrong digit costs two seconds; one left unchanged is not marked again.
            wrong += !right;
        }
        if (marks_[i] == Mark::Wrong && !firstWrong)
            firstWrong = &d;
    }
    addPenalty(2 * wrong);
    if (firstWrong) {
        setPrompt(kCorrect);
        setFocus(firstWrong->box);
        return;
    }
    rightEntry();
    for (const std::string &note : notes_)
        setEnabled(note, false);
    setVisible(kCheck, false);
    questionDone();
}

} // namespace nb
