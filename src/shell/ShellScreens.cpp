#include "shell/ShellScreens.h"

#include "shell/addmenu.h"
#include "shell/besttimes.h"
#include "shell/cover.h"
#include "shell/divmenu.h"
#include "shell/mainmenu.h"
#include "shell/mulmenu.h"
#include "shell/pairmenu.h"
#include "shell/submenu.h"

namespace nb {

void registerShellScreens(ScreenRegistry &registry)
{
    registry.add<Cover>("cover", "NUMBROOK");
    registry.add<MainMenu>("mainmenu", "MENU");
    registry.add<AddMenu>("addmenu", "Addition Menu");
    registry.add<SubMenu>("submenu", "Subtraction Menu");
    registry.add<MulMenu>("mulmenu", "Multiplication Menu");
    registry.add<DivMenu>("divmenu", "Division Menu");
    registry.add<PairMenu>("pairmenu", "2 player games");
    registry.add<BestTimes>("besttimes", "Best times");
}

} // namespace nb
