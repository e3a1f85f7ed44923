#include "written/sub33b.h"

namespace nb {

namespace {
constexpr int kExchangeRow = 1, kTopRow = 2, kBottomRow = 3, kAnswerRow = 4;
} // namespace

Sub33b::Sub33b(App &app)
    : AnswerBoxMethod(app, &PupilProgress::ColumnSubBest, "submenu",
                      "Exchanges go in the small boxes. They are not marked.")
{
    headings(kHundredsColumn, 0, {"H", "T", "U"});
    digitLabel("Label1", kHundredsColumn, kTopRow);
    digitLabel("Label2", kTensColumn, kTopRow);
    digitLabel("Text5", kUnitsColumn, kTopRow);
    signLabel("\u2212", kSignColumn, kBottomRow);
    digitLabel("text10", kHundredsColumn, kBottomRow);
    digitLabel("text4", kTensColumn, kBottomRow);
    digitLabel("text2", kUnitsColumn, kBottomRow);

    // A top digit that gives is rewritten above its column; the "1" that comes in goes just in
    // front of the digit that receives it,
    constexpr int size = 560, small = 380;
    for (const auto &[name, column] :
         {std::pair{"Text16", kHundredsColumn}, std::pair{"Text15", kTensColumn}})
        noteBox(name, std::string("new ") + (column == kHundredsColumn ? "hundreds" : "tens"),
                cellX(column) + (kCell - size) / 2, cellY(kExchangeRow) + kCell - size - 60, size);
    // standing on the line between two top digits, high in the square like a small written 1,
    // and big enough to click and read.
    noteBox("Text14", "ten in front of the tens", cellX(kTensColumn) - small / 2,
            cellY(kTopRow) + 70, small);
    noteBox("text18", "ten in front of the units", cellX(kUnitsColumn) - small / 2,
            cellY(kTopRow) + 70, small);

    rules(kAnswerRow, kSignColumn, kUnitsColumn, false);
    digitBox("Text13", "hundreds", kHundredsColumn, kAnswerRow);
    digitBox("Text12", "tens", kTensColumn, kAnswerRow);
    digitBox("Text11", "units", kUnitsColumn, kAnswerRow);
}

void Sub33b::newQuestion()
{
    const int topHundreds = drawDigit("Label1", 9, 1);
    const int topTens = drawDigit("Label2", 10);
    const int topUnits = drawDigit("Text5", 10);
    // Always below the top hundreds digit, so the difference is at least 1.
    const int bottomHundreds = drawDigit("text10", topHundreds);
    const int bottomTens = drawDigit("text4", 10);
    const int bottomUnits = drawDigit("text2", 10);
    // The bottom number is written as a number is written: 81, not 081.
    if (bottomHundreds == 0) {
        caption("text10").clear();
        if (bottomTens == 0)
            caption("text4").clear();
    }
    const int difference = (topHundreds - bottomHundreds) * 100 + (topTens - bottomTens) * 10 +
                           (topUnits - bottomUnits);
    beginAnswer(answerDigits(difference, {"Text11", "Text12", "Text13"}));
}

} // namespace nb
