#pragma once
// Short division of a three-digit number by one digit, carried on to one or two decimal places.
#include "written/ShortDivision.h"

namespace nb {

class Div1Into3Dec : public ShortDivision
{
public:
    explicit Div1Into3Dec(App &app);
};

} // namespace nb
