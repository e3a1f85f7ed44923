// The puzzles in the window: once a round is under way, Enter pressed again and again (as
// children do) never reaches EXIT and never ends the round.
#include "core/App.h"
#include "core/Screen.h"
#include "shell/AllScreens.h"
#include "ui/MainWindow.h"
#include "ui/QtPlatform.h"
#include "ui/ScreenView.h"

#include <QApplication>
#include <QTest>
#include <gtest/gtest.h>

namespace nb::ui {
namespace {

class PuzzleKeys : public ::testing::TestWithParam<const char *>
{
protected:
    PuzzleKeys()
    {
        registerAllScreens(registry);
        platform.setWindow(&window);
        platform.setAnswerer([](const BoxRequest &) { return BoxAnswer{kNo, {}}; });
    }

    QtPlatform platform;
    ScreenRegistry registry;
    App app{platform, registry};
    MainWindow window{app};
};

TEST_P(PuzzleKeys, EnterAfterStartKeepsTheRoundGoing)
{
    window.resize(1024, 768);
    window.show();
    ASSERT_TRUE(window.start(GetParam()));
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    window.syncAll(true);
    Screen *screen = app.front();
    QWidget *exit = window.frontView()->widgetFor("exit");
    ASSERT_NE(exit, nullptr);
    for (int i = 0; i < 6; ++i) {
        QWidget *focus = QApplication::focusWidget();
        ASSERT_NE(focus, exit) << "after " << i << " presses of Enter";
        if (focus)
            QTest::keyClick(focus, Qt::Key_Return);
        else
            QTest::keyClick(&window, Qt::Key_Return);
        window.syncAll();
        ASSERT_EQ(app.front(), screen) << "after " << i + 1 << " presses of Enter";
    }
}

// Perfection: Enter moves on from the square the pupil is in, also one clicked into by hand.
TEST_F(PuzzleKeys, PerfectionEnterMovesOnFromAClickedSquare)
{
    window.resize(1024, 768);
    window.show();
    ASSERT_TRUE(window.start("perfection"));
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    window.syncAll(true);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); // START
    window.syncAll();
    QWidget *first = QApplication::focusWidget();
    ASSERT_NE(first, nullptr);
    QTest::keyClick(first, Qt::Key_Return);
    window.syncAll();
    QWidget *second = QApplication::focusWidget();
    ASSERT_NE(second, first);
    // Back to the first square by hand, then Enter: on to the second again.
    QTest::mouseClick(first, Qt::LeftButton);
    window.syncAll();
    ASSERT_EQ(QApplication::focusWidget(), first);
    QTest::keyClick(first, Qt::Key_5);
    QTest::keyClick(first, Qt::Key_Return);
    window.syncAll();
    EXPECT_EQ(QApplication::focusWidget(), second);
}

INSTANTIATE_TEST_SUITE_P(Puzzles, PuzzleKeys, ::testing::Values("search", "perfection"));

} // namespace
} // namespace nb::ui
