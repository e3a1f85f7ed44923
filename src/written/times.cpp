#include "written/times.h"

#include "core/NumberText.h"

namespace nb {

namespace {
constexpr int kSignColumn = 1, kThousands = 2, kHundreds = 3, kTens = 4, kUnits = 5;
constexpr int kAnswerRow = 4, kCarryRow = 5;
} // namespace

Times::Times(App &app)
    : CarryMethod(app, &PupilProgress::Mul31Best, "mulmenu")
{
    headings(kThousands, 1, {"Th", "H", "T", "U"});
    digitLabel("text1", kHundreds, 2);
    digitLabel("text3", kTens, 2);
    digitLabel("Text5", kUnits, 2);
    signLabel("\u00d7", kSignColumn, 3);
    digitLabel("text2", kUnits, 3);
    rules(kAnswerRow, kSignColumn, kUnits, true);
    answerBox("Text14", "thousands", kThousands, kAnswerRow);
    answerBox("Text13", "hundreds", kHundreds, kAnswerRow);
    answerBox("Text12", "tens", kTens, kAnswerRow);
    answerBox("Text11", "units", kUnits, kAnswerRow);
    carryBox("Text16", "carry into the hundreds", kHundreds, kCarryRow);
    carryBox("Text15", "carry into the tens", kTens, kCarryRow);
}

void Times::newQuestion()
{
    hundreds_ = int(draw() * 9 + 1);
    caption("text1") = numberText(hundreds_);
    tens_ = int(draw() * 10);
    caption("text3") = numberText(tens_);
    units_ = int(draw() * 10);
    caption("Text5") = numberText(units_);
    multiplier_ = int(draw() * 9 + 1);
    caption("text2") = numberText(multiplier_);
    product_ = (hundreds_ * 100 + tens_ * 10 + units_) * multiplier_;
    answerWidth_ = product_ <= 999 ? 3 : 4;
    beginQuestion(units_ * multiplier_, tens_ * multiplier_, hundreds_ * multiplier_);
}

} // namespace nb
