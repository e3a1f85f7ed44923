#pragma once
// 2-digit by 2-digit grid multiplication. Five questions against the stopwatch; the best time is
// shared with the other multiplication screens of this size.
#include "layouts/GridFrame.h"

namespace nb {

class Grid22 : public GridFrame
{
public:
    explicit Grid22(App &app);
};

} // namespace nb
