#include "shell/AllScreens.h"

namespace nb {

void registerRecordScreens(ScreenRegistry &registry)
{
    (void)registry;
}

} // namespace nb
