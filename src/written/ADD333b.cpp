#include "written/ADD333b.h"

namespace nb {

namespace {
// The digit labels in drawing order: each number's hundreds, tens and units.
constexpr const char *kDigitLabels[9] = {"text1", "text3",  "Text5",  "text10", "text4",
                                         "text2", "text20", "text19", "text18"};
constexpr int kAnswerRow = 4;
} // namespace

Add333b::Add333b(App &app)
    : AnswerBoxMethod(app, &PupilProgress::ColumnAddBest, "addmenu",
                      "Carries go in the small boxes. They are not marked.")
{
    headings(kThousandsColumn, 0, {"Th", "H", "T", "U"});
    for (int i = 0; i < 9; ++i)
        digitLabel(kDigitLabels[i], kHundredsColumn + i % 3, 1 + i / 3);
    signLabel("+", kSignColumn, 3);
    rules(kAnswerRow, kSignColumn, kUnitsColumn, true);
    digitBox("Text14", "thousands", kThousandsColumn, kAnswerRow);
    digitBox("Text13", "hundreds", kHundredsColumn, kAnswerRow);
    digitBox("Text12", "tens", kTensColumn, kAnswerRow);
    digitBox("Text11", "units", kUnitsColumn, kAnswerRow);
    // Carries go under the rule, at the top of the square of the column they go into.
    constexpr int size = 560;
    noteBox("Text16", "carry into the hundreds", cellX(kHundredsColumn) + (kCell - size) / 2,
            cellY(kAnswerRow + 1) + 120, size);
    noteBox("Text15", "carry into the tens", cellX(kTensColumn) + (kCell - size) / 2,
            cellY(kAnswerRow + 1) + 120, size);
}

void Add333b::newQuestion()
{
    // A number's hundreds digit is 1 to 9, its tens and units 0 to 9.
    int total = 0;
    for (int i = 0; i < 9; ++i) {
        static constexpr int kPlace[] = {100, 10, 1};
        const int d =
            i % 3 == 0 ? drawDigit(kDigitLabels[i], 9, 1) : drawDigit(kDigitLabels[i], 10);
        total += d * kPlace[i % 3];
    }
    beginAnswer(answerDigits(total, {"Text11", "Text12", "Text13", "Text14"}));
}

} // namespace nb
