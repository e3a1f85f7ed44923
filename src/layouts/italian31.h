#pragma once
// 3-digit by 1-digit lattice multiplication. Five questions against the stopwatch; the best time is
// shared with the other multiplication screens of this size.
#include "layouts/LatticeFrame.h"

namespace nb {

class Italian31 : public LatticeFrame
{
public:
    explicit Italian31(App &app);
};

} // namespace nb
