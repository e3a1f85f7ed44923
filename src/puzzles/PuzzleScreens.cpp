#include "puzzles/PuzzleScreens.h"

#include "puzzles/factor.h"
#include "puzzles/perfection.h"
#include "puzzles/search.h"
#include "puzzles/search2.h"

namespace nb {

void registerPuzzleScreens(ScreenRegistry &registry)
{
    registry.add<Factor>("factor", "Factor racing");
    registry.add<Search>("search", "Sum Search");
    registry.add<Search2>("search2", "Sum Search for two");
    registry.add<Perfection>("perfection", "Perfection");
}

} // namespace nb
