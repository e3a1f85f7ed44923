#pragma once
// The division drill: a dividend and a divisor with a whole-number quotient; Division 1 and 2
// from the division menu, with the negatives option.
#include "drills/DrillFrame.h"

namespace nb {

struct DivisionLevel
{
    FactorRange quotient;
    FactorRange divisor;
};

class Div11 : public DrillFrame
{
public:
    // Indexed by DivLevel - 1; another level gets level 1's questions and no best-time slot.
    static const DivisionLevel kLevels[2];

    explicit Div11(App &app);

protected:
    void showQuestion(Draws &draws) override;
    bool isRight(double typed) const override;
    Value *bestSlot() override;
};

} // namespace nb
