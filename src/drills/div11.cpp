#include "drills/div11.h"

#include "activity/BestTimeCheck.h"

namespace nb {

const DivisionLevel Div11::kLevels[2] = {
    // The 2 to 10 times tables read backwards (dividing by 1 teaches nothing): 56 ÷ 7.
    {{1, 10}, {2, 10}},
    // Past the tables, quotients 11 to 20 found by splitting tens and units: 84 ÷ 4.
    {{11, 20}, {2, 10}},
};

namespace {
// [negatives][level - 1]
constexpr BestSlot kSlots[2][2] = {{&PupilProgress::DivBest1, &PupilProgress::DivBest2},
                                   {&PupilProgress::DivBest3, &PupilProgress::DivBest4}};
} // namespace

Div11::Div11(App &app)
    : DrillFrame(app, {"\u00f7", "Text5", "divmenu", rgb(235, 220, 255)})
{}

void Div11::showQuestion(Draws &draws)
{
    const int level = levelIndex(progress().DivLevel, 2);
    const DivisionLevel &rule = kLevels[level < 0 ? 0 : level];
    const FactorPair f =
        drawFactors(draws, rule.quotient, rule.divisor, flagBit(progress().DivNegatives) == 1);
    show("text1", f.first * f.second);
    show("text3", f.second);
}

bool Div11::isRight(double typed) const
{
    return typed * shown("text3") == shown("text1");
}

Value *Div11::bestSlot()
{
    return slotIn(kSlots, flagBit(progress().DivNegatives), levelIndex(progress().DivLevel, 2));
}

} // namespace nb
