#include "shell/AllScreens.h"

#include "drills/DrillScreens.h"
#include "games/GameScreens.h"
#include "layouts/LayoutScreens.h"
#include "puzzles/PuzzleScreens.h"
#include "shell/ShellScreens.h"
#include "shell/record/RecordScreens.h"
#include "written/WrittenScreens.h"

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
