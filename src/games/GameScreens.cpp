#include "games/GameScreens.h"

#include "games/twoplayersnap.h"

namespace nb {

void registerGameScreens(ScreenRegistry &registry)
{
    registry.add<TwoPlayerSnap>("twoplayersnap", "snap");
}

} // namespace nb
