// The puzzles in the window: once a round is under way, Enter pressed again and again (as
// children do) never reaches EXIT and never ends the round.
#include "PlayInWindow.h"

namespace nb::ui {
namespace {

class PuzzleKeys : public PlayInWindow
{};

TEST_P(PuzzleKeys, EnterAfterStartKeepsTheRoundGoing)
{
    open(GetParam(), "exit");
    if (HasFatalFailure())
        return;
    Screen *screen = app.front();
    for (int i = 0; i < 6; ++i) {
        press(Qt::Key_Return);
        if (HasFatalFailure())
            return;
        ASSERT_EQ(app.front(), screen) << "after " << i + 1 << " presses of Enter";
    }
}

// Perfection: Enter moves on from the square the pupil is in, also one clicked into by hand.
TEST_F(PuzzleKeys, PerfectionEnterMovesOnFromAClickedSquare)
{
    open("perfection", "exit");
    if (HasFatalFailure())
        return;
    press(Qt::Key_Return); // START
    QWidget *first = focus();
    press(Qt::Key_Return);
    QWidget *second = focus();
    ASSERT_NE(second, first);
    // Back to the first square by hand, then Enter: on to the second again.
    QTest::mouseClick(first, Qt::LeftButton);
    window.syncAll();
    ASSERT_EQ(focus(), first);
    press(Qt::Key_5);
    press(Qt::Key_Return);
    EXPECT_EQ(focus(), second);
}

INSTANTIATE_TEST_SUITE_P(Puzzles, PuzzleKeys, ::testing::Values("search", "perfection"));

} // namespace
} // namespace nb::ui
