#pragma once
#include "shell/TopicMenu.h"

namespace nb {

// The division menu: the division drills, short division, the search puzzle and the factor race.
class DivMenu : public TopicMenu
{
public:
    explicit DivMenu(App &app);
};

} // namespace nb
