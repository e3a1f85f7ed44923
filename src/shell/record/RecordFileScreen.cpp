#include "shell/record/RecordFileScreen.h"

#include "core/Platform.h"
#include "core/PupilProgress.h"
#include "shell/record/FileName.h"
#include "shell/record/RecordFile.h"
#include "shell/record/Style.h"

#include <algorithm>
#include <cctype>

namespace nb {

namespace fs = std::filesystem;

namespace {

// Without "." or ".." parts or a trailing separator, so that equal folders compare equal.
fs::path normal(const fs::path &p)
{
    fs::path n = p.lexically_normal();
    if (!n.has_filename() && n.has_relative_path())
        n = n.parent_path();
    return n;
}

bool within(const fs::path &folder, const fs::path &root)
{
    return std::mismatch(root.begin(), root.end(), folder.begin(), folder.end()).first ==
           root.end();
}

bool lessNoCase(const std::string &a, const std::string &b)
{
    const auto lower = [](unsigned char c) { return std::tolower(c); };
    const bool less =
        std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                     [&](char x, char y) { return lower(x) < lower(y); });
    const bool greater =
        std::lexicographical_compare(b.begin(), b.end(), a.begin(), a.end(),
                                     [&](char x, char y) { return lower(x) < lower(y); });
    return less || (!greater && a < b);
}

struct Listing
{
    std::vector<std::string> folders; // visible subfolders
    std::vector<std::string> files;   // record files
};

// The folder's subfolders (hidden ones left out) and record files, sorted; nothing when the
// folder cannot be read.
std::optional<Listing> listFolder(const fs::path &folder)
{
    std::error_code ec;
    fs::directory_iterator it(folder, ec); // an unreadable folder is an error, not an empty one
    if (ec)
        return std::nullopt;
    Listing out;
    for (; it != fs::directory_iterator(); it.increment(ec)) {
        if (ec)
            break;
        const std::string name = it->path().filename().string();
        std::error_code sec;
        if (it->is_directory(sec)) {
            if (!name.starts_with('.'))
                out.folders.push_back(name);
        } else if (it->is_regular_file(sec) && record::hasRecordExtension(name)) {
            out.files.push_back(name);
        }
    }
    std::sort(out.folders.begin(), out.folders.end(), lessNoCase);
    std::sort(out.files.begin(), out.files.end(), lessNoCase);
    return out;
}

} // namespace

RecordFileScreen::RecordFileScreen(App &app, const std::string &heading)
    : Screen(app)
{
    setSize(12000, 9000);
    setBackColor(rgb(235, 245, 255));
    // What this screen is for, in words a child understands.
    Control &top = label("heading", heading, 600, 120, 10800, 750);
    top.font.points = 24;
    top.font.bold = true;
    top.align = Align::Center;
    top.foreColor = rgb(230, 80, 40);

    const auto captionLabel = [this](const char *name, const char *text, int l, int t) {
        Control &c = label(name, text, l, t, 5000, 450);
        c.font.points = 14;
        c.font.bold = true;
        c.foreColor = rgb(40, 40, 120);
    };
    captionLabel("lblfilename", "File Name:", 600, 950);
    textBox("txtfilename", "File name", 600, 1400, 5000, 550).font.points = 16;
    spoken(list("filfiles", 600, 2050, 5000, 4450), "Files");
    captionLabel("lblfiletype", "File Type:", 600, 6650);
    spoken(comboBox("cbofiletype", 600, 7100, 5000, 500), "File type");

    captionLabel("lbldirectories", "Directories", 6400, 950);
    Control &path = label("lbldirname", "", 6400, 1400, 5000, 550);
    path.font.points = 11;
    path.border = true;
    path.backColor = colors::white;
    path.fit = TextFit::ElideMiddle; // a long path keeps both ends in view
    spoken(list("dirdirectory", 6400, 2050, 5000, 4450), "Folders");
    captionLabel("lbldrive", "Drive :", 6400, 6650);
    spoken(comboBox("drvdrive", 6400, 7100, 5000, 500), "Drive");

    bigButton(button("cmdOK", "OK", 6400, 8000, 2300, 700), rgb(150, 230, 150));
    bigButton(button("cmdcancel", "Cancel", 9100, 8000, 2300, 700), rgb(255, 190, 190));
    setFocus("txtfilename");
}

