// The puzzles in the window: Enter pressed again and again never reaches EXIT.
#include "PlayInWindow.h"

namespace nb::ui {
namespace {

class PuzzleKeys : public PlayInWindow
{};

TEST_P(PuzzleKeys, EnterAfterStartKeepsTheRoundGoing)
{
    ASSERT_NO_FATAL_FAILURE(open(GetParam(), "exit"));
    Screen *screen = app.front();
    for (int i = 0; i < 6; ++i) {
        ASSERT_NO_FATAL_FAILURE(press(Qt::Key_Return));
        ASSERT_EQ(app.front(), screen) << "after " << i + 1 << " presses of Enter";
    }
}

TEST_F(PuzzleKeys, PerfectionEnterMovesOnFromAClickedSquare)
{
    ASSERT_NO_FATAL_FAILURE(open("perfection", "exit"));
    press(Qt::Key_Return); // START
    QWidget *first = focus();
    press(Qt::Key_Return);
    QWidget *second = focus();
    ASSERT_NE(second, first);
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
