// The snap deck without a screen: every caption a pupil can meet works out to its card's value, the
// four values of a deal differ, and the deal order is a fair shuffle.
#include "games/SnapDeck.h"
#include "SnapCaption.h"
#include "core/Random.h"

#include <gtest/gtest.h>

#include <memory>
#include <set>

namespace nb::test {
namespace {

using namespace nb::snap;

TEST(SnapDeck, EveryCaptionOfEveryLevelWorksOutToItsValueInTheFixedOrder)
{
    // The fixed order, by the part of each caption that does not depend on the value.
    const char *forms[kCaptions] = {" x ",       "2 x ",      "4 x ",       " + 1",
                                    " - 1",      " - 2",      " - 3",       " - 10",
                                    " \u00F7 2", " \u00F7 3", " \u00F7 10", " - 5"};
    int largest = 0;
    for (int level = 1; level <= kLevels; ++level) {
        std::set<int> values;
        for (const FactorPair &made : levelPairs(level)) {
            const int v = made.value();
            SCOPED_TRACE(std::to_string(level) + ": " + std::to_string(v));
            // Factors 1, 2 or 4 would make two of the three products the same fact.
            for (int f : {made.a, made.b})
                EXPECT_TRUE(f != 1 && f != 2 && f != 4) << f;
            const auto captions = captionsOf(made);
            EXPECT_EQ(captions[0], std::to_string(made.a) + " x " + std::to_string(made.b));
            for (int c = 0; c < kCaptions; ++c) {
                const std::string &text = captions[std::size_t(c)];
                EXPECT_EQ(captionValue(text), v) << text;
                const std::string form = forms[c];
                EXPECT_TRUE(c == 0 || (c <= 2 ? text.starts_with(form) : text.ends_with(form)))
                    << text;
            }
            EXPECT_EQ(std::set<std::string>(captions.begin(), captions.end()).size(), 12u);
            values.insert(v);
        }
        // Enough values for a deal, and larger ones level by level; level 1 stays small.
        EXPECT_GE(values.size(), std::size_t(kValues));
        EXPECT_GT(*values.rbegin(), largest);
        largest = *values.rbegin();
        if (level == 1) {
            EXPECT_LE(largest, 60);
        }
    }
    EXPECT_EQ(levelPairs(0).data(), levelPairs(1).data());
    EXPECT_EQ(levelPairs(4).data(), levelPairs(1).data());
}

TEST(SnapDeck, DealsHaveFourDifferentValuesAndCardsSnapExactlyWhenTheirValuesAreEqual)
{
    for (int level = 1; level <= kLevels; ++level) {
        SCOPED_TRACE(level);
        // Draws at both ends of [0, 1), then at random: every choice must stay in range.
        std::vector<Draw> sources = {[] { return 0.0; }, [] { return 0.9999999999; }};
        for (std::uint64_t seed = 1; seed <= 300; ++seed)
            sources.push_back([r = std::make_shared<UniformRandom>(seed)] { return r->next(); });
        std::set<int> seen, all;
        for (const FactorPair &p : levelPairs(level))
            all.insert(p.value());
        for (const Draw &draw : sources) {
            Deck deck;
            deck.make(level, draw);
            std::set<int> values;
            for (int k = 0; k < kValues; ++k)
                values.insert(deck.madeFrom(k).value());
            ASSERT_EQ(values.size(), std::size_t(kValues));
            seen.insert(values.begin(), values.end());
            for (int a = 0; a < kCards; ++a) {
                ASSERT_EQ(captionValue(deck.caption(a)), deck.value(a)) << deck.caption(a);
                for (int b = 0; b < kCards; ++b)
                    ASSERT_EQ(snaps(a, b), deck.value(a) == deck.value(b)) << a << " " << b;
            }
        }
        EXPECT_EQ(seen, all) << "every value of the level comes up";
    }
}

TEST(SnapDeck, ShuffleDealsEveryCardOnceAndAnyCardCanComeFirstOrStayLast)
{
    Deck deck;
    UniformRandom r(7);
    std::vector<int> stayedLast(kCards, 0), first(kCards, 0);
    for (int n = 0; n < 4800; ++n) {
        deck.shuffle([&r] { return r.next(); });
        std::set<int> cards;
        for (int place = 0; place < kCards; ++place)
            cards.insert(deck.cardAt(place));
        ASSERT_EQ(cards.size(), std::size_t(kCards));
        ++stayedLast[std::size_t(deck.cardAt(kCards - 1))];
        ++first[std::size_t(deck.cardAt(0))];
    }
    // About 100 each; a shuffle that never leaves a card in place or favours some cards falls far
    // outside these bounds.
    EXPECT_GT(stayedLast[kCards - 1], 50);
    for (int count : first) {
        EXPECT_GT(count, 50);
        EXPECT_LT(count, 160);
    }
}

} // namespace
} // namespace nb::test
