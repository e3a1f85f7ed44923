#include "written/times.h"

namespace nb {

Times::Times(App &app)
    : CarryMethod(app, &PupilProgress::Mul31Best, "mulmenu")
{
    headings(kThousandsColumn, 1, {"Th", "H", "T", "U"});
    digitLabel("text1", kHundredsColumn, 2);
    digitLabel("text3", kTensColumn, 2);
    digitLabel("Text5", kUnitsColumn, 2);
    signLabel("\u00d7", kSignColumn, 3);
    digitLabel("text2", kUnitsColumn, 3);
    buildAnswerRows(4, true);
}

void Times::newQuestion()
{
    hundreds_ = drawDigit("text1", 9, 1);
    tens_ = drawDigit("text3", 10);
    units_ = drawDigit("Text5", 10);
    multiplier_ = drawDigit("text2", 9, 1);
    product_ = (hundreds_ * 100 + tens_ * 10 + units_) * multiplier_;
    answerWidth_ = product_ <= 999 ? 3 : 4;
    beginQuestion(units_ * multiplier_, tens_ * multiplier_, hundreds_ * multiplier_);
}

} // namespace nb
