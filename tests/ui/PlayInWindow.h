#pragma once
// A screen in a real window: keys go to the focus, which must never rest on the exit button.
// Boxes are answered No and their texts kept.
#include "core/App.h"
#include "core/Screen.h"
#include "shell/AllScreens.h"
#include "ui/MainWindow.h"
#include "ui/QtPlatform.h"
#include "ui/ScreenView.h"

#include <QApplication>
#include <QTest>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace nb::ui {

class PlayInWindow : public ::testing::TestWithParam<const char *>
{
protected:
    PlayInWindow()
    {
        registerAllScreens(registry);
        platform.setWindow(&window);
        platform.setAnswerer([this](const BoxRequest &r) {
            boxes.push_back(r.text);
            return BoxAnswer{kNo, {}};
        });
    }
    // Opens `screen` at 1024 x 768 with the window active; `exit` names its leaving button.
    void open(const char *screen, std::string exit)
    {
        exit_ = std::move(exit);
        window.resize(1024, 768);
        window.show();
        ASSERT_TRUE(window.start(screen));
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        window.syncAll(true);
    }
    QWidget *focus() { return QApplication::focusWidget(); }
    QWidget *widget(const std::string &name) { return window.frontView()->widgetFor(name); }
    void press(int key)
    {
        QWidget *f = focus();
        ASSERT_NE(f, nullptr);
        ASSERT_NE(f, widget(exit_)) << "Enter here would leave the screen";
        QTest::keyClick(f, Qt::Key(key));
        window.syncAll();
    }
    void click(const std::string &name)
    {
        QTest::mouseClick(widget(name), Qt::LeftButton);
        window.syncAll();
    }

    QtPlatform platform;
    ScreenRegistry registry;
    App app{platform, registry};
    MainWindow window{app};
    std::vector<std::string> boxes;

private:
    std::string exit_;
};

} // namespace nb::ui
