#pragma once
// Long multiplication of a 3-digit number by a 2-digit number, five questions against the
// stopwatch.
#include "written/LongMultiplication.h"

namespace nb {

class T32 : public LongMultiplication
{
public:
    explicit T32(App &app);
};

} // namespace nb
