#include "layouts/LayoutScreens.h"

#include "layouts/grid21.h"
#include "layouts/grid22.h"
#include "layouts/grid31.h"
#include "layouts/grid32.h"
#include "layouts/italian21.h"
#include "layouts/italian22.h"
#include "layouts/italian31.h"
#include "layouts/italian32.h"

namespace nb {

void registerLayoutScreens(ScreenRegistry &registry)
{
    registry.add<Grid21>("grid21", "Grid multiplication");
    registry.add<Grid22>("grid22", "Grid multiplication");
    registry.add<Grid31>("grid31", "Grid multiplication");
    registry.add<Grid32>("grid32", "Grid multiplication");
    registry.add<Italian21>("italian21", "Grid multiplication");
    registry.add<Italian22>("italian22", "Grid multiplication");
    registry.add<Italian31>("italian31", "Grid multiplication");
    registry.add<Italian32>("italian32", "Grid multiplication");
}

} // namespace nb
