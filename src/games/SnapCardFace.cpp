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

// Share of the card's width kept clear of text on each side, and the pip size.
constexpr double kSideMargin = 0.09;
constexpr double kPip = 0.16;
// A character of the caption font is taken as this many ems wide (digits and signs in bold).
constexpr double kCharEms = 0.62;
constexpr double kMaxPoints = 40;

std::size_t characters(const std::string &s)
{
    return std::size_t(std::count_if(
        s.begin(), s.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

} // namespace

double fittingPoints(const std::string &text, double width, double maxPoints)
{
    const double n = double(std::max<std::size_t>(1, characters(text)));
    return std::min(maxPoints, width / (n * kCharEms * 20));
}

void drawFace(Drawing &d, double w, double h, int card, const std::string &caption)
{
    const Suit &suit = kSuits[std::size_t(card / 4 % 4)];
    d.clear();
    d.image(0, 0, w, h, "snap_card.svg");
    // A thin frame in the suit's colour, clear of the corner pips.
    const double pip = w * kPip, inset = w * 0.07;
    d.rect(inset + pip * 0.6, inset + pip * 0.6, w - inset - pip * 0.6 - w * 0.03,
           h - inset - pip * 0.6 - w * 0.03, rgb(255, 253, 247), suit.ink, 20);
    d.image(inset * 0.6, inset * 0.6, inset * 0.6 + pip, inset * 0.6 + pip, suit.picture);
    d.image(w - inset * 0.9 - pip, h - inset * 0.9 - pip, w - inset * 0.9, h - inset * 0.9,
            suit.picture);
    d.text(0, h * 0.3, w - w * 0.03, h * 0.7, caption, suit.ink,
           fittingPoints(caption, w * (1 - 2 * kSideMargin), kMaxPoints), true);
}

void drawPlace(Drawing &d, double w, double h)
{
    d.clear();
    // A faint outline on the cloth.
    const std::uint32_t chalk = rgb(120, 185, 140);
    d.rect(w * 0.04, w * 0.04, w * 0.93, h - w * 0.07, rgb(24, 104, 62), chalk, 30);
}

} // namespace nb::snap
