#pragma once
// The "make a number" drills: a number, a box and a total (a + [?] = total), or their subtraction
// twins (a - [?] = total). The pupil types the missing number into text3; the total shows in
// Text5. The options and best-time slots are those of the menu's negatives and decimals boxes.
#include "drills/DrillFrame.h"

#include <array>

namespace nb {

struct MakeQuestion
{
    double total = 10;
    double shown = 0;  // the number in text1
    double answer = 0; // the missing number
};

// Draws a question. The total is 10, or drawn from 11 to 30; then the number to complete, m, is
// drawn by the options; the addition form shows m, the subtraction twin shows 2 × total - m, so
// that both ask for the same missing number, total - m.
MakeQuestion drawMakeQuestion(bool drawnTotal, bool subtract, bool negatives, bool decimals,
                              Draws &draws);

class MakeDrill : public DrillFrame
{
public:
    struct Rules
    {
        bool drawnTotal;
        bool subtract;
        Value PupilProgress::*negatives;
        Value PupilProgress::*decimals;
        // By option family: neither, negatives only, decimals only, both.
        std::array<BestSlot, 4> slots;
    };

    MakeDrill(App &app, std::string menu, std::uint32_t theme, Rules rules);

protected:
    void showQuestion(Draws &draws) override;
    bool isRight(double typed) const override;
    Value *bestSlot() override;

private:
    Rules rules_;
};

} // namespace nb
