#pragma once
// 3-digit by 1-digit grid multiplication. Five questions against the stopwatch; the best time is
// shared with the other multiplication screens of this size.
#include "layouts/GridFrame.h"

namespace nb {

class Grid31 : public GridFrame
{
public:
    explicit Grid31(App &app);
};

} // namespace nb
