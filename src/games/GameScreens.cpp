#include "games/GameScreens.h"

#include "games/fourinarow.h"
#include "games/twoplayerfourinarow.h"
#include "games/twoplayersnap.h"

namespace nb {

void registerGameScreens(ScreenRegistry &registry)
{
    registry.add<FourInARow>("fourinarow", "Four in a row");
    registry.add<TwoPlayerFourInARow>("twoplayerfourinarow", "Two-player four in a row");
    registry.add<TwoPlayerSnap>("twoplayersnap", "snap");
}

} // namespace nb
