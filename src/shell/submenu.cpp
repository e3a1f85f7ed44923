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
    grid.button("Command4", "Subtraction 1", 0, 0);
    grid.button("Command11", "Subtraction 2", 0, 1);
    grid.button("Command5", "Subtraction 3", 0, 2);
    grid.button("Command12", "Subtraction 4", 0, 3);
    grid.button("Command1", "MAKE 10", 0, 4);
    grid.button("Command3", "MAKE ?", 0, 5);
    grid.button("Command6", "Borrow method", 1, 0);
    grid.button("Command13", "HTU method", 1, 1);
    grid.button("Command9", "Darts", 1, 3);
    grid.button("Command8", "Subtract search", 2, 0);

    addAction({"Command4", -1, true, level(1), "sub11"});
    addAction({"Command11", -1, true, level(2), "sub11"});
    addAction({"Command5", -1, true, level(3), "sub11"});
    addAction({"Command12", -1, true, level(4), "sub11"});
    addAction({"Command1", -1, true, {}, "maketensub"});
    addAction({"Command3", -1, true, {}, "makeanysub"});
    addAction({"Command6", -1, true, {}, "sub33"});
    addAction({"Command13", -1, false, {}, "sub33b"});
    addAction({"Command8", -1, false, [](PupilProgress &p) { p.SearchCaller = Value::int16(2); },
               "search"});
    addAction({"Command9", -1, false, {}, "darts"});
}

} // namespace nb
