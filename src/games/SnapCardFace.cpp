#include "games/SnapCardFace.h"

#include "core/Control.h"

#include <algorithm>
#include <array>

namespace nb::snap {

namespace {

struct Suit
{
    const char *picture;
    std::uint32_t ink;
};
constexpr std::array<Suit, 4> kSuits = {{{"snap_heart.svg", rgb(190, 25, 40)},
                                         {"snap_spade.svg", rgb(30, 36, 48)},
                                         {"snap_diamond.svg", rgb(190, 25, 40)},
                                         {"snap_club.svg", rgb(30, 36, 48)}}};

// Shares of the card's width: where the drawn card ends (its shadow lies beyond), the frame's
// distance from the edge, the pip size and the clear space between the text and the frame.
constexpr double kCardRight = 0.968;
constexpr double kFrameInset = 0.06;
constexpr double kPip = 0.15;
constexpr double kTextMargin = 0.05;
// A character of the caption font is taken as this many ems wide (digits and signs in bold).
constexpr double kCharEms = 0.56;
constexpr double kMaxPoints = 40;

// The largest text size (points), at most maxPoints, at which a line of text fits across width.
double fittingPoints(const std::string &text, double width, double maxPoints)
{
    const double n = std::max(1, characterCount(text));
    return std::min(maxPoints, width / (n * kCharEms * 20));
}

} // namespace

int characterCount(const std::string &text)
{
    return int(std::count_if(text.begin(), text.end(), [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
    }));
}

void drawFace(Drawing &d, double w, double h, int card, const std::string &caption)
{
    const Suit &suit = kSuits[std::size_t(card / 4 % 4)];
    d.clear();
    d.image(0, 0, w, h, "snap_card.svg");
    // The picture's card stops short of its right and bottom edges, where its shadow falls.
    const double right = w * kCardRight, bottom = h - w * (1 - kCardRight);
    // A thin frame in the suit's colour with a pip in two of its corners.
    const double inset = w * kFrameInset, pip = w * kPip, gap = w * 0.03;
    d.rect(inset, inset, right - inset, bottom - inset, rgb(255, 253, 247), suit.ink, 20);
    d.image(inset + gap, inset + gap, inset + gap + pip, inset + gap + pip, suit.picture);
    d.image(right - inset - gap - pip, bottom - inset - gap - pip, right - inset - gap,
            bottom - inset - gap, suit.picture);
    const double room = right - 2 * inset - 2 * w * kTextMargin;
    d.text(inset, h * 0.3, right - inset, h * 0.7, caption, suit.ink,
           fittingPoints(caption, room, kMaxPoints), true);
}

void drawPlace(Drawing &d, double w, double h)
{
    d.clear();
    // A faint outline on the cloth.
    const std::uint32_t chalk = rgb(120, 185, 140);
    d.rect(w * 0.04, w * 0.04, w * 0.93, h - w * 0.07, rgb(24, 104, 62), chalk, 30);
}

} // namespace nb::snap
