// The frame every grid and lattice screen shares, checked on all eight.
#include "LayoutScreensTestSupport.h"
#include "activity/AnswerBoxFilter.h"
#include "layouts/LayoutFrame.h"

namespace nb::test {
namespace {

// The right value of the waiting box, as the screen expects it.
int rightValue(Driver &d)
{
    const LayoutStep *step = dynamic_cast<LayoutFrame &>(d.front()).waiting();
    return step ? step->expected : -1;
}

// Answers every box of the question in front rightly (until the score moves on).
void answerQuestion(LayoutPupil &p)
{
    const std::string score = p.d.caption("score");
    for (int guard = 0; guard < 40; ++guard) {
        p.enter(rightValue(p.d));
        if (p.d.frontName() != p.s.name || p.d.caption("score") != score)
            return;
    }
    ADD_FAILURE() << "the question never ended";
}

// Answers the five questions of a run, with NEXT between them and `reply` to another go.
void playRun(LayoutPupil &p, int reply)
{
    for (int q = 1; q <= 5; ++q) {
        if (q == 5)
            p.d.platform.queueYesNo(reply);
        answerQuestion(p);
        if (q < 5) {
            EXPECT_EQ(p.d.caption("score"), numberText(q));
            p.d.click("Command10");
        }
    }
}

// The question with every digit at the low (or high) end of its range, as "AxB".
std::string extreme(const LayoutScreen &s, bool high)
{
    std::string out;
    for (const auto *ranges : {&s.a, &s.b}) {
        out += out.empty() ? "" : "x";
        for (const Range &r : *ranges)
            out += char('0' + (high ? r.hi : r.lo));
    }
    return out;
}

TEST(LayoutScreens, DigitsAreDrawnFromEachScreensRanges)
{
    for (const LayoutScreen &s : kLayoutScreens) {
        SCOPED_TRACE(s.name);
        Driver d;
        d.platform.setStrictDraws(true);
        d.open(s.name);
        for (std::size_t i = 0; i < s.a.size() + s.b.size(); ++i)
            d.platform.queueDraw(0.0);
        d.click("Command1");
        EXPECT_EQ(d.caption("questionbox"), extreme(s, false));
        for (std::size_t i = 0; i < s.a.size() + s.b.size() + 1; ++i)
            d.platform.queueDraw(0.99999);
        d.click("Command13"); // back to the menu and in again for a second first question
        d.open(s.name);
        d.click("Command1");
        EXPECT_EQ(d.caption("questionbox"), extreme(s, true));
    }
}

TEST(LayoutScreens, InputGuardClearsUntidyTextWithoutPenalty)
{
    struct Case
    {
        const char *typed;
        const char *after; // the box text once the keys are in
        int penalty;       // seconds added
    };
    const Case cases[] = {
        {"07\r", "", 0},  // cleared at the Enter, nothing checked
        {"075", "", 0},   // cleared at the next key, which is lost with it
        {"0755", "5", 0}, // ... so only the key after that goes in
        {"12a\r", "", 0}, // letters after digits
        {"a3", "", 0},    // a letter alone
        {"-5\r", "", 0},  // a sign alone reads as no number
        {"\r", "", 0},    // an empty box submits nothing
        {"3", "3", 0},    // an empty box takes the key
        {"0", "0", 0},    // a lone 0 stays
        {"0\r", "", 2},   // ... and is checked: wrong for a first box, which is never 0
    };
    for (const LayoutScreen &s : kLayoutScreens) {
        for (const Case &c : cases) {
            SCOPED_TRACE(std::string(s.name) + " " + c.typed);
            LayoutPupil p(s.name);
            p.start(p.aOf(3), p.bOf(3));
            const std::string box = p.focusName();
            const int index = p.focusIndex();
            p.d.type(box, c.typed, index);
            EXPECT_EQ(p.d.caption(box, index), c.after);
            EXPECT_EQ(p.d.caption("time"), numberText(c.penalty));
            EXPECT_EQ(p.d.platform.beeps, 0);
            EXPECT_EQ(p.focusName(), box);
            EXPECT_EQ(p.focusIndex(), index);
        }
    }
}

TEST(LayoutScreens, AWrongEntryCostsTwoSecondsAndKeepsTheSameBox)
{
    for (const LayoutScreen &s : kLayoutScreens) {
        SCOPED_TRACE(s.name);
        LayoutPupil p(s.name);
        p.start(p.aOf(4), p.bOf(3));
        int seconds = 0;
        while (!p.d.visible("Command10")) {
            const std::string box = p.focusName();
            const int index = p.focusIndex();
            const int right = rightValue(p.d);
            p.enter(right + 1);
            seconds += 2;
            EXPECT_EQ(p.d.caption("time"), numberText(seconds));
            EXPECT_EQ(p.d.caption(box, index), "");
            EXPECT_TRUE(p.d.reachable(box, index)) << box << index;
            EXPECT_EQ(p.d.platform.beeps, seconds / 2 - 1) << "only right entries beep";
            p.enter(right);
        }
        EXPECT_EQ(p.d.caption("score"), "1");
    }
}

TEST(LayoutScreens, DisabledBoxesTakeNoKeys)
{
    for (const LayoutScreen &s : kLayoutScreens) {
        SCOPED_TRACE(s.name);
        Driver d;
        Screen &screen = d.open(s.name);
        // Before START every box is disabled; during a question all but the waiting one are.
        for (int round = 0; round < 2; ++round) {
            for (Control &c : screen.controls()) {
                if (c.kind != ControlKind::TextBox || c.enabled)
                    continue;
                for (int key : {int('7'), 13, 8, int('a')})
                    EXPECT_EQ(d.app.keyPress(screen, c.name, c.index, key), 0) << c.id();
                EXPECT_EQ(c.caption, "") << c.id();
            }
            EXPECT_EQ(d.caption("time"), round == 0 ? "" : "0");
            if (round == 0)
                d.click("Command1");
        }
    }
}

TEST(LayoutScreens, FiveQuestionsEndWithTheBestTimeCheckOnTheScreensSlot)
{
    for (const LayoutScreen &s : kLayoutScreens) {
        SCOPED_TRACE(s.name);
        LayoutPupil p(s.name);
        p.d.progress().*s.best = Value::real(40);
        p.d.open(s.name);
        EXPECT_EQ(p.d.platform.messages(),
                  std::vector<std::string>{"Your best time is 40 seconds."});
        p.d.click("Command1");
        p.d.tick("Timer1", 30);
        playRun(p, kYes);
        EXPECT_EQ(p.d.platform.lastMessage(), "You completed 5 questions in 30 seconds. You have "
                                              "beaten your best time!!! Do you want another go ?");
        EXPECT_EQ((p.d.progress().*s.best).number(), 30);
        // Yes: a new run at once.
        EXPECT_EQ(p.d.caption("time"), "0");
        EXPECT_EQ(p.d.caption("score"), "0");
        EXPECT_TRUE(p.d.timerOn("Timer1"));
        EXPECT_FALSE(p.d.enabled("Command1"));
        EXPECT_EQ(p.focusName(), "question");

        // A slower run keeps the best; No goes back to the menu.
        p.d.tick("Timer1", 31);
        playRun(p, kNo);
        EXPECT_EQ(p.d.platform.lastMessage(),
                  "You completed 5 questions in 31 seconds.Do you want another go ?");
        EXPECT_EQ((p.d.progress().*s.best).number(), 30);
        EXPECT_EQ(p.d.frontName(), "mulmenu");
        EXPECT_FALSE(p.d.isOpen(s.name));
    }
}

TEST(LayoutScreens, AFirstRunIsStoredWithoutPraiseAndNextDoesNothingAfterTheFifth)
{
    LayoutPupil p("italian22");
    p.d.open("italian22");
    EXPECT_TRUE(p.d.platform.shown.empty()); // no best yet: nothing announced
    p.d.click("Command1");
    p.d.tick("Timer1", 12);
    playRun(p, kYes);
    EXPECT_EQ(p.d.platform.lastMessage(),
              "You completed 5 questions in 12 seconds.Do you want another go ?");
    EXPECT_EQ(p.d.progress().Mul22Best.number(), 12);
    // NEXT is hidden; pressed anyway, it changes nothing.
    const std::string question = p.d.caption("questionbox");
    EXPECT_FALSE(p.d.visible("Command10"));
    p.d.app.click(p.d.front(), "Command10");
    EXPECT_EQ(p.d.caption("questionbox"), question);
    EXPECT_EQ(p.d.caption("score"), "0");
}

TEST(LayoutScreens, KeysThatFindNoBoxGoToTheWaitingOne)
{
    for (const LayoutScreen &s : kLayoutScreens) {
        SCOPED_TRACE(s.name);
        LayoutPupil p(s.name);
        // Before START there is no box to type into and no clock: keys change nothing.
        p.d.open(s.name);
        p.d.screenKeys("5\r");
        EXPECT_EQ(p.d.caption("time"), "");
        EXPECT_FALSE(p.d.timerOn("Timer1"));
        p.queue(p.aOf(4), p.bOf(3));
        p.d.click("Command1");
        const std::string first = p.focusId();
        // The focus strayed onto EXIT: keys still land in the waiting box, guard and Enter too.
        p.d.front().setFocus("Command13");
        p.d.screenKeys("07");
        EXPECT_EQ(p.focusId(), first);
        EXPECT_EQ(p.d.caption(p.focusName(), p.focusIndex()), "07");
        p.d.screenKey(kEnterKey);
        EXPECT_EQ(p.d.caption(p.focusName(), p.focusIndex()), "");
        p.d.screenKeys(numberText(rightValue(p.d)) + "\r");
        EXPECT_EQ(p.d.platform.beeps, 1);
        EXPECT_NE(p.focusId(), first);
        EXPECT_EQ(p.d.caption("time"), "0");
        p.d.tick("Timer1", 3);
        EXPECT_EQ(p.d.caption("time"), "3");
        // Between questions NEXT keeps the focus and stray keys do nothing; EXIT leaves.
        answerQuestion(p);
        p.d.screenKeys("12\r");
        EXPECT_EQ(p.focusName(), "Command10");
        EXPECT_EQ(p.d.caption("score"), "1");
        p.d.click("Command13");
        EXPECT_EQ(p.d.frontName(), "mulmenu");
        EXPECT_FALSE(p.d.isOpen(s.name));
    }
}

} // namespace
} // namespace nb::test
