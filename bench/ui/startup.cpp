// Cold start to the first painted window, and resident memory once it is up, for the program
// (on its cover and with the main menu) against a bare Qt Widgets window of about 100 widgets,
// measured in the same run, alternating, each a fresh process.
// Usage: bench_ui_startup <path to numbrook> [runs]
//        bench_ui_startup --bare   (the baseline window; used by the runner itself)
#include "ui/FirstPaint.h"

#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

int bareWindow(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QWidget w;
    auto *grid = new QGridLayout(&w);
    for (int i = 0; i < 100; ++i) {
        QWidget *c = nullptr;
        switch (i % 4) {
        case 0:
            c = new QPushButton(QString("Button %1").arg(i));
            break;
        case 1:
            c = new QLabel(QString("Label %1").arg(i));
            break;
        case 2:
            c = new QLineEdit(QString::number(i));
            break;
        default:
            c = new QCheckBox(QString("Box %1").arg(i));
            break;
        }
        grid->addWidget(c, i / 10, i % 10);
    }
    w.resize(1024, 768);
    nb::ui::FirstPaintReporter watcher;
    w.installEventFilter(&watcher);
    w.show();
    return app.exec();
}

struct Run
{
    double ms = 0;
    long rss = 0;
};

Run runOnce(const QString &program, const QStringList &args, const QStringList &env)
{
    QProcess p;
    QProcessEnvironment e = QProcessEnvironment::systemEnvironment();
    for (const QString &kv : env)
        e.insert(kv.section('=', 0, 0), kv.section('=', 1));
    p.setProcessEnvironment(e);
    QElapsedTimer t;
    t.start();
    p.start(program, args);
    Run r;
    while (p.waitForReadyRead(20000)) {
        const QByteArray line = p.readLine();
        if (line.startsWith("painted")) {
            r.ms = double(t.nsecsElapsed()) / 1e6;
            r.rss = line.mid(8).trimmed().toLong();
            break;
        }
    }
    p.waitForFinished(5000);
    if (p.state() != QProcess::NotRunning)
        p.kill();
    return r;
}

double median(std::vector<double> v)
{
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc > 1 && QByteArray(argv[1]) == "--bare")
        return bareWindow(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: %s <path to numbrook> [runs]\n", argv[0]);
        return 2;
    }
    QCoreApplication core(argc, argv);
    const QString numbrook = argv[1];
    const int runs = argc > 2 ? std::max(3, std::atoi(argv[2])) : 15;
    const QString self = QCoreApplication::applicationFilePath();
    const QStringList size = {"NUMBROOK_WINDOW=1024x768", "NUMBROOK_FIRST_PAINT_EXIT=1"};

    std::vector<double> bare, cover, menu, uncached;
    long bareRss = 0, coverRss = 0, menuRss = 0, uncachedRss = 0;
    for (int i = 0; i < runs + 1; ++i) { // the first round only warms the disk cache
        const Run b = runOnce(self, {"--bare"}, {});
        const Run c = runOnce(numbrook, {}, size);
        const Run m = runOnce(numbrook, {}, size + QStringList{"NUMBROOK_START=mainmenu"});
        // The cover with its picture rendered afresh, as on the very first start.
        const Run u = runOnce(numbrook, {}, size + QStringList{"NUMBROOK_NO_PICTURE_CACHE=1"});
        if (i == 0)
            continue;
        uncached.push_back(u.ms);
        uncachedRss = std::max(uncachedRss, u.rss);
        bare.push_back(b.ms);
        cover.push_back(c.ms);
        menu.push_back(m.ms);
        bareRss = std::max(bareRss, b.rss);
        coverRss = std::max(coverRss, c.rss);
        menuRss = std::max(menuRss, m.rss);
    }
    const double base = median(bare);
    std::printf("platform %s, %d runs each, medians\n",
                qPrintable(qEnvironmentVariable("QT_QPA_PLATFORM", "(default)")), runs);
    std::printf("  bare Qt window, 100 widgets: %7.1f ms to first paint, RSS %5.1f MiB\n", base,
                double(bareRss) / 1024);
    std::printf("  program, cover:              %7.1f ms (%.2fx), RSS %5.1f MiB\n", median(cover),
                median(cover) / base, double(coverRss) / 1024);
    std::printf("  program, main menu:          %7.1f ms (%.2fx), RSS %5.1f MiB\n", median(menu),
                median(menu) / base, double(menuRss) / 1024);
    std::printf("  cover, picture not cached:   %7.1f ms (%.2fx), RSS %5.1f MiB\n",
                median(uncached), median(uncached) / base, double(uncachedRss) / 1024);
    return 0;
}
