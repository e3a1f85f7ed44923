#include "shell/AllScreens.h"

namespace nb {

void registerLayoutScreens(ScreenRegistry &registry)
{
    (void)registry;
}

} // namespace nb
