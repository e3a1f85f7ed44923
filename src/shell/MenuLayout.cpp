#include "shell/MenuLayout.h"

namespace nb {

Control &MenuLayout::button(std::string name, std::string caption, int column, int row, int index)
{
    Control c;
    c.kind = ControlKind::Button;
    c.name = std::move(name);
    c.index = index;
    c.caption = std::move(caption);
    c.left = columnX(column);
    c.top = rowY(row);
    c.width = kButtonWidth;
    c.height = kButtonHeight;
    c.font.points = 14;
    c.font.bold = true;
    static const std::uint32_t columnColors[] = {rgb(255, 236, 140), rgb(190, 240, 190),
                                                 rgb(255, 200, 230)};
    c.backColor = columnColors[column % 3];
    return screen_.add(std::move(c));
}

Control &MenuLayout::option(std::string name, std::string caption, int slot)
{
    Control c;
    c.kind = ControlKind::CheckBox;
    c.name = std::move(name);
    c.caption = std::move(caption);
    c.left = kLeft + 300 + slot * 2400;
    c.top = 1300;
    c.width = 2200;
    c.height = 500;
    c.font.points = 14;
    c.font.bold = true;
    return screen_.add(std::move(c));
}

} // namespace nb
