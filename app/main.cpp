// NUMBROOK: starts the window on the cover screen and runs until the program ends.
// `numbrook --help` and `numbrook --version` print and exit without opening a window; any other
// argument is left to Qt as before.
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
#include <QCommandLineParser>
#include <QRegularExpression>
#include <QTimer>

#include <cstdio>
#include <cstring>

namespace {

bool asksForText(int argc, char *argv[])
{
    for (int i = 1; i < argc; ++i)
        for (const char *word : {"-h", "--help", "-?", "--help-all", "-v", "--version"})
            if (std::strcmp(argv[i], word) == 0)
                return true;
    return false;
}

// Prints the help or the version; needs no window system.
int printText(int argc, char *argv[])
{
    QCoreApplication core(argc, argv);
    QCoreApplication::setApplicationName("numbrook");
    QCoreApplication::setApplicationVersion(QStringLiteral(NUMBROOK_VERSION));
    QCommandLineParser parser;
    parser.setApplicationDescription("NUMBROOK: arithmetic practice for primary-school children.\n"
                                     "Opens the program's window; a pupil types a name or loads a "
                                     "record and picks a topic.");
    parser.addHelpOption();
    parser.addVersionOption();
    parser.process(core); // prints and exits
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    if (asksForText(argc, argv))
        return printText(argc, argv);

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
    // The audio device is opened just after the window has painted, long before a first answer
    // can be typed, so that answer sounds at once and the first paint does not wait for it.
    if (platform.soundOn())
        QTimer::singleShot(200, &window, [&platform] { platform.sound().prepare(); });
    const QString first = qEnvironmentVariable("NUMBROOK_START", "cover");
    if (!window.start(first.toStdString()) && !app.ended()) {
        std::fprintf(stderr, "no screen called %s\n", qPrintable(first));
        return 1;
    }
    if (app.ended())
        return 0;
    return QApplication::exec();
}
