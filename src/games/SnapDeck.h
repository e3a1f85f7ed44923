#pragma once
// The snap deck: 48 cards carrying four values, each value written twelve different ways. Card n
// stands for value n % 4 and carries that value's caption n / 4, so two cards snap exactly when
// their numbers are equal modulo 4. The values are made from factor pairs of a level table; the
// deal order is a shuffle of the 48 card numbers.
#include <array>
#include <functional>
#include <span>
#include <string>

namespace nb::snap {

constexpr int kCards = 48;
constexpr int kValues = 4;
constexpr int kCaptions = 12; // ways to write one value
constexpr int kLevels = 3;

// A whole-number draw source: each call returns a uniform draw in [0, 1).
using Draw = std::function<double()>;

// The pair of factors a value is made from.
struct FactorPair
{
    int a = 0, b = 0;
    int value() const { return a * b; }
};

// The factor pairs a level draws its values from (level 1 to 3; anything else reads as level 1).
// Every pair is a fact a pupil of that level knows or can work out in their head; the product is a
// multiple of 4 (so it can also be written with 2 and with 4 as a factor) and neither factor is 1,
// 2 or 4 (so the three products are three different facts).
std::span<const FactorPair> levelPairs(int level);

// The twelve captions of the value made from `made`, in their fixed order: the three products
// (made, 2 x V/2, 4 x V/4), then + 1, - 1, - 2, - 3, - 10, ÷ 2, ÷ 3, ÷ 10 and - 5.
std::array<std::string, kCaptions> captionsOf(FactorPair made);

// Whether two cards show the same value.
constexpr bool snaps(int cardA, int cardB)
{
    return cardA % kValues == cardB % kValues;
}

class Deck
{
public:
    Deck();

    // Draws four different values of the level (and the factor pair each is made from) and writes
    // every card's caption. The deal order is left as it was.
    void make(int level, const Draw &draw);
    // A fresh deal order: every card number once, in a uniformly shuffled order.
    void shuffle(const Draw &draw);

    const std::string &caption(int card) const { return captions_[std::size_t(card)]; }
    int value(int card) const { return values_[std::size_t(card % kValues)].value(); }
    FactorPair madeFrom(int valueClass) const { return values_[std::size_t(valueClass)]; }
    // The card dealt at a place in the order (0 to 47).
    int cardAt(int place) const { return order_[std::size_t(place)]; }

private:
    std::array<FactorPair, kValues> values_{};
    std::array<std::string, kCards> captions_;
    std::array<int, kCards> order_{};
};

} // namespace nb::snap
