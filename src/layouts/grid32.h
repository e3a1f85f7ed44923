#pragma once
// 3-digit by 2-digit grid multiplication. Five questions against the stopwatch; the best time is
// shared with the other multiplication screens of this size.
#include "layouts/GridFrame.h"

namespace nb {

class Grid32 : public GridFrame
{
public:
    explicit Grid32(App &app);
};

} // namespace nb
