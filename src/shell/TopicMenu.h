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

    explicit TopicMenu(App &app);

    void onOpened() override;
    void onClick(const std::string &name, int index) override;

protected:
    // Lays out the shared furniture: the title, the PUZZLES heading, Achievements and EXIT.
    void buildFrame(const std::string &heading, std::uint32_t theme);
    void addOption(Control &box, Value PupilProgress::*flag);
    void addAction(Action action) { actions_.push_back(std::move(action)); }
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
