#include "layouts/LayoutScreens.h"

namespace nb {

void registerLayoutScreens(ScreenRegistry &registry)
{
    (void)registry;
}

} // namespace nb
