#include "shell/record/FileName.h"

#include "shell/record/CodePage.h"

#include <algorithm>
#include <cctype>
#include <cstring>

namespace nb::record {

namespace {

// Characters of the text, one entry per character (its first byte is enough for these rules).
std::string leadBytes(std::string_view utf8)
{
    std::string out;
    for (char c : utf8)
        if ((static_cast<unsigned char>(c) & 0xC0) != 0x80)
            out += c;
    return out;
}

bool forbidden(char c)
{
    const auto b = static_cast<unsigned char>(c);
    return b < 32 || b == 127 || std::strchr("/\\:*?\"<>|", c) != nullptr;
}

} // namespace

SaveName checkSaveName(std::string_view typed)
{
    SaveName out;
    if (typed.empty())
        return out;
    out.verdict = SaveName::Verdict::Invalid;
    if (!isValidUtf8(typed))
        return out;
    const std::string chars = leadBytes(typed);
    std::size_t stem = chars.size();
    std::string name(typed);
    if (typed.ends_with(".dat")) {
        stem -= 4;
        if (stem > 8 || chars.substr(0, stem).find('.') != std::string::npos)
            return out;
    } else {
        if (stem > 8 || chars.find('.') != std::string::npos)
            return out;
        name += ".DAT";
    }
    if (name.find(' ') != std::string::npos || std::any_of(name.begin(), name.end(), forbidden))
        return out;
    out.verdict = SaveName::Verdict::Ok;
    out.name = std::move(name);
    return out;
}

bool hasRecordExtension(std::string_view fileName)
{
    if (fileName.size() < 4)
        return false;
    const std::string_view ext = fileName.substr(fileName.size() - 4);
    return ext[0] == '.' && std::tolower(static_cast<unsigned char>(ext[1])) == 'd' &&
           std::tolower(static_cast<unsigned char>(ext[2])) == 'a' &&
           std::tolower(static_cast<unsigned char>(ext[3])) == 't';
}

} // namespace nb::record
