#pragma once
// The missing-factor drill: a × [?] = product; the pupil types the hidden factor into text3.
#include "drills/MissingFactorDrill.h"

namespace nb {

class MakeTenTimes : public MissingFactorDrill
{
public:
    explicit MakeTenTimes(App &app);
};

} // namespace nb
