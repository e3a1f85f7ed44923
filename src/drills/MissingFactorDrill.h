#pragma once
// The missing-number drills of multiplication and division: two whole numbers are drawn (each
// negated on its own coin toss when the menu's negatives box is ticked) and the question is built
// on their product, with the second number hidden in the box text3:
//   a × [b] = a·b   or   a·b ÷ [b] = a.
// The typed number must equal the hidden one.
#include "drills/DrillFrame.h"

#include <array>

namespace nb {

class MissingFactorDrill : public DrillFrame
{
public:
    struct Rules
    {
        bool division; // a·b ÷ [b] = a instead of a × [b] = a·b
        FactorRange shown;
        FactorRange hidden;
        Value PupilProgress::*negatives;
        std::array<BestSlot, 2> slots; // negatives off, on
    };

    MissingFactorDrill(App &app, std::string menu, std::uint32_t theme, Rules rules);

protected:
    void showQuestion(Draws &draws) override;
    bool isRight(double typed) const override { return typed == hidden_; }
    Value *bestSlot() override;

private:
    Rules rules_;
    int hidden_ = 0;
};

} // namespace nb
