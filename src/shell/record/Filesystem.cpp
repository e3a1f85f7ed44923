#include "shell/record/Filesystem.h"

#include "core/Platform.h"
#include "core/PupilProgress.h"
#include "shell/record/RecordFile.h"

namespace nb {

Filesystem::Filesystem(App &app)
    : RecordFileScreen(app, "Find your record")
{}

void Filesystem::act()
{
    const std::string name = nameBox();
    if (name.empty()) {
        platform().message("You must first select a file!");
        return;
    }
    PupilProgress &p = progress();
    p.FileNumber = Value::int16(1);
    const record::ReadOutcome read = record::readRecordFile(folder() / name);
    if (!read.values) {
        // Nothing has been changed, and the screen stays open for another choice. The teacher
        // reads a plain sentence; the technical reason waits behind the box's details button.
        platform().message("Sorry, " + name +
                               " could not be loaded: it is not a NUMBROOK pupil record, or it is "
                               "damaged.",
                           {}, MsgIcon::None,
                           (folder() / name).string() + ": " + read.problem + ".");
        return;
    }
    record::store(*read.values, p);
    p.LoadedFileName = Value::text(name);
    p.LoadedFromFile = Value::int16(1);
    p.Unsaved = Value::int16(1);
    p.RecordFolder = Value::text(folder().string());
    closeSelf();
}

} // namespace nb
