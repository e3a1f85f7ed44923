#pragma once
// Reading and writing record files on disk, and the folder records live in. Every system call
// goes through FileCalls (FileCalls.h).
#include "shell/record/RecordCodec.h"

#include <filesystem>
#include <string>

namespace nb {
class Platform;
}

namespace nb::record {

// "NUMBROOK records" in the user's documents folder, created when missing; the documents folder
// itself when it cannot be created.
std::filesystem::path recordsFolder(Platform &platform);

struct ReadOutcome
{
    std::optional<Values> values; // set when the file held a whole record
    std::string problem;          // otherwise what is wrong, e.g. "the file is empty"
};
// True when the folder holds anything (a folder too) of that name, with letters in any case: the
// file lists show "tom.dat" and "tom.DAT" alike, so two such records would look like one pupil.
bool nameTaken(const std::filesystem::path &folder, const std::string &name);

// Reads the record at the start of the file and stops after its last value: whatever follows is
// never read (a save keeps the tail of a longer old file), however long the file is.
ReadOutcome readRecordFile(const std::filesystem::path &file);

enum class WriteMode {
    NewFile, // a new pupil's record: written only if nothing of that name exists
    Replace, // a loaded pupil's record: written over the file of that name, if any
};

struct WriteOutcome
{
    enum class Result { Saved, NameTaken, ReadOnly, Failed };
    Result result = Result::Saved;
    std::string problem; // Failed: what went wrong, e.g. "the disk is full"
    bool saved() const { return result == Result::Saved; }
};

// Writes the record. The new content goes to a temporary file in the same folder, is flushed to
// the disk and then moved to its name in one step, so a crash leaves the old record or the new
// one, never a mix. Replace writes over the start of the file, keeping any bytes of an old, longer
// file beyond the record, its permissions and its owner where the system allows; through a link
// it writes to the file linked to; a file marked read-only is left alone (ReadOnly). NewFile
// claims the name in the same step that fills it, so of two programs saving one name at once,
// one gets NameTaken. On any failure the temporary file is removed and the old file is untouched.
WriteOutcome writeRecordFile(const std::filesystem::path &file, std::string_view record,
                             WriteMode mode);

// Removes temporary files of saves in this folder that were cut short: those whose program is no
// longer running and that are more than a minute old. Returns how many were removed.
int clearStaleTemporaries(const std::filesystem::path &folder);

} // namespace nb::record
