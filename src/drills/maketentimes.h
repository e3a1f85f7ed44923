#pragma once
// The missing-factor drill: a × [?] = product; the pupil types the hidden factor into text3.
#include "drills/DrillFrame.h"

namespace nb {

class MakeTenTimes : public DrillFrame
{
public:
    // The tables up to 10 × 10 that the times tables drill practises, asked the other way round.
    static constexpr FactorRange kShown{1, 10};
    static constexpr FactorRange kHidden{1, 10};

    explicit MakeTenTimes(App &app);

protected:
    void showQuestion(Draws &draws) override;
    bool isRight(double typed) const override { return typed == hidden_; }
    Value *bestSlot() override;

private:
    int hidden_ = 0;
};

} // namespace nb
