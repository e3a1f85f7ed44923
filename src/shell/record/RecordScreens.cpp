#include "shell/AllScreens.h"
#include "shell/besttimes.h"
#include "shell/record/Filesave.h"
#include "shell/record/Filesystem.h"

namespace nb {

void registerRecordScreens(ScreenRegistry &registry)
{
    registry.add<Filesave>("Filesave", "SAVE");
    registry.add<Filesystem>("Filesystem", "LOAD");
    registry.add<BestTimes>("besttimes", "Best times");
}

} // namespace nb
