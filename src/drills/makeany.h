#pragma once
// Make any number: a number, a box and a drawn total from 11 to 30; the pupil types what the number
// needs to make the total.
#include "drills/MakeDrill.h"

namespace nb {

class MakeAny : public MakeDrill
{
public:
    explicit MakeAny(App &app);
};

} // namespace nb
