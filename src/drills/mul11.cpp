#include "drills/mul11.h"

namespace nb {

Mul11::Mul11(App &app)
    : Mul11(app, kFactors, kFactors, &PupilProgress::MulBest)
{}

Mul11::Mul11(App &app, FactorRange first, FactorRange second, BestSlot slot)
    : DrillFrame(app, {"\u00d7", "Text5", "mulmenu", rgb(255, 230, 200)})
    , first_(first)
    , second_(second)
    , slot_(slot)
{}

void Mul11::showQuestion(Draws &draws)
{
    const FactorPair f = drawFactors(draws, first_, second_, false);
    show("text1", f.first);
    show("text3", f.second);
}

bool Mul11::isRight(double typed) const
{
    return typed == shown("text1") * shown("text3");
}

} // namespace nb
