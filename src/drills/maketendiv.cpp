#include "drills/maketendiv.h"

#include "drills/BestTimeCheck.h"

namespace nb {

MakeTenDiv::MakeTenDiv(App &app)
    : DrillFrame(app, {"\u00f7", "text3", "divmenu", rgb(235, 220, 255)})
{}

void MakeTenDiv::showQuestion(Draws &draws)
{
    const FactorPair f =
        drawFactors(draws, kQuotient, kDivisor, flagBit(progress().DivNegatives) == 1);
    hidden_ = f.second;
    show("text1", f.first * f.second);
    show("Text5", f.first);
}

Value *MakeTenDiv::bestSlot()
{
    static constexpr BestSlot kSlots[] = {&PupilProgress::MakeTenDivBest,
                                          &PupilProgress::MakeTenDivBest2};
    return slotIn(kSlots, flagBit(progress().DivNegatives));
}

} // namespace nb
