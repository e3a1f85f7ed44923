#pragma once
// Text in record files. Names are stored in Windows-1252, one byte a character, which is what
// record files of this format hold; names with letters outside that code page are written as
// UTF-8 instead. In memory every text is UTF-8.
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace nb::record {

// True when the bytes are well-formed UTF-8 (no overlong forms, surrogates or values past
// U+10FFFF).
bool isValidUtf8(std::string_view bytes);
// True when the bytes are well-formed UTF-8 and hold at least one character of two or more bytes.
bool isMultibyteUtf8(std::string_view bytes);

// Windows-1252 bytes as UTF-8. All 256 bytes map to a character (the five bytes the code page
// leaves undefined map to the control characters of the same number), so the mapping can be
// undone exactly.
std::string cp1252ToUtf8(std::string_view bytes);
// UTF-8 text as Windows-1252, or nothing when the text is not valid UTF-8 or holds a character
// the code page lacks.
std::optional<std::string> utf8ToCp1252(std::string_view text);

// The bytes a record holds for a text: Windows-1252 when every character fits and the bytes would
// not be mistaken for UTF-8 on reading, else the UTF-8 bytes as they are.
std::string textToFileBytes(std::string_view text);
// The text a record's bytes stand for: UTF-8 when they are valid UTF-8 with a character of two or
// more bytes, else Windows-1252.
std::string fileBytesToText(std::string_view bytes);

} // namespace nb::record
