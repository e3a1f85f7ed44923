#pragma once
// The frame every topic menu shares: a title, option check boxes tied to PupilProgress flags,
// activity buttons that may read the options and set a field before handing over, Achievements
// (shown on top, the menu stays) and EXIT.
#include "core/PupilProgress.h"
#include "core/Screen.h"

#include <functional>
#include <string>
#include <vector>

namespace nb {

class MenuLayout;

class TopicMenu : public Screen
{
public:
    struct Option
    {
        std::string control; // check box name
        Value PupilProgress::*flag;
    };
    struct Action
    {
        std::string control;
        int index = -1;
        bool readsOptions = false;
        std::function<void(PupilProgress &)> sets; // may be empty
        std::string target;                        // screen to hand over to; empty = stay
    };

    // One button of the menu, written once: its control, caption, place on the menu's grid,
    // the screen it opens (empty: it stays on the menu), whether it reads the option boxes first,
    // and what it sets in PupilProgress.
    struct Entry
    {
        std::string control;
        std::string caption;
        int column = 0;
        int row = 0;
        std::string target;
        bool readsOptions = false;
        std::function<void(PupilProgress &)> sets = {};
        int index = -1;
    };

    explicit TopicMenu(App &app);

    void onOpened() override;
    void onClick(const std::string &name, int index) override;

protected:
    // Lays out the shared furniture: the title, the PUZZLES heading, Achievements and EXIT.
    void buildFrame(const std::string &heading, std::uint32_t theme);
    void addOption(Control &box, Value PupilProgress::*flag);
    void addAction(Action action) { actions_.push_back(std::move(action)); }
    // Lays out each entry's button on the menu's grid and adds its action.
    void addEntries(MenuLayout &grid, const std::vector<Entry> &entries);
    // What the search buttons set: which operation the search screens use.
    static std::function<void(PupilProgress &)> searchCaller(int caller);
    // EXIT: back to the main menu.
    virtual void exitMenu();

    static constexpr int kWidth = 12000;
    static constexpr int kHeight = 9000;

private:
    void readOptions();
    std::vector<Option> options_;
    std::vector<Action> actions_;
};

} // namespace nb
