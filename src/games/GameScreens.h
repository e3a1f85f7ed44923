#pragma once
#include "core/ScreenRegistry.h"

namespace nb {

// Registers the games, each with its window title.
void registerGameScreens(ScreenRegistry &registry);

} // namespace nb
