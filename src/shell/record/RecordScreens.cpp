#include "shell/record/RecordScreens.h"

#include "shell/record/Filesave.h"
#include "shell/record/Filesystem.h"

namespace nb {

void registerRecordScreens(ScreenRegistry &registry)
{
    registry.add<Filesave>("Filesave", "SAVE");
    registry.add<Filesystem>("Filesystem", "LOAD");
}

} // namespace nb
