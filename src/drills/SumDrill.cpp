#include "drills/SumDrill.h"

#include "activity/BestTimeCheck.h"

namespace nb {

SumQuestion drawSumQuestion(QuestionLevel level, bool decimals, bool negatives, Draws &draws)
{
    SumQuestion q;
    q.type = level.size() > 1 ? draws.upTo(int(level.size())) : 1;
    const Operands whole = level[std::size_t(q.type - 1)].draw(draws);
    q.first = whole.first;
    q.second = whole.second;
    if (decimals) {
        // operand ← (operand × 10 + 1 − d) / 10 with d from 0 to 8: a tenth above it down to
        // seven tenths below, one decimal place.
        for (double *v : {&q.first, &q.second})
            *v = (*v * 10 + 1 - draws.below(9)) / 10;
    }
    if (negatives) {
        const bool negateFirst = draws.heads();
        const bool negateSecond = draws.heads();
        if (negateFirst)
            q.first = -q.first;
        if (negateSecond)
            q.second = -q.second;
    }
    return q;
}

SumDrill::SumDrill(App &app, Look look, Rules rules)
    : DrillFrame(app, std::move(look))
    , rules_(std::move(rules))
{}

int SumDrill::questionLevel(const Value &level)
{
    const int i = levelIndex(level, 4);
    return i < 0 ? 0 : i;
}

void SumDrill::showQuestion(Draws &draws)
{
    const PupilProgress &p = progress();
    const SumQuestion q =
        drawSumQuestion(rules_.levels[std::size_t(questionLevel(p.*rules_.level))],
                        flagBit(p.*rules_.decimals) == 1, flagBit(p.*rules_.negatives) == 1, draws);
    show("text1", q.first);
    show("text3", q.second);
}

bool SumDrill::isRight(double typed) const
{
    return closeEnough(shown("text1") + rules_.sign * shown("text3"), typed);
}

Value *SumDrill::bestSlot()
{
    const PupilProgress &p = progress();
    return slotIn(rules_.slots, optionFamily(p.*rules_.negatives, p.*rules_.decimals),
                  levelIndex(p.*rules_.level, 4));
}

} // namespace nb
