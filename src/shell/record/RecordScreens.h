#pragma once
#include "core/ScreenRegistry.h"

namespace nb {

// Registers the save and load screens, each with its window title.
void registerRecordScreens(ScreenRegistry &registry);

} // namespace nb
