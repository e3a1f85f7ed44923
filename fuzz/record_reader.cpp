// Feeds arbitrary bytes to the record reader. Whatever it is given it must not crash, must explain
// every refusal, and whatever it accepts must write out as a record that reads back to the same
// values and writes out again to the same bytes. The name rules and text code page get the bytes
// too.
#include "shell/record/CodePage.h"
#include "shell/record/FileName.h"
#include "shell/record/RecordCodec.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace {

void check(bool ok)
{
    if (!ok)
        __builtin_trap();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace nb::record;
    const std::string_view in(reinterpret_cast<const char *>(data), size);

    const Decoded d = decode(in);
    check(d.length <= size);
    if (!d.values) {
        check(!d.error.empty());
    } else {
        const std::string once = encode(*d.values);
        const Decoded again = decode(once);
        check(again.values.has_value() && again.length == once.size());
        check(encode(*again.values) == once);
    }

    const std::string_view head = in.substr(0, 256);
    const std::string text = fileBytesToText(head);
    check(isValidUtf8(text));
    check(fileBytesToText(textToFileBytes(text)) == text);

    const SaveName name = checkSaveName(head);
    if (name.verdict == SaveName::Verdict::Ok)
        check(name.name.find(' ') == std::string::npos && hasRecordExtension(name.name));
    return 0;
}
