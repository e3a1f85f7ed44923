#include "shell/Leaving.h"

#include "activity/Ask.h"
#include "core/App.h"
#include "core/Platform.h"
#include "core/PupilProgress.h"

namespace nb {

void leaveProgram(App &app)
{
    PupilProgress &p = app.progress();
    if (!p.Unsaved.equalsNumber(1)) {
        app.endProgram();
        return;
    }
    const int reply = ask(app.platform(), p, "Do you want to save?");
    if (reply == kNo) {
        app.endProgram();
        return;
    }
    if (reply != kYes)
        return; // the box was closed or escaped: back to the program, nothing lost
    // Saving ends the program; a build without the save screen just ends.
    if (!app.registry().has("Filesave"))
        app.endProgram();
    else
        app.show("Filesave");
}

} // namespace nb
