#pragma once
// Short multiplication of a three-digit number by one digit, box by box with carry boxes, five
// questions against the stopwatch.
#include "written/CarryMethod.h"

namespace nb {

class Times : public CarryMethod
{
public:
    explicit Times(App &app);

protected:
    void newQuestion() override;

private:
    int hundreds_ = 0, tens_ = 0, units_ = 0, multiplier_ = 0;
    int product_ = 0;
};

} // namespace nb
