#include "shell/TopicMenu.h"

#include "core/App.h"
#include "shell/MenuLayout.h"

namespace nb {

TopicMenu::TopicMenu(App &app)
    : Screen(app)
{
    setSize(kWidth, kHeight);
}

void TopicMenu::buildFrame(const std::string &heading, std::uint32_t theme)
{
    setBackColor(theme);
    Control &title = label("lblTitle", heading, 600, 200, kWidth - 1200, 900);
    title.font.points = 30;
    title.font.bold = true;
    title.align = Align::Center;
    title.foreColor = rgb(40, 40, 120);
    shape("Shape1", ShapeKind::RoundedRectangle, rgb(255, 255, 255), rgb(40, 40, 120), 300, 1200,
          kWidth - 600, kHeight - 2700);
    Control &puzzles =
        label("Label1", "PUZZLES", MenuLayout::columnX(2), 1350, MenuLayout::kButtonWidth, 500);
    puzzles.font.points = 16;
    puzzles.font.bold = true;
    puzzles.align = Align::Center;
    puzzles.foreColor = rgb(200, 40, 40);
    Control &ach = button("Command10", "Achievements", 600, kHeight - 1250, 3200, 800);
    ach.font.points = 14;
    ach.backColor = rgb(255, 215, 90);
    Control &exit = button("Command7", "EXIT", kWidth - 3000, kHeight - 1250, 2400, 800);
    exit.font.points = 14;
    exit.font.bold = true;
    exit.backColor = rgb(250, 150, 150);
}

void TopicMenu::addEntries(MenuLayout &grid, const std::vector<Entry> &entries)
{
    for (const Entry &e : entries) {
        grid.button(e.control, e.caption, e.column, e.row, e.index);
        addAction({e.control, e.index, e.readsOptions, e.sets, e.target});
    }
}

std::function<void(PupilProgress &)> TopicMenu::searchCaller(int caller)
{
    return [caller](PupilProgress &p) { p.SearchCaller = Value::int16(std::int16_t(caller)); };
}

void TopicMenu::addOption(Control &box, Value PupilProgress::*flag)
{
    options_.push_back({box.name, flag});
}

void TopicMenu::onOpened()
{
    for (const Option &o : options_)
        ctl(o.control).value = (progress().*o.flag).equalsNumber(1) ? 1 : 0;
    // An activity whose screen is not in this build yet cannot be chosen.
    for (const Action &a : actions_)
        if (!a.target.empty())
            setEnabled(a.control, app().registry().has(a.target), a.index);
}

void TopicMenu::readOptions()
{
    for (const Option &o : options_)
        progress().*o.flag = Value::int16(ctl(o.control).value == 1 ? 1 : 0);
}

void TopicMenu::exitMenu()
{
    handOver("mainmenu");
}

void TopicMenu::onClick(const std::string &name, int index)
{
    if (name == "Command10") {
        app().show("besttimes");
        return;
    }
    if (name == "Command7") {
        exitMenu();
        return;
    }
    for (const Action &a : actions_) {
        if (a.control != name || a.index != index)
            continue;
        if (a.readsOptions)
            readOptions();
        if (a.sets)
            a.sets(progress());
        if (!a.target.empty() && app().registry().has(a.target))
            handOver(a.target);
        return;
    }
}

} // namespace nb
