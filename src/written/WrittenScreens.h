#pragma once
#include "core/ScreenRegistry.h"

namespace nb {

// Registers the written column methods, each with its window title.
void registerWrittenScreens(ScreenRegistry &registry);

} // namespace nb
