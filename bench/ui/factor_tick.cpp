// One computer move in the factor race as the window sees it: the timer tick, the views brought
// up to date and the whole window repainted at once, by default in a 3840 x 2160 window. The road
// is a cached picture, so a tick should cost little more than moving one car image. Prints the 50th
// and 99th percentiles in milliseconds, of the wall-clock time and of the thread's own CPU time
// (the second leaves out time lost to other programs on a busy machine). Usage:
// bench_ui_factor_tick [ticks [width height]]
#include "core/App.h"
#include "shell/AllScreens.h"
#include "ui/Look.h"
#include "ui/MainWindow.h"
#include "ui/QtPlatform.h"
#include "ui/ScreenView.h"

#include <QApplication>

#include <time.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication qapp(argc, argv);
    nb::ui::setUpApplication(qapp);
    const int ticks = argc > 1 ? std::max(100, std::atoi(argv[1])) : 3000;
    const int width = argc > 3 ? std::atoi(argv[2]) : 3840;
    const int height = argc > 3 ? std::atoi(argv[3]) : 2160;

    nb::ScreenRegistry registry;
    nb::registerAllScreens(registry);
    nb::ui::QtPlatform platform;
    // The race is lost every 55 moves; answering Yes starts it again without a box.
    platform.setAnswerer([](const nb::ui::BoxRequest &) {
        return nb::ui::BoxAnswer{nb::kYes, {}};
    });
    nb::App app(platform, registry);
    nb::ui::MainWindow window(app);
    platform.setWindow(&window);
    window.resize(width, height);
    window.show();
    if (!window.start("factor")) {
        std::fprintf(stderr, "the factor screen could not be opened\n");
        return 1;
    }
    nb::Screen &screen = *app.front();
    nb::ui::ScreenView *view = window.frontView();
    app.click(screen, "start");
    window.syncAll();
    view->repaint(); // the first paint builds the road's cached picture
    QApplication::processEvents();

    using Clock = std::chrono::steady_clock;
    const auto cpuMs = [] {
        timespec ts{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ts);
        return double(ts.tv_sec) * 1e3 + double(ts.tv_nsec) / 1e6;
    };
    std::vector<double> wall, cpu;
    wall.reserve(std::size_t(ticks));
    cpu.reserve(std::size_t(ticks));
    for (int i = 0; i < ticks; ++i) {
        const auto t0 = Clock::now();
        const double c0 = cpuMs();
        app.timerTick(screen, "compmover");
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
    std::printf("factor compmover tick + full repaint, %dx%d, %d ticks:\n", view->width(),
                view->height(), ticks);
    report("wall", wall);
    report("cpu", cpu);
    return 0;
}
