#pragma once
#include "shell/TopicMenu.h"

namespace nb {

// The addition menu: levels and options for the addition drill, the make-a-number drills, the
// written methods, the search puzzle and four in a row.
class AddMenu : public TopicMenu
{
public:
    explicit AddMenu(App &app);
};

} // namespace nb
