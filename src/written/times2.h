#pragma once
// Short multiplication of a two-digit number by one digit, box by box with a carry box for the
// tens, five questions against the stopwatch. The carry out of the tens goes straight into the
// hundreds, so there is no second carry step and no thousands.
#include "written/CarryMethod.h"

namespace nb {

class Times2 : public CarryMethod
{
public:
    explicit Times2(App &app);

protected:
    void newQuestion() override;
    void checkStep() override;

private:
    int tens_ = 0, units_ = 0, multiplier_ = 0;
    int product_ = 0;
};

} // namespace nb
