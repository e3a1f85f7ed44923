#include "drills/maketentimes.h"

#include "drills/BestTimeCheck.h"

namespace nb {

MakeTenTimes::MakeTenTimes(App &app)
    : DrillFrame(app, {"\u00d7", "text3", "mulmenu", rgb(255, 230, 200)})
{}

void MakeTenTimes::showQuestion(Draws &draws)
{
    const FactorPair f = drawFactors(draws, kShown, kHidden, flagBit(progress().MulNegatives) == 1);
    hidden_ = f.second;
    show("text1", f.first);
    show("Text5", f.first * f.second);
}

Value *MakeTenTimes::bestSlot()
{
    static constexpr BestSlot kSlots[] = {&PupilProgress::MakeTenTimesBestA,
                                          &PupilProgress::MakeTenTimesBestB};
    return slotIn(kSlots, flagBit(progress().MulNegatives));
}

} // namespace nb
