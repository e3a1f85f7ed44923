#pragma once
// Short division of a three-digit number by one digit, ending with the remainder after "r".
#include "written/ShortDivision.h"

namespace nb {

class Div1Into3WithRemSum : public ShortDivision
{
public:
    explicit Div1Into3WithRemSum(App &app);
};

} // namespace nb
