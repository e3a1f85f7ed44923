#pragma once
#include "shell/TopicMenu.h"

namespace nb {

// Games for two: the search race, darts matches, snap and four in a row.
class PairMenu : public TopicMenu
{
public:
    explicit PairMenu(App &app);

    void onOpened() override;
    void onClick(const std::string &name, int index) override;

protected:
    void exitMenu() override;

private:
    void showChosenLevel();
};

} // namespace nb
