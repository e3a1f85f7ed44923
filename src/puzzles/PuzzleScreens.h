#pragma once
#include "core/ScreenRegistry.h"

namespace nb {

// Registers the number puzzles, each with its window title.
void registerPuzzleScreens(ScreenRegistry &registry);

} // namespace nb
