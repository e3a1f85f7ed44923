#pragma once
// The missing-divisor drill: dividend ÷ [?] = quotient; the pupil types the hidden divisor into
// text3.
#include "drills/MissingFactorDrill.h"

namespace nb {

class MakeTenDiv : public MissingFactorDrill
{
public:
    explicit MakeTenDiv(App &app);
};

} // namespace nb
