#pragma once

namespace nb {

class App;

// Leaving the program: with a pupil active, ask "Do you want to save?" (Yes shows the save
// screen, which ends the program once it has saved; No ends at once; closing the box without an
// answer goes back to the program); with none, end at once.
// Used by the main menu's EXIT and by closing the window.
void leaveProgram(App &app);

} // namespace nb
