#pragma once
#include "shell/TopicMenu.h"

namespace nb {

// The subtraction menu: levels and options for the subtraction drill, the make-a-number drills, the
// written methods, the search puzzle and darts.
class SubMenu : public TopicMenu
{
public:
    explicit SubMenu(App &app);
};

} // namespace nb
