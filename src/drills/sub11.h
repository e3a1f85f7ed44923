#pragma once
// The subtraction drill: ten differences of the level chosen on the subtraction menu, with the
// negatives and decimals options.
#include "drills/SumDrill.h"

namespace nb {

// The question types of subtraction levels 1 to 4.
extern const QuestionLevels kSubtractionLevels;

class Sub11 : public SumDrill
{
public:
    explicit Sub11(App &app);
};

} // namespace nb
