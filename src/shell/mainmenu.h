#pragma once
#include "core/Screen.h"

namespace nb {

// The main menu: NEW takes a pupil's name, LOAD reads a record, EXIT leaves (offering to save
// when a pupil is active), five pictures open the topic menus, and Sound switches the
// right-answer chime on or off for every pupil on this computer.
class MainMenu : public Screen
{
public:
    explicit MainMenu(App &app);
    void onOpened() override;
    void onActivated() override;
    void onClick(const std::string &name, int index) override;

private:
    void newPupil();
    void exitProgram();
    // Shows the name of the pupil at work, once there is one.
    void showPupil();
};

} // namespace nb
