// The grid screens as a pupil meets them: the parts of the factors set out, every cell worked out
// and the product typed, box by box in the screen's order, with each box's colours and the prompts.
#include "LayoutScreensTestSupport.h"
#include "activity/PraiseList.h"

#include <algorithm>

namespace nb::test {
namespace {

constexpr std::uint32_t kLightYellow = rgb(255, 255, 128);

struct GridCase
{
    const char *screen;
    int a, b;
    // The boxes in the order the screen opens them, with the right entry of each.
    std::vector<std::pair<std::string, int>> boxes;
};

const GridCase kGridCases[] = {
    {"grid21",
     57,
     8,
     {{"question(1)", 50},
      {"question(2)", 7},
      {"question(10)", 8},
      {"answers(11)", 400},
      {"answers(12)", 56},
      {"answerbox", 456}}},
    {"grid22",
     64,
     37,
     {{"question(1)", 60},
      {"question(2)", 4},
      {"question(10)", 30},
      {"question(20)", 7},
      {"answers(11)", 1800},
      {"answers(12)", 120},
      {"answers(21)", 420},
      {"answers(22)", 28},
      {"answerbox", 2368}}},
    {"grid31",
     519,
     9,
     {{"question(1)", 500},
      {"question(2)", 10},
      {"question(3)", 9},
      {"question(10)", 9},
      {"answers(11)", 4500},
      {"answers(12)", 90},
      {"answers(13)", 81},
      {"answerbox", 4671}}},
    {"grid32",
     345,
     27,
     {{"question(1)", 300},
      {"question(2)", 40},
      {"question(3)", 5},
      {"question(10)", 20},
      {"question(20)", 7},
      {"answers(11)", 6000},
      {"answers(12)", 800},
      {"answers(13)", 100},
      {"answers(21)", 2100},
      {"answers(22)", 280},
      {"answers(23)", 35},
      {"answerbox", 9315}}},
    // The largest question: its product is beyond a 16-bit number.
    {"grid32",
     599,
     59,
     {{"question(1)", 500},
      {"question(2)", 90},
      {"question(3)", 9},
      {"question(10)", 50},
      {"question(20)", 9},
      {"answers(11)", 25000},
      {"answers(12)", 4500},
      {"answers(13)", 450},
      {"answers(21)", 4500},
      {"answers(22)", 810},
      {"answers(23)", 81},
      {"answerbox", 35341}}},
};

TEST(GridMultiplication, EachBoxOpensInTurnWithItsColoursAndPrompt)
{
    for (const GridCase &c : kGridCases) {
        SCOPED_TRACE(c.screen);
        LayoutPupil p(c.screen);
        p.start(c.a, c.b);
        EXPECT_EQ(p.d.caption("questionbox"), numberText(c.a) + "x" + numberText(c.b));
        for (const auto &[box, value] : c.boxes) {
            SCOPED_TRACE(box);
            const int index = p.focusIndex();
            const std::string name = p.focusName();
            ASSERT_EQ(index < 0 ? name : name + "(" + std::to_string(index) + ")", box);
            // Only the waiting box takes entries.
            EXPECT_EQ(p.enabledBoxes(), std::vector<std::string>{box});
            const bool partition = name == "question";
            EXPECT_EQ(p.d.backColor(name, index), partition ? colors::lightRed : colors::yellow);
            EXPECT_EQ(p.d.caption("text17"), partition ? "Set out the question."
                                             : name == "answers"
                                                 ? "Work out the answers in the grid."
                                                 : "Work out the answer to the question.");
            const int beeps = p.d.platform.beeps;
            p.enter(value);
            EXPECT_EQ(p.d.platform.beeps, beeps + 1);
            EXPECT_FALSE(p.d.enabled(name, index));
            if (name != "answerbox") {
                EXPECT_EQ(p.d.backColor(name, index), partition ? colors::red : kLightYellow);
            }
        }
        // The question is done: every box emptied, the praise shown, NEXT waiting.
        EXPECT_TRUE(p.enabledBoxes().empty());
        for (const auto &[box, value] : c.boxes) {
            const auto open = box.find('(');
            const int index = open == std::string::npos ? -1 : std::stoi(box.substr(open + 1));
            EXPECT_EQ(p.d.caption(box.substr(0, open), index), "") << box;
        }
        EXPECT_EQ(p.d.caption("questionbox"), "");
        EXPECT_NE(std::find(kPraiseList.begin(), kPraiseList.end(), p.d.caption("text17")),
                  kPraiseList.end());
        EXPECT_TRUE(p.d.reachable("Command10"));
        EXPECT_EQ(p.d.front().focusName(), "Command10");
        EXPECT_EQ(p.d.caption("score"), "1");
        EXPECT_EQ(p.d.caption("time"), "0");
    }
}

TEST(GridMultiplication, ColoursStayUntilEachBoxIsReachedAgain)
{
    LayoutPupil p("grid21");
    p.start(57, 8);
    for (int v : {50, 7, 8, 400, 56, 456})
        p.enter(v);
    p.queue(34, 2);
    p.d.click("Command10");
    EXPECT_EQ(p.d.caption("questionbox"), "34x2");
    EXPECT_EQ(p.d.backColor("question", 1), colors::lightRed);
    EXPECT_EQ(p.d.backColor("question", 2), colors::red);
    EXPECT_EQ(p.d.backColor("answers", 12), kLightYellow);
    EXPECT_FALSE(p.d.enabled("question", 2));
    EXPECT_EQ(p.d.caption("text17"), "Set out the question.");
    EXPECT_FALSE(p.d.visible("Command10"));
}

} // namespace
} // namespace nb::test
