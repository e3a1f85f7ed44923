#include "shell/addmenu.h"

#include "shell/MenuLayout.h"

namespace nb {

AddMenu::AddMenu(App &app)
    : TopicMenu(app)
{
    buildFrame("Addition Menu", rgb(200, 235, 255));
    MenuLayout grid(*this);
    addOption(grid.option("equationneg", "Negatives", 0), &PupilProgress::AddNegatives);
    addOption(grid.option("equationdec", "Decimals", 1), &PupilProgress::AddDecimals);

    const auto level = [](int n) {
        return [n](PupilProgress &p) { p.AddLevel = Value::int16(std::int16_t(n)); };
    };
    addEntries(grid, {
                         {"Command4", "Addition 1", 0, 0, "add11", true, level(1)},
                         {"Command11", "Addition 2", 0, 1, "add11", true, level(2)},
                         {"Command6", "Addition 3", 0, 2, "add11", true, level(3)},
                         {"Command5", "Addition 4", 0, 3, "add11", true, level(4)},
                         {"Command1", "MAKE 10", 0, 4, "maketen", true},
                         {"Command3", "MAKE ?", 0, 5, "makeany", true},
                         {"Command2", "Carry method", 1, 0, "ADD333"},
                         {"Command9", "HTU method", 1, 1, "ADD333b"},
                         {"fourinrow", "Addition 4-in a row", 1, 3, "fourinarow"},
                         {"Command8", "Add search", 2, 0, "search", false, searchCaller(1)},
                     });
}

} // namespace nb
