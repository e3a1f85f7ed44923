#pragma once
// Every screen of the program: each subsystem registers its own screens (its *Screens.h).
#include "core/ScreenRegistry.h"

namespace nb {

void registerAllScreens(ScreenRegistry &registry);

} // namespace nb
