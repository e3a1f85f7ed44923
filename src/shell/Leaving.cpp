#include "shell/Leaving.h"

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
    p.MessageText = Value::text("Do you want to save?");
    const int reply = app.platform().askYesNo(p.MessageText.asText());
    p.MessageReply = Value::int16(std::int16_t(reply));
    if (reply != kYes) {
        app.endProgram();
        return;
    }
    // Saving ends the program; a build without the save screen just ends.
    if (!app.registry().has("Filesave"))
        app.endProgram();
    else
        app.show("Filesave");
}

} // namespace nb
