// numbrook-class: the class overview for teachers. Without arguments it opens a window on the
// records folder (or the folder last opened, or one named on the command line); with --csv
// FOLDER it writes the table as CSV to standard output and opens no window.
#include "classview/ClassWindow.h"
#include "shell/record/ClassRoll.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTimer>

#include <cstring>
#include <iostream>

int main(int argc, char *argv[])
{
    // The CSV command needs no window system: decide before making the application object.
    for (int i = 1; i < argc; ++i)
        if (std::strcmp(argv[i], "--csv") == 0) {
            if (i + 1 >= argc) {
                std::cerr << "numbrook-class: --csv needs a folder\n";
                return 2;
            }
            return nb::record::csvCommand(argv[i + 1], std::cout, std::cerr);
        }

    QApplication app(argc, argv);
    QApplication::setApplicationName("numbrook-class");
    QApplication::setApplicationVersion(QStringLiteral(NUMBROOK_VERSION));
    QCommandLineParser parser;
    parser.setApplicationDescription("NUMBROOK class overview: a folder of pupil records as one "
                                     "table.");
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOption({"csv", "Write the table of FOLDER as CSV to standard output.", "FOLDER"});
    parser.addPositionalArgument("folder", "The folder of pupil records to open.", "[folder]");
    parser.process(app);

    nb::classview::ClassWindow window;
    // NUMBROOK_SNAPSHOT=<file.png>: save the window as a picture once the table is shown, then
    // quit (for documentation and checks).
    const QString snapshot = qEnvironmentVariable("NUMBROOK_SNAPSHOT");
    if (!snapshot.isEmpty())
        QObject::connect(&window, &nb::classview::ClassWindow::shown, &window, [&window, snapshot] {
            QTimer::singleShot(300, &window, [&window, snapshot] {
                if (!window.grab().save(snapshot))
                    std::cerr << "could not save " << snapshot.toStdString() << "\n";
                QApplication::quit();
            });
        });
    const QStringList folders = parser.positionalArguments();
    window.openFolder(folders.isEmpty() ? nb::classview::ClassWindow::defaultFolder()
                                        : folders.first());
    window.show();
    return QApplication::exec();
}
