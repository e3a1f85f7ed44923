#include "shell/submenu.h"

#include "shell/MenuLayout.h"

namespace nb {

SubMenu::SubMenu(App &app)
    : TopicMenu(app)
{
    buildFrame("Subtraction Menu", rgb(220, 255, 215));
    MenuLayout grid(*this);
    addOption(grid.option("equationneg", "Negatives", 0), &PupilProgress::SubNegatives);
    addOption(grid.option("equationdec", "Decimals", 1), &PupilProgress::SubDecimals);

    const auto level = [](int n) {
        return [n](PupilProgress &p) { p.SubLevel = Value::int16(std::int16_t(n)); };
    };
    addEntries(grid, {
                         {"Command4", "Subtraction 1", 0, 0, "sub11", true, level(1)},
                         {"Command11", "Subtraction 2", 0, 1, "sub11", true, level(2)},
                         {"Command5", "Subtraction 3", 0, 2, "sub11", true, level(3)},
                         {"Command12", "Subtraction 4", 0, 3, "sub11", true, level(4)},
                         {"Command1", "MAKE 10", 0, 4, "maketensub", true},
                         {"Command3", "MAKE ?", 0, 5, "makeanysub", true},
                         {"Command6", "Borrow method", 1, 0, "sub33", true},
                         {"Command13", "HTU method", 1, 1, "sub33b"},
                         {"Command9", "Darts", 1, 3, "darts"},
                         {"Command8", "Subtract search", 2, 0, "search", false, searchCaller(2)},
                     });
}

} // namespace nb
