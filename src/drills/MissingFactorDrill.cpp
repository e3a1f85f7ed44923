#include "drills/MissingFactorDrill.h"

#include "activity/BestTimeCheck.h"

namespace nb {

MissingFactorDrill::MissingFactorDrill(App &app, std::string menu, std::uint32_t theme, Rules rules)
    : DrillFrame(app, {rules.division ? "\u00f7" : "\u00d7", "text3", std::move(menu), theme})
    , rules_(rules)
{}

void MissingFactorDrill::showQuestion(Draws &draws)
{
    const FactorPair f =
        drawFactors(draws, rules_.shown, rules_.hidden, flagBit(progress().*rules_.negatives) == 1);
    hidden_ = f.second;
    show(rules_.division ? "text1" : "Text5", f.first * f.second);
    show(rules_.division ? "Text5" : "text1", f.first);
}

Value *MissingFactorDrill::bestSlot()
{
    return slotIn(rules_.slots, flagBit(progress().*rules_.negatives));
}

} // namespace nb
