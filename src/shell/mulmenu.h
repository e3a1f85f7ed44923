#pragma once
#include "shell/TopicMenu.h"

namespace nb {

// The multiplication menu: the times drills, the written, grid and lattice methods for each size of
// sum, the search puzzle and perfection.
class MulMenu : public TopicMenu
{
public:
    explicit MulMenu(App &app);
};

} // namespace nb
