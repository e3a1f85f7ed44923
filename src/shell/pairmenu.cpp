#include "shell/pairmenu.h"

#include "core/App.h"
#include "shell/MenuLayout.h"

namespace nb {

namespace {
Control &heading(Screen &s, std::string name, std::string text, int column, int row)
{
    Control c;
    c.kind = ControlKind::Label;
    c.name = std::move(name);
    c.caption = std::move(text);
    c.left = MenuLayout::columnX(column);
    c.top = row < 0 ? 1350 : MenuLayout::rowY(row) + 150;
    c.width = MenuLayout::kButtonWidth;
    c.height = 500;
    c.font.points = 16;
    c.font.bold = true;
    c.align = Align::Center;
    c.foreColor = rgb(40, 40, 120);
    return s.add(std::move(c));
}
} // namespace

PairMenu::PairMenu(App &app)
    : TopicMenu(app)
{
    buildFrame("2 player games", rgb(255, 245, 200));
    MenuLayout grid(*this);

    heading(*this, "lblDarts", "Darts", 0, -1);
    heading(*this, "lblSnap", "Snap", 1, -1);
    const auto snap = [](int n) {
        return [n](PupilProgress &p) { p.SnapOption = Value::int16(std::int16_t(n)); };
    };
    addEntries(grid, {
                         {"Command8", "Trebles", 0, 0, "dart"},
                         {"Command9", "Doubles", 0, 1, "doubledarts"},
                         {"Command11", "Quads", 0, 2, "quaddarts"},
                         {"snap", "Level 1", 1, 0, "twoplayersnap", false, snap(1), 0},
                         {"snap", "Level 2", 1, 1, "twoplayersnap", false, snap(2), 1},
                         {"snap", "Level 3", 1, 2, "twoplayersnap", false, snap(3), 2},
                         {"Command1", "Add search", 2, 0, "search2", false, searchCaller(1)},
                         {"Command2", "Subtract search", 2, 1, "search2", false, searchCaller(2)},
                         {"Command3", "Times search", 2, 2, "search2", false, searchCaller(3)},
                         {"Command4", "Divide search", 2, 3, "search2", false, searchCaller(4)},
                     });

    // Four in a row: pick a level (stays here), then a board picture to start the game.
    heading(*this, "lblFourRow", "Four in a row", 0, 3).width = 2 * MenuLayout::kColumnStep;
    for (int i = 0; i < 3; ++i) {
        Control &lev = grid.button("fourlev", "LEVEL " + std::to_string(i + 1), i, 4, i);
        lev.height = 600;
        addAction({"fourlev",
                   i,
                   false,
                   [i](PupilProgress &p) { p.FourRowOptionB = Value::int16(std::int16_t(i + 1)); },
                   {}});
        pictureButton("fourinrow", "Four in a row board " + std::to_string(i + 1),
                      "fourrow" + std::to_string(i + 1) + ".svg", MenuLayout::columnX(i),
                      MenuLayout::rowY(5) - 150, MenuLayout::kButtonWidth, 1100, i);
        // The board pictures choose the game's number mode, 0 to 2, by their place.
        addAction({"fourinrow", i, false,
                   [i](PupilProgress &p) { p.FourRowOptionA = Value::int16(std::int16_t(i)); },
                   "twoplayerfourinarow"});
    }
}

void PairMenu::onOpened()
{
    TopicMenu::onOpened();
    showChosenLevel();
}

void PairMenu::onClick(const std::string &name, int index)
{
    TopicMenu::onClick(name, index);
    if (name == "fourlev")
        showChosenLevel();
}

void PairMenu::showChosenLevel()
{
    // The level buttons stay on this menu, so the chosen one is marked in a strong colour.
    const int chosen = progress().FourRowOptionB.whole();
    for (int i = 0; i < 3; ++i) {
        Control &lev = ctl("fourlev", i);
        const bool on = chosen == i + 1;
        lev.backColor = on ? rgb(255, 190, 60) : rgb(255, 245, 215);
    }
}

void PairMenu::exitMenu()
{
    // EXIT shows the main menu and closes the addition menu (not this one), so this menu stays
    // open behind the main menu and comes back as it was when the main menu's button is used.
    app().show("mainmenu");
    app().close("addmenu");
}

} // namespace nb
