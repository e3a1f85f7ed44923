#include "written/times2.h"

#include "core/NumberText.h"

namespace nb {

namespace {
constexpr int kSignColumn = 1, kHundreds = 3, kTens = 4, kUnits = 5;
constexpr int kAnswerRow = 4, kCarryRow = 5;
} // namespace

Times2::Times2(App &app)
    : CarryMethod(app, &PupilProgress::Mul21Best, "mulmenu")
{
    headings(kHundreds, 1, {"H", "T", "U"});
    digitLabel("text3", kTens, 2);
    digitLabel("Text5", kUnits, 2);
    signLabel("\u00d7", kSignColumn, 3);
    digitLabel("text2", kUnits, 3);
    rules(kAnswerRow, kSignColumn, kUnits, true);
    answerBox("Text13", "hundreds", kHundreds, kAnswerRow);
    answerBox("Text12", "tens", kTens, kAnswerRow);
    answerBox("Text11", "units", kUnits, kAnswerRow);
    carryBox("Text15", "carry into the tens", kTens, kCarryRow);
}

void Times2::newQuestion()
{
    tens_ = int(draw() * 8 + 2);
    caption("text3") = numberText(tens_);
    units_ = int(draw() * 10);
    caption("Text5") = numberText(units_);
    multiplier_ = int(draw() * 6 + 4);
    caption("text2") = numberText(multiplier_);
    product_ = (tens_ * 10 + units_) * multiplier_;
    answerWidth_ = product_ <= 99 ? 2 : 3;
    beginQuestion(units_ * multiplier_, tens_ * multiplier_, 0);
}

void Times2::checkStep()
{
    const Entered &e = entered_;
    switch (step_) {
    case 5:
        // Whatever the tens column carried is the hundreds digit.
        if (product_ - 10 * e.tens - e.units == 100 * e.hundreds)
            return completeWith("Text13");
        return miss();
    case 3:
        if ((tensTotal_ + e.carryToTens) % 10 != e.tens)
            return miss();
        if (answerWidth_ == 3)
            return moveTo(5);
        return completeWith("Text12");
    default:
        return checkUnitsColumn();
    }
}

} // namespace nb
