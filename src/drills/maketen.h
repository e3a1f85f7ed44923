#pragma once
// Make ten: a number, a box and 10; the pupil types what the number needs to make 10.
#include "drills/MakeDrill.h"

namespace nb {

class MakeTen : public MakeDrill
{
public:
    explicit MakeTen(App &app);
};

} // namespace nb
