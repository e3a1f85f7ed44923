#include "puzzles/PuzzleScreens.h"

#include "puzzles/factor.h"

namespace nb {

void registerPuzzleScreens(ScreenRegistry &registry)
{
    registry.add<Factor>("factor", "Factor racing");
}

} // namespace nb
