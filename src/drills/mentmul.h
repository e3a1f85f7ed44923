#pragma once
// The mental times drill: a two-digit number from 10 to 59 times 1 to 10.
#include "drills/mul11.h"

namespace nb {

class MentMul : public Mul11
{
public:
    static constexpr FactorRange kFirst{10, 59};
    static constexpr FactorRange kSecond{1, 10};

    explicit MentMul(App &app);
};

} // namespace nb
