#pragma once
// The pupil record file: the saved values of PupilProgress in their fixed order, each as a 16-bit
// type tag followed by its bytes, all little-endian, with nothing before, between or after them.
//
//   tag 0  empty             no further bytes
//   tag 2  16-bit integer    2 bytes
//   tag 3  32-bit integer    4 bytes
//   tag 4  single float      4 bytes, IEEE
//   tag 5  double            8 bytes, IEEE
//   tag 8  text              16-bit length n, then n bytes (see CodePage.h)
//
// Every value keeps its tag, so a record that is read and written again comes out the same.
#include "core/PupilProgress.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace nb::record {

using Values = std::array<Value, PupilProgress::kRecordFieldCount>;

// The most bytes a text can take, and so the longest record there can be.
constexpr std::size_t kMaxTextBytes = 0xFFFF;
constexpr std::size_t kMaxRecordBytes = PupilProgress::kRecordFieldCount * (2 + 2 + kMaxTextBytes);

Values valuesOf(const PupilProgress &progress);
void store(const Values &values, PupilProgress &progress);

// The bytes of a record. A text longer than kMaxTextBytes is cut (see encode's source for why).
std::string encode(const Values &values);
inline std::string encode(const PupilProgress &progress)
{
    return encode(valuesOf(progress));
}

struct Decoded
{
    std::optional<Values> values; // set only when all the values were read
    std::size_t length = 0;       // bytes the record took; anything after it is left alone
    std::string error;            // otherwise why not, in words a teacher can follow
};
// Reads a record from the start of the bytes. All or nothing: values is empty on any fault.
Decoded decode(std::string_view bytes);

} // namespace nb::record
