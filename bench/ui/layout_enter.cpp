// One right entry on a lattice screen as the window sees it: the digits typed into the waiting
// box, then the timed part, the Enter key delivered to the box, the views brought up to date and
// the whole window repainted at once (the lattice's canvas is drawn afresh whenever its shading
// changes). By default italian32 in a 1920 x 1080 window. Prints the 50th and 99th percentiles in
// milliseconds, of the wall-clock time and of the thread's own CPU time. Usage:
//   bench_ui_layout_enter [enters [width height [screen]]]
//   bench_ui_layout_enter --shot <screen> <file.png> <width> <height> <boxes>
// The second form answers that many boxes of the first question, saves the window as a picture
// and stops (to look at a screen part-way through a question).
#include "core/App.h"
#include "core/NumberText.h"
#include "layouts/LayoutFrame.h"
#include "shell/AllScreens.h"
#include "ui/Look.h"
#include "ui/MainWindow.h"
#include "ui/QtPlatform.h"
#include "ui/ScreenView.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

#include <time.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace {

void sendKey(QWidget *w, int key, const QString &text)
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(w, &press);
}

// Types the waiting box's right value; returns the box's widget (nullptr between questions).
QWidget *typeRightValue(nb::ui::ScreenView &view, const nb::LayoutFrame &screen)
{
    const nb::LayoutStep *step = screen.waiting();
    if (!step)
        return nullptr;
    QWidget *box = view.widgetFor(step->box, step->index);
    for (char c : nb::numberText(step->expected))
        sendKey(box, Qt::Key_0 + (c - '0'), QString(QChar(c)));
    return box;
}

} // namespace

int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication qapp(argc, argv);
    nb::ui::setUpApplication(qapp);
    const bool shot = argc > 6 && std::strcmp(argv[1], "--shot") == 0;
    const int enters = !shot && argc > 1 ? std::max(100, std::atoi(argv[1])) : 3000;
    const int width = shot ? std::atoi(argv[4]) : argc > 3 ? std::atoi(argv[2]) : 1920;
    const int height = shot ? std::atoi(argv[5]) : argc > 3 ? std::atoi(argv[3]) : 1080;
    const std::string name = shot ? argv[2] : argc > 4 ? argv[4] : "italian32";

    nb::ScreenRegistry registry;
    nb::registerAllScreens(registry);
    nb::ui::QtPlatform platform;
    // Every fifth question ends a run; Yes starts another without a box.
    platform.setAnswerer([](const nb::ui::BoxRequest &) {
        return nb::ui::BoxAnswer{nb::kYes, {}};
    });
    nb::App app(platform, registry);
    nb::ui::MainWindow window(app);
    platform.setWindow(&window);
    window.resize(width, height);
    window.show();
    if (!window.start(name)) {
        std::fprintf(stderr, "no screen called %s\n", name.c_str());
        return 1;
    }
    auto *screen = dynamic_cast<nb::LayoutFrame *>(app.front());
    if (!screen) {
        std::fprintf(stderr, "%s is not a grid or lattice screen\n", name.c_str());
        return 1;
    }
    nb::ui::ScreenView *view = window.frontView();
    app.click(*screen, "Command1");
    window.syncAll();
    view->repaint();
    QApplication::processEvents();

    if (shot) {
        for (int i = std::atoi(argv[6]); i > 0; --i)
            if (QWidget *box = typeRightValue(*view, *screen))
                sendKey(box, Qt::Key_Return, "\r");
        QApplication::processEvents();
        return window.grab().save(argv[3]) ? 0 : 1;
    }

    using Clock = std::chrono::steady_clock;
    const auto cpuMs = [] {
        timespec ts{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ts);
        return double(ts.tv_sec) * 1e3 + double(ts.tv_nsec) / 1e6;
    };
    std::vector<double> wall, cpu;
    wall.reserve(std::size_t(enters));
    cpu.reserve(std::size_t(enters));
    while (int(wall.size()) < enters) {
        QWidget *box = typeRightValue(*view, *screen);
        if (!box) {
            app.click(*screen, "Command10");
            window.syncAll();
            continue;
        }
        const auto t0 = Clock::now();
        const double c0 = cpuMs();
        sendKey(box, Qt::Key_Return, "\r");
        window.syncAll();
        view->repaint();
        cpu.push_back(cpuMs() - c0);
        wall.push_back(std::chrono::duration<double, std::milli>(Clock::now() - t0).count());
    }
    const auto report = [&](const char *what, std::vector<double> &ms) {
        std::sort(ms.begin(), ms.end());
        const auto at = [&](double q) { return ms[std::size_t(q * double(ms.size() - 1))]; };
        std::printf("  %-5s p50 %.3f ms  p99 %.3f ms  max %.3f ms\n", what, at(0.50), at(0.99),
                    ms.back());
    };
    std::printf("%s right entry (Enter + sync + full repaint), %dx%d, %d entries:\n", name.c_str(),
                view->width(), view->height(), enters);
    report("wall", wall);
    report("cpu", cpu);
    return 0;
}