void RecordFileScreen::onOpened()
{
    Control &type = ctl("cbofiletype");
    type.items.push_back("quadsum files (*.DAT)");
    type.listIndex = 0;

    for (const std::string &d : platform().drives())
        drives_.push_back(normal(d));
    ctl("drvdrive").items = platform().drives();

    // The folder of the record loaded in this run, else the records folder, else anywhere usable.
    if (const Value &last = progress().RecordFolder;
        last.isText() && !last.asText().empty() && showFolder(last.asText(), true))
        return;
    std::vector<fs::path> starts{record::recordsFolder(platform()), platform().documentsFolder()};
    starts.insert(starts.end(), drives_.begin(), drives_.end());
    starts.push_back("/");
    for (const fs::path &start : starts)
        if (!start.empty() && showFolder(start, true))
            return;
}

void RecordFileScreen::onClick(const std::string &name, int)
{
    if (name == "cmdOK")
        act();
    else if (name == "cmdcancel")
        closeSelf();
}

void RecordFileScreen::onKeyPress(const std::string &name, int, int &key)
{
    // In the name box, Enter presses OK and Escape presses Cancel.
    if (name != "txtfilename" || (key != 13 && key != 27))
        return;
    const bool ok = key == 13;
    key = 0;
    if (ok)
        act();
    else
        closeSelf();
}

void RecordFileScreen::onScreenKey(int key)
{
    if (key == 27)
        closeSelf();
}

void RecordFileScreen::onDoubleClick(const std::string &name, int)
{
    if (name == "dirdirectory")
        folderPicked(true);
    else if (name == "filfiles")
        filePicked(true);
}

void RecordFileScreen::onChange(const std::string &name, int)
{
    if (name == "drvdrive")
        driveChosen();
    else if (name == "dirdirectory")
        folderPicked(false);
    else if (name == "filfiles")
        filePicked(false);
    else if (name == "cbofiletype" && ctl("cbofiletype").listIndex == 0)
        showFolder(folder_, false); // the one file type there is: record files
}

bool RecordFileScreen::showFolder(const fs::path &folder, bool open)
{
    const fs::path target = normal(folder);
    const std::optional<Listing> listing = listFolder(target);
    if (!listing)
        return false;
    record::clearStaleTemporaries(target); // left by saves that were cut short
    if (open) {
        Control &dirs = ctl("dirdirectory");
        dirs.items.clear();
        dirs.listIndex = -1;
        folderItems_.clear();
        const bool driveTop = std::find(drives_.begin(), drives_.end(), target) != drives_.end();
        if (!driveTop && target.has_relative_path()) {
            dirs.items.push_back("..");
            folderItems_.push_back(target.parent_path());
        }
        for (const std::string &sub : listing->folders) {
            dirs.items.push_back(sub);
            folderItems_.push_back(target / sub);
        }
        open_ = target;
        selectDriveOfFolder();
    }
    Control &files = ctl("filfiles");
    files.items = listing->files;
    files.listIndex = -1;
    folder_ = target;
    caption("lbldirname") = target.string();
    return true;
}

void RecordFileScreen::selectDriveOfFolder()
{
    int best = -1;
    for (std::size_t i = 0; i < drives_.size(); ++i)
        if (within(open_, drives_[i]) &&
            (best < 0 || std::distance(drives_[i].begin(), drives_[i].end()) >
                             std::distance(drives_[std::size_t(best)].begin(),
                                           drives_[std::size_t(best)].end())))
            best = int(i);
    ctl("drvdrive").listIndex = best;
}

void RecordFileScreen::driveChosen()
{
    const int i = ctl("drvdrive").listIndex;
    if (i < 0 || std::size_t(i) >= drives_.size())
        return;
    if (!showFolder(drives_[std::size_t(i)], true)) {
        platform().message("Drive error!", "Error", MsgIcon::Exclamation);
        selectDriveOfFolder(); // back to the drive of the folder still shown
    }
}

void RecordFileScreen::folderPicked(bool open)
{
    Control &dirs = ctl("dirdirectory");
    const int i = dirs.listIndex;
    if (i < 0 || std::size_t(i) >= folderItems_.size())
        return;
    const fs::path target = folderItems_[std::size_t(i)];
    if (!showFolder(target, open)) {
        platform().message("The folder " + dirs.items[std::size_t(i)] + " cannot be opened.");
        dirs.listIndex = -1;
    }
}

void RecordFileScreen::filePicked(bool andAct)
{
    const Control &files = ctl("filfiles");
    if (files.listIndex < 0 || std::size_t(files.listIndex) >= files.items.size())
        return;
    nameBox() = files.items[std::size_t(files.listIndex)];
    if (andAct)
        act();
}

} // namespace nb
