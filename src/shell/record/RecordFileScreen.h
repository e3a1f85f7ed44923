#pragma once
// The frame the save and load screens share: a drive list, a folder list, the record files of the
// chosen folder, the file-type list, the name box, OK and Cancel.
//
// Folders: the folder list shows ".." (unless at the top of a drive) and the subfolders of the
// open folder. Picking one shows its record files and path at once, and OK then acts in that
// folder; double-clicking one also opens it, listing its own subfolders. (Opening on a single
// pick would make a double-click go two folders deep, as the second click lands on the new list.)
#include "core/Screen.h"

#include <filesystem>
#include <vector>

namespace nb {

class RecordFileScreen : public Screen
{
public:
    // `heading` says at the top what the screen is for.
    RecordFileScreen(App &app, const std::string &heading);

    void onOpened() override;
    void onClick(const std::string &name, int index) override;
    void onDoubleClick(const std::string &name, int index) override;
    void onChange(const std::string &name, int index) override;
    void onKeyPress(const std::string &name, int index, int &key) override;
    // Escape anywhere on the screen presses Cancel.
    void onScreenKey(int key) override;

protected:
    // OK pressed (or a file double-clicked): save or load the file named in the name box.
    virtual void act() = 0;

    // The folder whose files are listed; the one OK acts in.
    const std::filesystem::path &folder() const { return folder_; }
    std::string &nameBox() { return caption("txtfilename"); }

private:
    // Lists the folder's record files and shows its path; with open, lists its subfolders too.
    // False, with nothing changed, when the folder cannot be read.
    bool showFolder(const std::filesystem::path &folder, bool open);
    void selectDriveOfFolder();
    void driveChosen();
    void folderPicked(bool open);
    void filePicked(bool act);

    std::filesystem::path open_;   // the folder whose subfolders are listed
    std::filesystem::path folder_; // the folder whose files are listed
    std::vector<std::filesystem::path> drives_;
    std::vector<std::filesystem::path> folderItems_; // the folder behind each folder-list item
};

} // namespace nb
