#include "shell/mulmenu.h"

#include "shell/MenuLayout.h"

namespace nb {

MulMenu::MulMenu(App &app)
    : TopicMenu(app)
{
    buildFrame("Multiplication Menu", rgb(255, 230, 200));
    MenuLayout grid(*this);
    addOption(grid.option("equationneg", "Negatives", 0), &PupilProgress::MulNegatives);

    addEntries(grid, {
                         {"Command4", "Times tables", 0, 0, "mul11", true},
                         {"Command3", "MAKE ?", 0, 1, "maketentimes", true},
                         {"Command11", "Mental times", 0, 2, "mentmul", true},
                         {"Command8", "Times search", 2, 0, "search", false, searchCaller(3)},
                         {"Command9", "Perfection", 2, 1, "perfection"},
                     });

    // The written methods as a small table: one row per size of sum, one column per method.
    constexpr int methodLeft = 600;
    constexpr int sizeWidth = 1100;
    constexpr int methodWidth = 1450;
    constexpr int methodTop = MenuLayout::kTop + 3 * MenuLayout::kRowStep + 100;
    constexpr int methodRow = 620;
    const char *sizes[] = {"2 \u00d7 1", "3 \u00d7 1", "2 \u00d7 2", "3 \u00d7 2"};
    const char *methodNames[] = {"Long", "Grid", "Italian"};
    const char *buttons[4][3] = {{"Command6", "Command12", "Command16"},
                                 {"Command5", "Command13", "Command19"},
                                 {"Command1", "Command14", "Command18"},
                                 {"Command2", "Command15", "Command17"}};
    const char *targets[4][3] = {{"times2", "grid21", "italian21"},
                                 {"times", "grid31", "italian31"},
                                 {"t22", "grid22", "italian22"},
                                 {"t32", "grid32", "italian32"}};
    for (int row = 0; row < 4; ++row) {
        Control &size = label("lblSize", sizes[row], methodLeft, methodTop + row * methodRow + 80,
                              sizeWidth, 500, row);
        size.font.points = 14;
        size.font.bold = true;
        for (int col = 0; col < 3; ++col) {
            Control &b = button(buttons[row][col], methodNames[col],
                                methodLeft + sizeWidth + col * (methodWidth + 100),
                                methodTop + row * methodRow, methodWidth, 540);
            b.font.points = 12;
            b.font.bold = true;
            b.backColor = rgb(190, 240, 190);
            addAction({buttons[row][col], -1, false, {}, targets[row][col]});
        }
    }
}

} // namespace nb
