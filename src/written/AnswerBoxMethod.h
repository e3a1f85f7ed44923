#pragma once
// The answer-box form of a written method: the sum is set out under its column headings and the
// pupil fills in the answer digits in any order, with carries or exchanges in small boxes that are
// never marked, then presses Enter or CHECK to have the whole answer marked. Right digits turn
// green and stay; wrong digits turn red and cost two seconds each, and typing into a red box
// starts it afresh. The question is complete when every digit is right.
#include "written/WrittenFrame.h"

#include <initializer_list>
#include <string>
#include <vector>

namespace nb {

class AnswerBoxMethod : public WrittenFrame
{
public:
    void onKeyPress(const std::string &name, int index, int &key) override;
    void onChange(const std::string &name, int index) override;

    static constexpr std::uint32_t kRightBox = rgb(170, 230, 170);
    static constexpr std::uint32_t kWrongBox = rgb(230, 60, 60);
    static constexpr std::uint32_t kNoteBox = colors::white;

protected:
    // `hint` says what the small boxes are for.
    AnswerBoxMethod(App &app, Value PupilProgress::*best, std::string menu, std::string hint);

    // One answer digit: its box, the right digit and whether the box must be filled before the
    // answer is marked (hundreds, tens and units; a thousands box left empty is a wrong digit).
    // A place in front of the answer's first digit (kLeading) is right left empty or with a 0,
    // as a child may write 031 or 31.
    static constexpr int kLeading = -1;
    struct Digit
    {
        std::string box;
        int value = 0;
        bool required = true;
    };
    // The digits of `answer` in `boxes` (units first), with kLeading above its first digit.
    static std::vector<Digit> answerDigits(int answer, std::initializer_list<const char *> boxes);

    // An answer digit box filling its square, and a small box for the pupil's own notes.
    void digitBox(std::string name, std::string spoken, int column, int row);
    Control &noteBox(std::string name, std::string spoken, int left, int top, int size);

    // Starts a question whose answer digits (units first) are given.
    void beginAnswer(std::vector<Digit> digits);

    void submit(const std::string &box, int value) override;
    void onPageClick(const std::string &name, int index) override;

private:
    enum class Mark { Open, Right, Wrong };

    void markAnswer();
    int digitIndex(const std::string &box) const;
    // An open box: yellow and taking input.
    void reopen(std::size_t i);

    std::vector<Digit> digits_;
    std::vector<Mark> marks_;
    std::vector<std::string> notes_;
};

} // namespace nb
