#pragma once
// Take away to make any number: a number, a box and a drawn result from 11 to 30; the pupil types
// what to take away to leave it.
#include "drills/MakeDrill.h"

namespace nb {

class MakeAnySub : public MakeDrill
{
public:
    explicit MakeAnySub(App &app);
};

} // namespace nb
