#pragma once
// 2-digit by 1-digit lattice multiplication. Five questions against the stopwatch; the best time is
// shared with the other multiplication screens of this size.
#include "layouts/LatticeFrame.h"

namespace nb {

class Italian21 : public LatticeFrame
{
public:
    explicit Italian21(App &app);
};

} // namespace nb
