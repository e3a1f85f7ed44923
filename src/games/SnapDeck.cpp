#include "games/SnapDeck.h"

#include "core/Random.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace nb::snap {

namespace {

// Level 1: times-table facts up to 10 x 10 with products up to 60.
constexpr FactorPair kLevel1[] = {{3, 8}, {6, 6}, {5, 8}, {6, 8}, {7, 8}, {6, 10}};

// Level 2: facts up to 12 x 12 with products from 56 to 100.
constexpr FactorPair kLevel2[] = {{7, 8},  {6, 10}, {5, 12}, {8, 8},  {8, 9},  {6, 12},
                                  {8, 10}, {7, 12}, {8, 11}, {8, 12}, {10, 10}};

// Level 3: a one-digit number times a teen or twenties number, and the larger table facts, with
// products from 84 to 200.
constexpr FactorPair kLevel3[] = {{6, 14},  {8, 13}, {6, 18}, {7, 16},  {8, 14}, {8, 15},
                                  {6, 20},  {5, 24}, {6, 22}, {11, 12}, {7, 20}, {9, 16},
                                  {12, 12}, {8, 20}, {9, 20}, {12, 15}, {8, 25}};

std::string product(int a, int b)
{
    return std::to_string(a) + " x " + std::to_string(b);
}

std::string written(int n, const char *rest)
{
    return std::to_string(n) + rest;
}

} // namespace

std::span<const FactorPair> levelPairs(int level)
{
    switch (level) {
    case 2:
        return kLevel2;
    case 3:
        return kLevel3;
    default:
        return kLevel1;
    }
}

std::array<std::string, kCaptions> captionsOf(FactorPair made)
{
    const int v = made.value();
    return {product(made.a, made.b),
            product(2, v / 2),
            product(4, v / 4),
            written(v - 1, " + 1"),
            written(v + 1, " - 1"),
            written(v + 2, " - 2"),
            written(v + 3, " - 3"),
            written(v + 10, " - 10"),
            written(2 * v, " \u00F7 2"),
            written(3 * v, " \u00F7 3"),
            written(10 * v, " \u00F7 10"),
            written(v + 5, " - 5")};
}

Deck::Deck()
{
    std::iota(order_.begin(), order_.end(), 0);
}

void Deck::make(int level, const Draw &draw)
{
    const std::span<const FactorPair> pairs = levelPairs(level);
    // The level's different values, smallest first; four of them are drawn without repeats, then
    // the pair each one is made from (a value such as 72 can come from 8 x 9 or 6 x 12).
    std::vector<int> choices;
    for (const FactorPair &p : pairs)
        choices.push_back(p.value());
    std::sort(choices.begin(), choices.end());
    choices.erase(std::unique(choices.begin(), choices.end()), choices.end());
    for (int k = 0; k < kValues; ++k) {
        const int last = int(choices.size()) - 1;
        std::swap(choices[std::size_t(k)], choices[std::size_t(wholeFromDraw(draw(), k, last))]);
    }
    for (int k = 0; k < kValues; ++k) {
        std::vector<FactorPair> makers;
        for (const FactorPair &p : pairs)
            if (p.value() == choices[std::size_t(k)])
                makers.push_back(p);
        values_[std::size_t(k)] =
            makers[std::size_t(wholeFromDraw(draw(), 0, int(makers.size()) - 1))];
    }
    for (int k = 0; k < kValues; ++k) {
        const auto captions = captionsOf(values_[std::size_t(k)]);
        for (int c = 0; c < kCaptions; ++c)
            captions_[std::size_t(c * kValues + k)] = captions[std::size_t(c)];
    }
}

void Deck::shuffle(const Draw &draw)
{
    std::iota(order_.begin(), order_.end(), 0);
    for (int i = kCards - 1; i > 0; --i)
        std::swap(order_[std::size_t(i)], order_[std::size_t(wholeFromDraw(draw(), 0, i))]);
}

} // namespace nb::snap
