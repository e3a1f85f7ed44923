// Every screen of the program opens in the window: each control kind it uses can be built,
// synced and painted, and the window title is the screen's title.
#include "shell/AllScreens.h"
#include "core/App.h"
#include "core/Screen.h"
#include "ui/MainWindow.h"
#include "ui/QtPlatform.h"
#include "ui/ScreenView.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

namespace nb::ui {
namespace {

TEST(AllScreens, EveryRegisteredScreenOpensInTheWindow)
{
    ScreenRegistry registry;
    registerAllScreens(registry);
    ASSERT_FALSE(registry.entries().empty());
    for (const ScreenRegistry::Entry &entry : registry.entries()) {
        SCOPED_TRACE(entry.name);
        QtPlatform platform;
        App app(platform, registry);
        MainWindow window(app);
        platform.setWindow(&window);
        // Opening announcements are answered the quiet way: OK, No, no text.
        platform.setAnswerer([](const BoxRequest &) { return BoxAnswer{kNo, {}}; });
        window.resize(900, 700);
        window.show();
        window.start(entry.name);
        if (Screen *s = app.find(entry.name); s && app.front() == s) {
            EXPECT_EQ(window.windowTitle().toStdString(), entry.title);
            ScreenView *view = window.viewOf(*s);
            ASSERT_NE(view, nullptr);
            const QImage shot = view->snapshot().toImage();
            EXPECT_FALSE(shot.isNull());
            for (const Control &c : s->controls()) {
                if (c.kind == ControlKind::Timer)
                    continue;
                EXPECT_NE(view->widgetFor(c.name, c.index), nullptr) << c.id();
            }
        }
        QCoreApplication::processEvents();
    }
}

} // namespace
} // namespace nb::ui
