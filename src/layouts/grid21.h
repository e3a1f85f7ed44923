#pragma once
// 2-digit by 1-digit grid multiplication. Five questions against the stopwatch; the best time is
// shared with the other multiplication screens of this size.
#include "layouts/GridFrame.h"

namespace nb {

class Grid21 : public GridFrame
{
public:
    explicit Grid21(App &app);
};

} // namespace nb
