#pragma once
// The shape the addition and subtraction drills share: four levels, each a table of question
// types. A question draws its type (when the level has more than one, each equally likely), then
// its two whole operands, then the decimals option moves each operand to a nearby tenth, then the
// negatives option negates each operand on its own coin toss. Answers are checked from the
// displayed numbers with the 0.01 tolerance.
#include "drills/DrillFrame.h"

#include <array>
#include <span>

namespace nb {

struct Operands
{
    int first = 0;
    int second = 0;
};

struct QuestionType
{
    const char *practises;
    Operands (*draw)(Draws &);
};
using QuestionLevel = std::span<const QuestionType>;
using QuestionLevels = std::array<QuestionLevel, 4>;

struct SumQuestion
{
    int type = 1; // from 1, as listed in the level's table
    double first = 0;
    double second = 0;
};

inline int tensDigit(int v)
{
    return v / 10 % 10;
}
inline int unitsDigit(int v)
{
    return v % 10;
}

// One question of a level: the type draw, the operands, then the options, in that order.
SumQuestion drawSumQuestion(QuestionLevel level, bool decimals, bool negatives, Draws &draws);

class SumDrill : public DrillFrame
{
public:
    struct Rules
    {
        const QuestionLevels &levels;
        int sign; // +1: the answer is first + second; -1: first - second
        Value PupilProgress::*level;
        Value PupilProgress::*negatives;
        Value PupilProgress::*decimals;
        // [option family][level - 1]: neither, negatives only, decimals only, both.
        std::array<std::array<BestSlot, 4>, 4> slots;
    };

    SumDrill(App &app, Look look, Rules rules);

    // The levels' index from 0 for a chosen level; a level other than 1 to 4 gets level 1's
    // questions (and no best-time slot).
    static int questionLevel(const Value &level);

protected:
    void showQuestion(Draws &draws) override;
    bool isRight(double typed) const override;
    Value *bestSlot() override;

private:
    Rules rules_;
};

} // namespace nb
