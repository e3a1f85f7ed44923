#pragma once
// The ten praise texts shown when a written-method question is complete, one picked at random.
#include <array>
#include <string_view>

namespace nb {

inline constexpr std::array<std::string_view, 10> kPraiseList = {
    "That's correct !",
    "That's fantastic !",
    "You've got the hang of these !",
    "You are doing well !",
    "Way to go dude !",
    "Brilliant !",
    "You can do these well !",
    "That's brainy !",
    "Excellent !",
    "Superb !",
};

// Entry Int(10 r) for a uniform draw r in [0, 1), so each text is equally likely.
inline std::string_view praiseFor(double draw)
{
    const int i = int(draw * 10);
    return kPraiseList[std::size_t(i < 0 ? 0 : i > 9 ? 9 : i)];
}

} // namespace nb
