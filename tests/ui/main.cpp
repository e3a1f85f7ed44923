// The window-layer tests run offscreen, with control ids exposed as accessible descriptions.
#include "ui/Look.h"

#include <QApplication>
#include <QStandardPaths>
#include <gtest/gtest.h>

int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("NUMBROOK_TEST_IDS", "1");
    QApplication app(argc, argv);
    nb::ui::setUpApplication(app);
    // Settings the tests change (the sound choice) go to a test folder, not the user's own.
    QStandardPaths::setTestModeEnabled(true);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
