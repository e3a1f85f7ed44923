#pragma once
// Long multiplication of a 2-digit number by a 2-digit number, five questions against the
// stopwatch.
#include "written/LongMultiplication.h"

namespace nb {

class T22 : public LongMultiplication
{
public:
    explicit T22(App &app);
};

} // namespace nb
