#pragma once
#include "core/ScreenRegistry.h"

namespace nb {

// Registers grid and lattice multiplication, each with its window title.
void registerLayoutScreens(ScreenRegistry &registry);

} // namespace nb
