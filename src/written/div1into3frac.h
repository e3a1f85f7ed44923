#pragma once
// Short division of a three-digit number by one digit, ending with the remainder as a fraction of
// the divisor, then in its simplest form.
#include "written/ShortDivision.h"

namespace nb {

class Div1Into3Frac : public ShortDivision
{
public:
    explicit Div1Into3Frac(App &app);
};

} // namespace nb
