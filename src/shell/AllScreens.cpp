#include "shell/AllScreens.h"

namespace nb {

void registerAllScreens(ScreenRegistry &registry)
{
    registerShellScreens(registry);
    registerRecordScreens(registry);
    registerDrillScreens(registry);
    registerWrittenScreens(registry);
    registerLayoutScreens(registry);
    registerPuzzleScreens(registry);
    registerGameScreens(registry);
}

} // namespace nb
