#pragma once
// Reading and writing record files on disk, and the folder records live in.
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

// Reads the record at the start of the file. Anything after the record is ignored (a save keeps
// the tail of a longer old file); a file longer than any record can be is refused unread.
ReadOutcome readRecordFile(const std::filesystem::path &file);

// Writes the record over the start of the file, keeping any bytes of an old, longer file beyond
// its end. The new content goes to a temporary file in the same folder, is flushed to the disk and
// then renamed over the old file, so a crash leaves the old record or the new one, never a mix.
// Returns an empty text on success, else what went wrong, e.g. "the disk is full".
std::string writeRecordFile(const std::filesystem::path &file, std::string_view record);

} // namespace nb::record
