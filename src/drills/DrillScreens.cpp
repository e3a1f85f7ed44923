#include "shell/AllScreens.h"

namespace nb {

void registerDrillScreens(ScreenRegistry &registry)
{
    (void)registry;
}

} // namespace nb
