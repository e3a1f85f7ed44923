#pragma once
// Places the buttons and option boxes of a topic menu on a tidy grid: three columns of large
// buttons (the third under the PUZZLES heading) and a row of option boxes under the title.
#include "core/Screen.h"

#include <string>

namespace nb {

class MenuLayout
{
public:
    static constexpr int kLeft = 600;
    static constexpr int kColumnStep = 3700;
    static constexpr int kTop = 1950;
    static constexpr int kRowStep = 900;
    static constexpr int kButtonWidth = 3300;
    static constexpr int kButtonHeight = 750;

    explicit MenuLayout(Screen &screen)
        : screen_(screen)
    {}

    static int columnX(int column) { return kLeft + column * kColumnStep; }
    static int rowY(int row) { return kTop + row * kRowStep; }

    Control &button(std::string name, std::string caption, int column, int row, int index = -1);
    Control &option(std::string name, std::string caption, int slot);

private:
    Screen &screen_;
};

} // namespace nb
