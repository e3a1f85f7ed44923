#include "shell/record/Filesave.h"

#include "core/App.h"
#include "core/Platform.h"
#include "core/PupilProgress.h"
#include "shell/record/FileName.h"
#include "shell/record/RecordFile.h"

#include <filesystem>

namespace nb {

Filesave::Filesave(App &app)
    : RecordFileScreen(app, "Save your work")
{}

void Filesave::onOpened()
{
    RecordFileScreen::onOpened();
    const Value &loaded = progress().LoadedFileName;
    if (loaded.isText() && !loaded.asText().empty()) {
        // Straight back to the file the record came from, even if that folder could not be shown.
        nameBox() = loaded.asText();
        const Value &from = progress().RecordFolder;
        save(from.isText() && !from.asText().empty() ? std::filesystem::path(from.asText())
                                                     : folder(),
             loaded.asText());
    }
}

void Filesave::act()
{
    PupilProgress &p = progress();
    const std::string typed = nameBox();
    // The loaded record's own name is known to be good, even one the typing rules would refuse
    // (such as "tom.DAT", which is how this screen names files): write back to it as it is.
    if (p.LoadedFromFile.equalsNumber(1) && p.LoadedFileName.isText() &&
        typed == p.LoadedFileName.asText()) {
        save(folder(), typed);
        return;
    }
    const record::SaveName checked = record::checkSaveName(typed);
    if (checked.verdict == record::SaveName::Verdict::Empty) {
        platform().message("File not selected!");
        return;
    }
    if (checked.verdict == record::SaveName::Verdict::Invalid) {
        platform().message("Invalid filename");
        nameBox().clear();
        return;
    }
    nameBox() = checked.name;
    // A new pupil never writes over another's record; a pupil whose record was loaded may.
    if (!p.LoadedFromFile.equalsNumber(1) && record::nameTaken(folder(), checked.name)) {
        nameTakenMessage();
        return;
    }
    if (!save(folder(), checked.name) && !nameBox().empty())
        nameBox() = typed; // as typed, so OK can be pressed again once another folder is chosen
}

void Filesave::nameTakenMessage()
{
    platform().message("There is already a file with this name. Use a different filename.");
    nameBox().clear();
}

bool Filesave::save(const std::filesystem::path &dir, const std::string &fileName)
{
    PupilProgress &p = progress();
    p.FileNumber = Value::int16(1);
    const record::WriteMode mode =
        p.LoadedFromFile.equalsNumber(1) ? record::WriteMode::Replace : record::WriteMode::NewFile;
    const record::WriteOutcome out =
        record::writeRecordFile(dir / fileName, record::encode(p), mode);
    switch (out.result) {
    case record::WriteOutcome::Result::Saved:
        app().endProgram();
        return true;
    case record::WriteOutcome::Result::NameTaken: // another program saved that name just now
        nameTakenMessage();
        return false;
    case record::WriteOutcome::Result::ReadOnly:
        platform().message("Your record could not be saved as " + fileName +
                           ": that file is marked read-only, so it was left as it is. Your "
                           "progress is still here: type a new name and press OK to save it.");
        nameBox().clear();
        return false;
    case record::WriteOutcome::Result::Failed:
        break;
    }
    platform().message("Your record could not be saved as " + fileName + ": " + out.problem +
                       ". Your progress is still here: choose another folder and press OK "
                       "to save again.");
    return false;
}

} // namespace nb
