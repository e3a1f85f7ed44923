#include "games/GameScreens.h"

#include "games/dart.h"
#include "games/darts.h"

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
}

} // namespace nb
