// NUMBROOK: starts the window on the cover screen and runs until the program ends.
//
// Developer conveniences (no effect unless set):
//   NUMBROOK_START=<screen>       open that screen instead of the cover
//   NUMBROOK_WINDOW=<W>x<H>       initial window size in pixels
//   NUMBROOK_SNAPSHOT=<file.png>  save the window as a picture after NUMBROOK_SNAPSHOT_MS
//                                 milliseconds (default 800), then quit; boxes are answered at
//                                 once (OK, No, empty text) and written to standard error
//   NUMBROOK_FIRST_PAINT_EXIT=1   print "painted <resident KiB>" once the window has painted,
//                                 then quit (for the start-up benchmark)
#include "core/App.h"
#include "shell/AllScreens.h"
#include "shell/Leaving.h"
#include "ui/FirstPaint.h"
#include "ui/Look.h"
#include "ui/MainWindow.h"
#include "ui/QtPlatform.h"

#include <QApplication>
#include <QRegularExpression>
#include <QTimer>

#include <cstdio>

int main(int argc, char *argv[])
{
    QApplication qapp(argc, argv);
    nb::ui::setUpApplication(qapp);

    nb::ScreenRegistry registry;
    nb::registerAllScreens(registry);
    nb::ui::QtPlatform platform;
    nb::App app(platform, registry);
    nb::ui::MainWindow window(app);
    platform.setWindow(&window);
    // Closing the window with a pupil active offers to save, as EXIT on the main menu does.
    window.setCloseRequest([&app] { nb::leaveProgram(app); });
    QObject::connect(&window, &nb::ui::MainWindow::finished, &qapp, &QApplication::quit,
                     Qt::QueuedConnection);

    const QString size = qEnvironmentVariable("NUMBROOK_WINDOW");
    const QRegularExpressionMatch m = QRegularExpression("^(\\d+)x(\\d+)$").match(size);
    if (m.hasMatch())
        window.resize(m.captured(1).toInt(), m.captured(2).toInt());

    const QString snapshot = qEnvironmentVariable("NUMBROOK_SNAPSHOT");
    if (!snapshot.isEmpty()) {
        platform.setAnswerer([](const nb::ui::BoxRequest &box) {
            std::fprintf(stderr, "box: %s\n", box.text.c_str());
            return nb::ui::BoxAnswer{nb::kNo, {}};
        });
        bool ok = false;
        int delay = qEnvironmentVariableIntValue("NUMBROOK_SNAPSHOT_MS", &ok);
        if (!ok || delay < 0)
            delay = 800;
        QTimer::singleShot(delay, &window, [&window, snapshot] {
            if (!window.grab().save(snapshot))
                std::fprintf(stderr, "could not save %s\n", qPrintable(snapshot));
            QApplication::quit();
        });
    }

    nb::ui::FirstPaintReporter reporter;
    if (qEnvironmentVariableIntValue("NUMBROOK_FIRST_PAINT_EXIT") == 1)
        window.installEventFilter(&reporter);

    window.show();
    const QString first = qEnvironmentVariable("NUMBROOK_START", "cover");
    if (!window.start(first.toStdString()) && !app.ended()) {
        std::fprintf(stderr, "no screen called %s\n", qPrintable(first));
        return 1;
    }
    if (app.ended())
        return 0;
    return QApplication::exec();
}
