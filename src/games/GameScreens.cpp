#include "games/GameScreens.h"

#include "games/dart.h"
#include "games/darts.h"
#include "games/fourinarow.h"
#include "games/twoplayerfourinarow.h"
#include "games/twoplayersnap.h"

#include <memory>

namespace nb {

void registerGameScreens(ScreenRegistry &registry)
{
    registry.add<Darts>("darts", "Darts");
    registry.add("dart", "Darts: Trebles",
                 [](App &a) { return std::make_unique<Dart>(a, darts::BoardKind::Standard); });
    registry.add("doubledarts", "Darts: Doubles",
                 [](App &a) { return std::make_unique<Dart>(a, darts::BoardKind::Doubles); });
    registry.add("quaddarts", "Darts: Quads",
                 [](App &a) { return std::make_unique<Dart>(a, darts::BoardKind::Quads); });
    registry.add<FourInARow>("fourinarow", "Four in a row");
    registry.add<TwoPlayerFourInARow>("twoplayerfourinarow", "Two-player four in a row");
    registry.add<TwoPlayerSnap>("twoplayersnap", "snap");
}

} // namespace nb
