// Screen hand-over and single events as the pupil sees them: the model event, the views brought
// up to date and the window repainted at once. Hand-over: main menu -> addition menu -> main menu
// (each step shows one screen and closes another). Event: ticking a check box on a menu. Prints
// 50th and 99th percentiles (wall clock and the thread's CPU time) and the model-only cost.
// Usage: bench_ui_handover [rounds [width height]]
#include "core/App.h"
#include "core/Screen.h"
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
#include <functional>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

double cpuMs()
{
    timespec ts{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ts);
    return double(ts.tv_sec) * 1e3 + double(ts.tv_nsec) / 1e6;
}

struct Samples
{
    std::vector<double> wall, cpu;
    void time(const std::function<void()> &step)
    {
        const auto t0 = Clock::now();
        const double c0 = cpuMs();
        step();
        cpu.push_back(cpuMs() - c0);
        wall.push_back(std::chrono::duration<double, std::milli>(Clock::now() - t0).count());
    }
    static void line(const char *what, std::vector<double> v, const char *unit, double scale)
    {
        std::sort(v.begin(), v.end());
        const auto at = [&](double q) { return v[std::size_t(q * double(v.size() - 1))] * scale; };
        std::printf("  %-34s p50 %8.3f %s  p99 %8.3f %s\n", what, at(0.5), unit, at(0.99), unit);
    }
    void report(const char *what) const
    {
        std::printf("%s (%zu samples)\n", what, wall.size());
        line("wall clock incl. repaint", wall, "ms", 1);
        line("thread CPU incl. repaint", cpu, "ms", 1);
    }
};

} // namespace

int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication qapp(argc, argv);
    nb::ui::setUpApplication(qapp);
    const int rounds = argc > 1 ? std::max(50, std::atoi(argv[1])) : 1000;
    const int width = argc > 3 ? std::atoi(argv[2]) : 1920;
    const int height = argc > 3 ? std::atoi(argv[3]) : 1080;

    nb::ScreenRegistry registry;
    nb::registerAllScreens(registry);
    nb::ui::QtPlatform platform;
    platform.setAnswerer([](const nb::ui::BoxRequest &) { return nb::ui::BoxAnswer{nb::kNo, {}}; });
    nb::App app(platform, registry);
    nb::ui::MainWindow window(app);
    platform.setWindow(&window);
    window.resize(width, height);
    window.show();
    app.progress().Unsaved = nb::Value::int16(1);
    if (!window.start("mainmenu"))
        return 1;
    QApplication::processEvents();

    // As the event loop would right after the event: closed views are deleted, the window synced
    // and repainted.
    const auto clickAndPaint = [&](const char *control) {
        app.click(*app.front(), control);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        window.syncAll(true);
        window.frontView()->repaint();
    };
    // Warm up: every picture and font cache filled once, as after the first visit.
    for (int i = 0; i < 5; ++i) {
        clickAndPaint("Command5");
        clickAndPaint("Command7");
    }

    Samples handover, event;
    for (int i = 0; i < rounds; ++i) {
        handover.time([&] { clickAndPaint("Command5"); }); // main menu -> addition menu
        event.time([&] {
            nb::Screen &menu = *app.front();
            menu.ctl("equationneg").value ^= 1;
            clickAndPaint("equationneg");
        });
        handover.time([&] { clickAndPaint("Command7"); }); // EXIT -> main menu
    }

    // Where a hand-over's time goes: the model with the new view built, the sync, the paint.
    Samples build, sync, paint;
    for (int i = 0; i < rounds / 2; ++i) {
        for (const char *c : {"Command5", "Command7"}) {
            build.time([&] {
                app.click(*app.front(), c);
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            });
            sync.time([&] { window.syncAll(true); });
            paint.time([&] { window.frontView()->repaint(); });
        }
    }
    build.report("  part: event and new view built");
    sync.report("  part: views brought up to date");
    paint.report("  part: repaint");

    // The model alone: the same hand-over with no window listening.
    app.setListener(nullptr);
    std::vector<double> modelUs;
    for (int i = 0; i < rounds; ++i) {
        for (const char *c : {"Command5", "Command7"}) {
            const auto t0 = Clock::now();
            app.click(*app.front(), c);
            modelUs.push_back(std::chrono::duration<double, std::micro>(Clock::now() - t0).count());
        }
    }

    std::printf("window %dx%d, platform %s\n", width, height,
                qPrintable(QGuiApplication::platformName()));
    handover.report("screen hand-over (show the next screen, close this one)");
    event.report("one event on a menu (check box)");
    std::printf("model only (no window)\n");
    Samples::line("hand-over, wall clock", modelUs, "us", 1);
    app.setListener(&window);
    return 0;
}
