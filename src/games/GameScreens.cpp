#include "games/GameScreens.h"

namespace nb {

void registerGameScreens(ScreenRegistry &registry)
{
    (void)registry;
}

} // namespace nb
