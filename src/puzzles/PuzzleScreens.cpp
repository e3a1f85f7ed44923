#include "shell/AllScreens.h"

namespace nb {

void registerPuzzleScreens(ScreenRegistry &registry)
{
    (void)registry;
}

} // namespace nb
