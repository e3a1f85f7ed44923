#pragma once
// Take away to make ten: a number, a box and 10; the pupil types what to take away to leave 10.
#include "drills/MakeDrill.h"

namespace nb {

class MakeTenSub : public MakeDrill
{
public:
    explicit MakeTenSub(App &app);
};

} // namespace nb
