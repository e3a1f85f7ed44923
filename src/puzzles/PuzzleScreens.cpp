#include "puzzles/factor.h"
#include "shell/AllScreens.h"

namespace nb {

void registerPuzzleScreens(ScreenRegistry &registry)
{
    registry.add<Factor>("factor", "Factor racing");
}

} // namespace nb
