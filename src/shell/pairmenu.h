#pragma once
#include "shell/TopicMenu.h"

namespace nb {

// Games for two: the search race, darts matches, snap and four in a row.
class PairMenu : public TopicMenu
{
public:
    explicit PairMenu(App &app);

protected:
    void exitMenu() override;
};

} // namespace nb
