#pragma once
// The missing-divisor drill: dividend ÷ [?] = quotient; the pupil types the hidden divisor into
// text3.
#include "drills/DrillFrame.h"

namespace nb {

class MakeTenDiv : public DrillFrame
{
public:
    // The division facts of Division 1: quotients 1 to 10, divisors 2 to 10.
    static constexpr FactorRange kQuotient{1, 10};
    static constexpr FactorRange kDivisor{2, 10};

    explicit MakeTenDiv(App &app);

protected:
    void showQuestion(Draws &draws) override;
    bool isRight(double typed) const override { return typed == hidden_; }
    Value *bestSlot() override;

private:
    int hidden_ = 0;
};

} // namespace nb
