// The snap deck without a screen: every caption a pupil can meet is a right calculation of its
// card's value, the values of a deal differ, and the deal order is a fair shuffle.
#include "games/SnapDeck.h"
#include "SnapCaption.h"
#include "core/Random.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <vector>

namespace nb::test {
namespace {

using namespace nb::snap;

TEST(SnapDeck, EveryCaptionOfEveryLevelIsARightMentalCalculationInItsFixedOrder)
{
    for (int level = 1; level <= kLevels; ++level) {
        SCOPED_TRACE(level);
        for (const FactorPair &made : levelPairs(level)) {
            const int v = made.value();
            SCOPED_TRACE(v);
            // The other two products need V / 4; factors 1, 2 or 4 would make two of the three
            // products the same fact.
            EXPECT_EQ(v % 4, 0);
            for (int f : {made.a, made.b})
                EXPECT_TRUE(f != 1 && f != 2 && f != 4) << f;

            const auto captions = captionsOf(made);
            const std::string expected[kCaptions] = {std::to_string(made.a) + " x " +
                                                         std::to_string(made.b),
                                                     "2 x " + std::to_string(v / 2),
                                                     "4 x " + std::to_string(v / 4),
                                                     std::to_string(v - 1) + " + 1",
                                                     std::to_string(v + 1) + " - 1",
                                                     std::to_string(v + 2) + " - 2",
                                                     std::to_string(v + 3) + " - 3",
                                                     std::to_string(v + 10) + " - 10",
                                                     std::to_string(2 * v) + " \u00F7 2",
                                                     std::to_string(3 * v) + " \u00F7 3",
                                                     std::to_string(10 * v) + " \u00F7 10",
                                                     std::to_string(v + 5) + " - 5"};
            std::set<std::string> different;
            for (int c = 0; c < kCaptions; ++c) {
                EXPECT_EQ(captions[std::size_t(c)], expected[c]);
                EXPECT_EQ(captionValue(captions[std::size_t(c)]), v) << captions[std::size_t(c)];
                different.insert(captions[std::size_t(c)]);
            }
            EXPECT_EQ(different.size(), std::size_t(kCaptions));
        }
    }
}

TEST(SnapDeck, LevelsRiseFromSmallTableFactsAndEachHasFourValuesToDraw)
{
    int previousLargest = 0;
    for (int level = 1; level <= kLevels; ++level) {
        SCOPED_TRACE(level);
        std::set<int> values;
        int largestFactor = 0;
        for (const FactorPair &p : levelPairs(level)) {
            values.insert(p.value());
            largestFactor = std::max({largestFactor, p.a, p.b});
        }
        EXPECT_GE(values.size(), std::size_t(kValues));
        EXPECT_GT(*values.rbegin(), previousLargest);
        previousLargest = *values.rbegin();
        if (level == 1) {
            EXPECT_LE(largestFactor, 10);
            EXPECT_LE(*values.rbegin(), 60);
        }
    }
    // Anything but 2 and 3 plays level 1.
    for (int odd : {0, -1, 4, 99})
        EXPECT_EQ(levelPairs(odd).data(), levelPairs(1).data());
}

TEST(SnapDeck, DealsHaveFourDifferentValuesAndCardsSnapExactlyWhenTheirValuesAreEqual)
{
    for (int level = 1; level <= kLevels; ++level) {
        SCOPED_TRACE(level);
        const auto pairs = levelPairs(level);
        // Draws at both ends of [0, 1) and at random: each choice must stay in range.
        std::vector<Draw> sources = {[] { return 0.0; }, [] { return 0.9999999999; }};
        for (std::uint64_t seed = 1; seed <= 300; ++seed)
            sources.push_back([r = std::make_shared<UniformRandom>(seed)] { return r->next(); });
        std::set<int> seen;
        for (const Draw &draw : sources) {
            Deck deck;
            deck.make(level, draw);
            std::set<int> values;
            for (int k = 0; k < kValues; ++k) {
                const FactorPair made = deck.madeFrom(k);
                values.insert(made.value());
                seen.insert(made.value());
                EXPECT_TRUE(std::any_of(pairs.begin(), pairs.end(), [&](const FactorPair &p) {
                    return p.a == made.a && p.b == made.b;
                }));
            }
            ASSERT_EQ(values.size(), std::size_t(kValues));
            for (int a = 0; a < kCards; ++a) {
                ASSERT_EQ(captionValue(deck.caption(a)), deck.value(a)) << deck.caption(a);
                for (int b = 0; b < kCards; ++b)
                    ASSERT_EQ(snaps(a, b), deck.value(a) == deck.value(b)) << a << " " << b;
            }
        }
        // Random deals reach every value of the level.
        std::set<int> all;
        for (const FactorPair &p : pairs)
            all.insert(p.value());
        EXPECT_EQ(seen, all);
    }
}

TEST(SnapDeck, ShuffleDealsEveryCardOnceAndCanLeaveAnyCardInAnyPlace)
{
    Deck deck;
    UniformRandom r(7);
    const Draw draw = [&r] { return r.next(); };
    std::vector<int> stayedLast(kCards, 0), firstDealt(kCards, 0);
    constexpr int kShuffles = 4800;
    for (int n = 0; n < kShuffles; ++n) {
        deck.shuffle(draw);
        std::vector<int> order;
        for (int place = 0; place < kCards; ++place)
            order.push_back(deck.cardAt(place));
        std::sort(order.begin(), order.end());
        for (int place = 0; place < kCards; ++place)
            ASSERT_EQ(order[std::size_t(place)], place);
        ++stayedLast[std::size_t(deck.cardAt(kCards - 1))];
        ++firstDealt[std::size_t(deck.cardAt(0))];
    }
    // About 100 of each; a shuffle that never leaves a card where it was, or favours the low
    // numbers, falls far outside this.
    EXPECT_GT(stayedLast[kCards - 1], 50);
    for (int card = 0; card < kCards; ++card) {
        EXPECT_GT(firstDealt[std::size_t(card)], 50) << card;
        EXPECT_LT(firstDealt[std::size_t(card)], 160) << card;
    }
    // Draws at the very ends of [0, 1) stay inside the deck.
    for (double edge : {0.0, 0.9999999999}) {
        deck.shuffle([edge] { return edge; });
        std::set<int> cards;
        for (int place = 0; place < kCards; ++place)
            cards.insert(deck.cardAt(place));
        EXPECT_EQ(cards.size(), std::size_t(kCards));
    }
}

} // namespace
} // namespace nb::test
