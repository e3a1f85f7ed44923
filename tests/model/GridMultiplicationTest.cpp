// The grid screens box by box in the screen's order, with each box's colours and prompts.
#include "LayoutScreensTestSupport.h"
#include "activity/PraiseList.h"

#include <algorithm>

namespace nb::test {
namespace {

constexpr std::uint32_t kLightYellow = rgb(255, 255, 128);

TEST(GridMultiplication, EachBoxOpensInTurnWithItsColoursAndPrompt)
{
    struct Case
    {
        const char *screen;
        int a, b;
        const char *boxes; // in the order the screen opens them, with the right entry of each
    };
    const Case cases[] = {
        {"grid21", 57, 8,
         "question(1)=50 question(2)=7 question(10)=8 answers(11)=400 answers(12)=56 "
         "answerbox=456"},
        {"grid22", 64, 37,
         "question(1)=60 question(2)=4 question(10)=30 question(20)=7 answers(11)=1800 "
         "answers(12)=120 answers(21)=420 answers(22)=28 answerbox=2368"},
        {"grid31", 519, 9,
         "question(1)=500 question(2)=10 question(3)=9 question(10)=9 answers(11)=4500 "
         "answers(12)=90 answers(13)=81 answerbox=4671"},
        // The largest question: its product is beyond a 16-bit number.
        {"grid32", 599, 59,
         "question(1)=500 question(2)=90 question(3)=9 question(10)=50 question(20)=9 "
         "answers(11)=25000 answers(12)=4500 answers(13)=450 answers(21)=4500 answers(22)=810 "
         "answers(23)=81 answerbox=35341"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.screen);
        LayoutPupil p(c.screen);
        p.start(c.a, c.b);
        EXPECT_EQ(p.d.caption("questionbox"), numberText(c.a) + "x" + numberText(c.b));
        for (const ScriptEntry &e : script(c.boxes)) {
            SCOPED_TRACE(e.id);
            ASSERT_EQ(p.focusId(), e.id);
            // Only the waiting box takes entries.
            EXPECT_EQ(p.enabledBoxes(), std::vector<std::string>{e.id});
            const bool partition = e.name == "question";
            EXPECT_EQ(p.d.backColor(e.name, e.index),
                      partition ? colors::lightRed : colors::yellow);
            EXPECT_EQ(p.d.caption("text17"), partition ? "Set out the question."
                                             : e.name == "answers"
                                                 ? "Work out the answers in the grid."
                                                 : "Work out the answer to the question.");
            const int beeps = p.d.platform.beeps;
            p.enter(e.value);
            EXPECT_EQ(p.d.platform.beeps, beeps + 1);
            EXPECT_FALSE(p.d.enabled(e.name, e.index));
            if (e.name != "answerbox") {
                EXPECT_EQ(p.d.backColor(e.name, e.index), partition ? colors::red : kLightYellow);
            }
        }
        // The question is done: every box emptied, the praise shown, NEXT waiting.
        EXPECT_TRUE(p.enabledBoxes().empty());
        for (const ScriptEntry &e : script(c.boxes))
            EXPECT_EQ(p.d.caption(e.name, e.index), "") << e.id;
        EXPECT_EQ(p.d.caption("questionbox"), "");
        EXPECT_NE(std::find(kPraiseList.begin(), kPraiseList.end(), p.d.caption("text17")),
                  kPraiseList.end());
        EXPECT_EQ(p.focusName(), "Command10");
        EXPECT_TRUE(p.d.reachable("Command10"));
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
