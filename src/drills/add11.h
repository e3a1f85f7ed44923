#pragma once
// The addition drill: ten sums of the level chosen on the addition menu, with the negatives and
// decimals options.
#include "drills/SumDrill.h"

namespace nb {

// The question types of addition levels 1 to 4.
extern const QuestionLevels kAdditionLevels;

class Add11 : public SumDrill
{
public:
    explicit Add11(App &app);
};

} // namespace nb
