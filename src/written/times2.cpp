#include "written/times2.h"

namespace nb {

Times2::Times2(App &app)
    : CarryMethod(app, &PupilProgress::Mul21Best, "mulmenu")
{
    headings(kHundredsColumn, 1, {"H", "T", "U"});
    digitLabel("text3", kTensColumn, 2);
    digitLabel("Text5", kUnitsColumn, 2);
    signLabel("\u00d7", kSignColumn, 3);
    digitLabel("text2", kUnitsColumn, 3);
    buildAnswerRows(4, false);
}

void Times2::newQuestion()
{
    tens_ = drawDigit("text3", 8, 2);
    units_ = drawDigit("Text5", 10);
    multiplier_ = drawDigit("text2", 6, 4);
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
