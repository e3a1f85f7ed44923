#include "shell/AllScreens.h"

namespace nb {

void registerWrittenScreens(ScreenRegistry &registry)
{
    (void)registry;
}

} // namespace nb
