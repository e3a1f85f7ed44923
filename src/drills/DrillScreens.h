#pragma once
#include "core/ScreenRegistry.h"

namespace nb {

// Registers the ten-question drills, each with its window title.
void registerDrillScreens(ScreenRegistry &registry);

} // namespace nb
