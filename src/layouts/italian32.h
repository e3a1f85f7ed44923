#pragma once
// 3-digit by 2-digit lattice multiplication. Five questions against the stopwatch; the best time is
// shared with the other multiplication screens of this size.
#include "layouts/LatticeFrame.h"

namespace nb {

class Italian32 : public LatticeFrame
{
public:
    explicit Italian32(App &app);
};

} // namespace nb
