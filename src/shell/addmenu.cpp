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
    grid.button("Command4", "Addition 1", 0, 0);
    grid.button("Command11", "Addition 2", 0, 1);
    grid.button("Command6", "Addition 3", 0, 2);
    grid.button("Command5", "Addition 4", 0, 3);
    grid.button("Command1", "MAKE 10", 0, 4);
    grid.button("Command3", "MAKE ?", 0, 5);
    grid.button("Command2", "Carry method", 1, 0);
    grid.button("Command9", "HTU method", 1, 1);
    grid.button("fourinrow", "Addition 4-in a row", 1, 3);
    grid.button("Command8", "Add search", 2, 0);

    addAction({"Command4", -1, true, level(1), "add11"});
    addAction({"Command11", -1, true, level(2), "add11"});
    addAction({"Command6", -1, true, level(3), "add11"});
    addAction({"Command5", -1, true, level(4), "add11"});
    addAction({"Command1", -1, true, {}, "maketen"});
    addAction({"Command3", -1, true, {}, "makeany"});
    addAction({"Command2", -1, false, {}, "ADD333"});
    addAction({"Command9", -1, false, {}, "ADD333b"});
    addAction({"Command8", -1, false, [](PupilProgress &p) { p.SearchCaller = Value::int16(1); },
               "search"});
    addAction({"fourinrow", -1, false, {}, "fourinarow"});
}

} // namespace nb
