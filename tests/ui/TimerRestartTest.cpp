// A running clock starts its interval afresh when the screen raises its restart count, and only
// then: syncing for other reasons leaves it ticking on its own beat.
#include "core/App.h"
#include "core/Screen.h"
#include "ui/MainWindow.h"
#include "ui/QtPlatform.h"
#include "ui/ScreenView.h"

#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace nb::ui {
namespace {

class Clocked : public Screen
{
public:
    explicit Clocked(App &app)
        : Screen(app)
    {
        label("shown", "", 0, 0, 1000, 500);
        timer("clock", 4000, true);
    }
};

TEST(TimerRestart, RaisingTheCountStartsARunningIntervalAfresh)
{
    ScreenRegistry registry;
    registry.add<Clocked>("clocked", "Clocked");
    QtPlatform platform;
    App app(platform, registry);
    MainWindow window(app);
    platform.setWindow(&window);
    window.show();
    ASSERT_TRUE(window.start("clocked"));
    QTimer *clock = window.frontView()->timerFor("clock");
    ASSERT_TRUE(clock && clock->isActive());

    QTest::qWait(1000);
    Screen &s = *app.front();
    s.ctl("shown").caption = "changed";
    window.syncAll();
    // A clock keeps time to within 5% of its interval, hence the margins.
    EXPECT_LE(clock->remainingTime(), 3400) << "an ordinary sync keeps the beat";

    ++s.ctl("clock").timerRestarts;
    window.syncAll();
    EXPECT_GT(clock->remainingTime(), 3500);
    EXPECT_TRUE(clock->isActive());
}

} // namespace
} // namespace nb::ui
