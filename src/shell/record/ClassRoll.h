#pragma once
// A folder of pupil records read as one table for a teacher: one row per readable record (the
// pupil's name, the file, the text of every achievements slot), the files that could not be read
// with the reason, and which slots anybody has used. Nothing is ever written to a record.
#include <filesystem>
#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace nb::record {

struct PupilRow
{
    std::string name;
    std::string file;               // the file's name inside the folder
    std::vector<std::string> cells; // one per achievements slot, "" where there is no result
};

struct BadFile
{
    std::string file;
    std::string reason;
};

struct ClassRoll
{
    std::filesystem::path folder;
    std::vector<PupilRow> pupils; // in file-name order
    std::vector<BadFile> bad;
    std::vector<bool> used; // per slot: some pupil has a result there
};

// The record files of a folder (".DAT" in any case, ordinary files and links to them), sorted by
// name. Nullopt, with the reason in `problem`, when the folder cannot be listed.
std::optional<std::vector<std::filesystem::path>> recordFiles(const std::filesystem::path &folder,
                                                              std::string &problem);

// Reads one record into a row; on failure the reason is in `problem`.
std::optional<PupilRow> readPupil(const std::filesystem::path &file, std::string &problem);

// Reads a whole folder. `progress(done, total)` is called after each file when given.
std::optional<ClassRoll> readClassFolder(const std::filesystem::path &folder, std::string &problem,
                                         const std::function<void(int, int)> &progress = {});

// Recomputes which slots are used from the rows.
void markUsedSlots(ClassRoll &roll);

// The table as CSV for a spreadsheet: UTF-8 with a byte-order mark, a header row ("Pupil",
// "File", then the headings of the used slots), the rows in the order given (indexes into
// roll.pupils), fields quoted where they hold a comma, quote or line break, lines ending in CR LF.
std::string classCsv(const ClassRoll &roll, const std::vector<int> &rowOrder);

// `numbrook-class --csv FOLDER`: writes the CSV of the folder (rows by pupil name) to `out` and
// returns 0; files skipped are named on `err`; when the folder cannot be read, says why on `err`
// and returns 1.
int csvCommand(const std::string &folder, std::ostream &out, std::ostream &err);

// The row order by pupil name (letters in any case), then file name.
std::vector<int> byName(const ClassRoll &roll);

} // namespace nb::record
