#include "shell/divmenu.h"

#include "shell/MenuLayout.h"

namespace nb {

DivMenu::DivMenu(App &app)
    : TopicMenu(app)
{
    buildFrame("Division Menu", rgb(235, 220, 255));
    MenuLayout grid(*this);
    addOption(grid.option("equationneg", "Negatives", 0), &PupilProgress::DivNegatives);

    // Division 1 and 2 are one group: the button's place in it is the level.
    const auto level = [](int n) {
        return [n](PupilProgress &p) { p.DivLevel = Value::int16(std::int16_t(n)); };
    };
    addEntries(grid, {
                         {"Command3", "Division 1", 0, 0, "div11", true, level(1), 0},
                         {"Command3", "Division 2", 0, 1, "div11", true, level(2), 1},
                         {"Command4", "MAKE ?", 0, 2, "maketendiv", true},
                         {"Command2", "Long division 1", 1, 0, "div1into3withremsum"},
                         {"Command5", "Long division 2", 1, 1, "div1into3dec"},
                         {"Command6", "Long division 3", 1, 2, "div1into3frac"},
                         {"Command8", "Divide search", 2, 0, "search", false, searchCaller(4)},
                         {"Command9", "Factor racing", 2, 1, "factor"},
                     });
}

} // namespace nb
