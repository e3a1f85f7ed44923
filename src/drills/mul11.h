#pragma once
// The times tables drill: a × b for a and b from 1 to 10; the product must be exact.
#include "drills/DrillFrame.h"

namespace nb {

class Mul11 : public DrillFrame
{
public:
    static constexpr FactorRange kFactors{1, 10};

    explicit Mul11(App &app);

protected:
    // A product drill with other factor ranges and slot (the mental times drill).
    Mul11(App &app, FactorRange first, FactorRange second, BestSlot slot);

    void showQuestion(Draws &draws) override;
    bool isRight(double typed) const override;
    Value *bestSlot() override { return &(progress().*slot_); }

private:
    FactorRange first_;
    FactorRange second_;
    BestSlot slot_;
};

} // namespace nb
