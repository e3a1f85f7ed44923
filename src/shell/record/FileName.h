#pragma once
// The rules for the name a pupil types on the save screen: a stem of at most eight characters
// with no dot or blank, saved with the extension ".DAT".
#include <string>
#include <string_view>

namespace nb::record {

struct SaveName
{
    enum class Verdict { Empty, Invalid, Ok };
    Verdict verdict = Verdict::Empty;
    std::string name; // Ok: the file name to write
};

// "tom" becomes "tom.DAT"; "tom.dat" is kept as typed; a longer stem, a dot in the stem or a blank
// anywhere is refused. Only the lower-case ending ".dat" is recognised, so "tom.DAT" typed by hand
// is refused for its dot, as it always was. Characters a file name cannot hold here or on the
// school machines records travel to (/ \ : * ? " < > | and control characters), and text that is
// not valid UTF-8, are refused too. Lengths count characters, not bytes.
SaveName checkSaveName(std::string_view typed);

// True when the name ends in ".dat" in any mix of cases. The file lists show every such file:
// names typed as "tom.dat" and saved as "tom.DAT" both belong to the program.
bool hasRecordExtension(std::string_view fileName);

} // namespace nb::record
