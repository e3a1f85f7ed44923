#include "shell/cover.h"

namespace nb {

Cover::Cover(App &app)
    : Screen(app)
{
    setSize(12000, 9000);
    setBackColor(rgb(120, 200, 255));
    image("Image1", "cover.svg", 0, 0, 12000, 9000);
    Control &go = button("Command1", "START", 4500, 7500, 3000, 900);
    go.font.points = 22;
    go.font.bold = true;
    go.backColor = rgb(255, 210, 60);
    setFocus("Command1");
}

void Cover::onClick(const std::string &name, int)
{
    if (name == "Command1")
        handOver("mainmenu");
}

} // namespace nb
