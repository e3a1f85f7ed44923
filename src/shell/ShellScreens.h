#pragma once
#include "core/ScreenRegistry.h"

namespace nb {

// Registers the cover, the main menu, the topic menus and the achievements screen, each with its
// window title.
void registerShellScreens(ScreenRegistry &registry);

} // namespace nb
