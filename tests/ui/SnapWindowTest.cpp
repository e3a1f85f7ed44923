// Snap in the real window, played with the keyboard as two pupils would: names typed into the
// boxes, then A and L pressed wherever the focus happens to rest.
#include "core/App.h"
#include "core/PupilProgress.h"
#include "games/twoplayersnap.h"
#include "shell/AllScreens.h"
#include "ui/MainWindow.h"
#include "ui/QtPlatform.h"
#include "ui/ScreenView.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTest>
#include <gtest/gtest.h>

namespace nb::ui {
namespace {

class SnapWindow : public ::testing::Test
{
protected:
    SnapWindow()
    {
        registerAllScreens(registry);
        platform.setWindow(&window);
        platform.setAnswerer([this](const BoxRequest &r) {
            boxes.push_back(r.text);
            return BoxAnswer{kNo, {}};
        });
        window.resize(1000, 760);
        window.show();
        window.activateWindow();
        active = QTest::qWaitForWindowActive(&window);
        window.start("twoplayersnap");
        game = dynamic_cast<TwoPlayerSnap *>(app.front());
    }
    QWidget *widget(const char *name) { return window.frontView()->widgetFor(name); }
    std::string text(const char *name) { return game->ctl(name).caption; }
    void type(const QString &keys)
    {
        QTest::keyClicks(QApplication::focusWidget(), keys);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }
    void deal() { app.timerTick(*game, "Timer1"); }
    int total() const { return game->points(0) + game->points(1); }

    ScreenRegistry registry;
    QtPlatform platform;
    App app{platform, registry};
    MainWindow window{app};
    TwoPlayerSnap *game = nullptr;
    bool active = false;
    std::vector<std::string> boxes;
};

TEST_F(SnapWindow, NamesAreTypedInTheirBoxesAndTheKeysReachTheGameWhereverTheFocusIs)
{
    ASSERT_TRUE(active);
    ASSERT_NE(game, nullptr);
    EXPECT_EQ(window.windowTitle(), "snap");
    QTest::mouseClick(widget("start"), Qt::LeftButton);
    EXPECT_EQ(QApplication::focusWidget(), widget("player1"));
    type("Alla Lalalalalalala"); // too long: a message and an empty box
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes[0], "You must use less than 15 letters.");
    EXPECT_EQ(QApplication::focusWidget(), widget("player1"));
    type("Alla");
    EXPECT_EQ(text("p1score"), "Alla : 0");
    EXPECT_EQ(text("instruct"), "Player 2, enter your name.");
    EXPECT_EQ(QApplication::focusWidget(), widget("player2"));
    type("Lola");
    EXPECT_EQ(text("p2score"), "Lola : 0");
    EXPECT_EQ(text("instruct"), "Press your key to call SNAP!");
    EXPECT_EQ(total(), 0) << "the letters of the names call nothing";
    deal();

    // The focus rests on START: Enter and Space there do nothing, the players' keys call.
    ASSERT_EQ(QApplication::focusWidget(), widget("start"));
    QTest::keyClick(widget("start"), Qt::Key_Return);
    QTest::keyClick(widget("start"), Qt::Key_Space);
    EXPECT_EQ(total(), 0);
    EXPECT_EQ(game->cardsDealt(), 2);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_A);
    EXPECT_EQ(total(), 1);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_L, Qt::ShiftModifier);
    EXPECT_EQ(total(), 2);
    // A key held down repeats: only its first press calls.
    QKeyEvent held(QEvent::KeyPress, Qt::Key_L, Qt::NoModifier, "l", true);
    QApplication::sendEvent(QApplication::focusWidget(), &held);
    EXPECT_EQ(total(), 2);
    // With the focus moved to EXIT by a click elsewhere, a key still calls and nothing leaves.
    widget("exit")->setFocus();
    QTest::qWait(100); // a pupil's second press of a key, not the keyboard repeating it
    QTest::keyClick(widget("exit"), Qt::Key_A, Qt::ShiftModifier);
    EXPECT_EQ(total(), 3);
    EXPECT_EQ(app.front(), game);
    EXPECT_EQ(text("controller"), "");
}

} // namespace
} // namespace nb::ui
