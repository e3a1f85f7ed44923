// Both four-in-a-row games in the real window, played as a child plays them: Enter pressed after
// every step, a double-click on PASS, clicks while the computer thinks. Enter must never give a
// turn away or leave the game, so the focus never rests on PASS or Exit.
#include "core/App.h"
#include "games/FourRowFrame.h"
#include "games/fourinarow.h"
#include "shell/AllScreens.h"
#include "ui/MainWindow.h"
#include "ui/QtPlatform.h"
#include "ui/ScreenView.h"

#include <QApplication>
#include <QLabel>
#include <QTest>
#include <gtest/gtest.h>

namespace nb::ui {
namespace {

class FourRowWindow : public ::testing::Test
{
protected:
    FourRowWindow()
    {
        registerAllScreens(registry);
        platform.setWindow(&window);
        platform.setAnswerer([this](const BoxRequest &r) {
            boxes.push_back(r.text);
            return BoxAnswer{kYes, {}};
        });
    }

    void open(const char *screen)
    {
        window.resize(960, 720);
        window.show();
        ASSERT_TRUE(window.start(screen));
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        window.syncAll(true);
    }
    QWidget *widget(const std::string &name, int index = -1)
    {
        QWidget *w = window.frontView()->widgetFor(name, index);
        EXPECT_TRUE(w) << name;
        return w;
    }
    void click(const std::string &name, int index = -1)
    {
        QTest::mouseClick(widget(name, index), Qt::LeftButton);
    }
    void doubleClick(const std::string &name)
    {
        QWidget *w = widget(name);
        QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {},
                           w->mapTo(&window, w->rect().center()));
        QCoreApplication::processEvents();
    }
    // Enter on whatever has the focus, as a child presses it after everything.
    void enter()
    {
        QWidget *f = QApplication::focusWidget();
        QTest::keyClick(f ? f : &window, Qt::Key_Return);
    }
    void type(const std::string &box, const QString &text)
    {
        QTest::keyClicks(widget(box), text);
        QTest::keyClick(widget(box), Qt::Key_Return);
    }
    std::string text1() { return static_cast<QLabel *>(widget("text1"))->text().toStdString(); }
    const fourrow::FourRowBoard &board()
    {
        return dynamic_cast<FourRowFrame &>(*app.front()).board();
    }
    void expectSafeFocus()
    {
        QWidget *f = QApplication::focusWidget();
        EXPECT_NE(f, widget("pass"));
        EXPECT_NE(f, widget("exit"));
    }

    QtPlatform platform;
    ScreenRegistry registry;
    App app{platform, registry};
    MainWindow window{app};
    std::vector<std::string> boxes;
};

TEST_F(FourRowWindow, EnterAndDoubleClicksNeverCostTheTwoPlayersATurn)
{
    open("twoplayerfourinarow");
    enter(); // Start
    EXPECT_EQ(text1(), "Player 1, please enter your name.");
    type("player1", "Ann");
    type("player2", "Ben");
    EXPECT_EQ(text1(), "Ann choose your two numbers.");
    expectSafeFocus();
    enter();
    EXPECT_EQ(text1(), "Ann choose your two numbers.");

    // PASS clicked, then Enter pressed twice: the turn passes once.
    click("pass");
    EXPECT_EQ(text1(), "Ben choose your two numbers.");
    expectSafeFocus();
    enter();
    enter();
    EXPECT_EQ(text1(), "Ben choose your two numbers.");

    QTest::qWait(QApplication::doubleClickInterval() + 50);
    doubleClick("pass");
    EXPECT_EQ(text1(), "Ann choose your two numbers.") << "the second press passed it back";
    EXPECT_EQ(board().claimed(), 0);
    EXPECT_TRUE(boxes.empty());
}

TEST_F(FourRowWindow, EnterAndClicksWhileTheComputerThinksChangeNothing)
{
    open("fourinarow");
    enter(); // Start, then the OK box about the clock
    EXPECT_EQ(boxes, std::vector<std::string>{"You are allowed 60 seconds for each turn."});
    expectSafeFocus();
    click("pass");
    EXPECT_EQ(text1(), "Wait a moment, I am thinking!!!");
    expectSafeFocus();
    enter();
    enter();
    click("xvalue", 4);
    click("Label1", 404);
    doubleClick("pass");
    EXPECT_EQ(board().claimed(), 0);
    EXPECT_EQ(boxes.size(), 1u);
    // The computer moves once after its delay, and the turn is the pupil's again.
    QTest::qWait(FourInARow::kThinkingMs + 400);
    EXPECT_EQ(board().claimed(), 1);
    EXPECT_EQ(text1(), "Choose a number from the left, followed by a number from the right.");
    expectSafeFocus();
}

} // namespace
} // namespace nb::ui
