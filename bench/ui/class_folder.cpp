// The class overview over a folder of 2,000 pupil records: from opening the folder to the table
// shown and painted. Usage: bench_ui_class_folder [pupils] [runs]
#include "classview/ClassWindow.h"
#include "core/PupilProgress.h"
#include "shell/record/RecordCodec.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <vector>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    const int pupils = argc > 1 ? std::max(1, std::atoi(argv[1])) : 2000;
    const int runs = argc > 2 ? std::max(1, std::atoi(argv[2])) : 7;
    QTemporaryDir dir;
    for (int i = 0; i < pupils; ++i) {
        nb::PupilProgress p;
        p.PupilName = nb::Value::text("Pupil " + std::to_string(i));
        p.AddBestNormal1 = nb::Value::real(10 + i % 50);
        p.MulBest = nb::Value::real(20 + i % 31);
        p.SearchBest1 = nb::Value::int16(std::int16_t(1 + i % 5));
        std::ofstream(dir.filePath(QString("p%1.DAT").arg(i)).toStdString(), std::ios::binary)
            << nb::record::encode(p);
    }
    std::vector<double> ms;
    for (int r = 0; r < runs; ++r) {
        nb::classview::ClassWindow w;
        w.resize(1280, 800);
        w.show();
        QCoreApplication::processEvents();
        QSignalSpy shown(&w, &nb::classview::ClassWindow::shown);
        QElapsedTimer t;
        t.start();
        w.openFolder(dir.path());
        if (!shown.wait(60000)) {
            std::fprintf(stderr, "the table was never shown\n");
            return 1;
        }
        w.repaint();
        ms.push_back(double(t.nsecsElapsed()) / 1e6);
    }
    std::sort(ms.begin(), ms.end());
    std::printf("%d records read and shown, %d runs: median %.1f ms, max %.1f ms\n", pupils, runs,
                ms[ms.size() / 2], ms.back());
    return 0;
}
