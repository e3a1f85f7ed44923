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
    for (int i = 0; i < 2; ++i) {
        grid.button("Command3", "Division " + std::to_string(i + 1), 0, i, i);
        addAction({"Command3", i, true,
                   [i](PupilProgress &p) { p.DivLevel = Value::int16(std::int16_t(i + 1)); },
                   "div11"});
    }
    grid.button("Command4", "MAKE ?", 0, 2);
    grid.button("Command2", "Long division 1", 1, 0);
    grid.button("Command5", "Long division 2", 1, 1);
    grid.button("Command6", "Long division 3", 1, 2);
    grid.button("Command8", "Divide search", 2, 0);
    grid.button("Command9", "Factor racing", 2, 1);

    addAction({"Command4", -1, true, {}, "maketendiv"});
    addAction({"Command2", -1, false, {}, "div1into3withremsum"});
    addAction({"Command5", -1, false, {}, "div1into3dec"});
    addAction({"Command6", -1, false, {}, "div1into3frac"});
    addAction({"Command8", -1, false, [](PupilProgress &p) { p.SearchCaller = Value::int16(4); },
               "search"});
    addAction({"Command9", -1, false, {}, "factor"});
}

} // namespace nb
