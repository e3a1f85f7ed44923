// One dart as the window sees it, at 1920 x 1080 by default: the press on the board (or the
// computer's timer tick), the views brought up to date and the whole window repainted. The board
// is a cached picture and the dart marks are small controls over it, so a throw should cost
// little more than moving one mark. Prints the 50th and 99th percentiles in milliseconds, of the
// wall-clock time and of the thread's own CPU time. With a screen name and a file name it instead
// plays two darts on that screen and saves a picture of the window. Usage:
// bench_ui_darts_throw [throws [width height [screen [picture.png]]]]
#include "core/App.h"
#include "games/DartsCheckout.h"
#include "games/DartsFrame.h"
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
#include <map>
#include <string>
#include <vector>

namespace {

using nb::DartsFrame;

// The score of the dart on show, read as a pupil reads it.
int shownScore(nb::Screen &s)
{
    static const std::map<std::string, int> times = {
        {"Single", 1}, {"Double", 2}, {"Treble", 3},         {"Quad", 4},
        {"Bull", 1},   {"Missed", 0}, {"Outer bullseye", 1},
    };
    const std::string &n = s.ctl("text2").caption;
    const auto t = times.find(s.ctl("text1").caption);
    return (t == times.end() ? 0 : t->second) * (n.empty() ? 0 : std::atoi(n.c_str()));
}

// Types the right score left into whichever box is waiting for one.
void answer(nb::App &app, nb::Screen &s)
{
    for (auto [box, label] : {std::pair{"newtarget", "target"}, {"newtargetcom", "targetcom"}}) {
        nb::Control *c = s.find(box);
        if (!c || !c->enabled)
            continue;
        c->caption = std::to_string(std::atoi(s.ctl(label).caption.c_str()) - shownScore(s));
        app.keyPress(s, box, -1, 13);
        return;
    }
}

int remaining(nb::Screen &s)
{
    const nb::Control *p2 = s.find("newtargetcom");
    const bool second = p2 && p2->enabled;
    return std::max(2, std::atoi(s.ctl(second ? "targetcom" : "target").caption.c_str()));
}

void press(nb::App &app, nb::Screen &s, nb::PointTw p)
{
    app.mouseDown(s, "board", -1, p.x - DartsFrame::kBoardLeft, p.y - DartsFrame::kBoardTop);
}

} // namespace

int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication qapp(argc, argv);
    nb::ui::setUpApplication(qapp);
    const int throws = argc > 1 ? std::max(100, std::atoi(argv[1])) : 2000;
    const int width = argc > 3 ? std::atoi(argv[2]) : 1920;
    const int height = argc > 3 ? std::atoi(argv[3]) : 1080;
    const std::string screenName = argc > 4 ? argv[4] : "darts";
    const char *picture = argc > 5 ? argv[5] : nullptr;

    nb::ScreenRegistry registry;
    nb::registerAllScreens(registry);
    nb::ui::QtPlatform platform;
    // Names and a match of three games for the two-player screens; Yes to another game.
    platform.setAnswerer([](const nb::ui::BoxRequest &box) {
        std::string text = box.text.find("Player 1") != std::string::npos   ? "Ann"
                           : box.text.find("Player 2") != std::string::npos ? "Bob"
                                                                            : "3";
        return nb::ui::BoxAnswer{nb::kYes, text};
    });
    nb::App app(platform, registry);
    nb::ui::MainWindow window(app);
    platform.setWindow(&window);
    window.resize(width, height);
    window.show();
    if (!window.start(screenName)) {
        std::fprintf(stderr, "no screen called %s\n", screenName.c_str());
        return 1;
    }
    nb::Screen &screen = *app.front();
    nb::ui::ScreenView *view = window.frontView();
    app.click(screen, "Command1");
    window.syncAll();
    view->repaint(); // the first paint builds the board's cached picture
    QApplication::processEvents();

    if (picture) {
        // Wobble as set, one dart answered and one on show with its bed named.
        press(app, screen, nb::darts::computerAim(301).point);
        answer(app, screen);
        press(app, screen, nb::darts::bedAimPoint(false, 14, nb::darts::Bed::Double));
        window.syncAll();
        QApplication::processEvents();
        if (!window.grab().save(picture)) {
            std::fprintf(stderr, "could not save %s\n", picture);
            return 1;
        }
        return 0;
    }

    screen.ctl("scroller").value = 0;
    app.change(screen, "scroller");
    using Clock = std::chrono::steady_clock;
    const auto cpuMs = [] {
        timespec ts{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ts);
        return double(ts.tv_sec) * 1e3 + double(ts.tv_nsec) / 1e6;
    };
    std::vector<double> wall, cpu;
    for (int i = 0; i < throws; ++i) {
        const bool ticking = screen.ctl("Timer1").timerOn;
        const nb::PointTw aim = nb::darts::computerAim(remaining(screen)).point;
        const auto t0 = Clock::now();
        const double c0 = cpuMs();
        if (ticking)
            app.timerTick(screen, "Timer1");
        else
            press(app, screen, aim);
        window.syncAll();
        view->repaint();
        cpu.push_back(cpuMs() - c0);
        wall.push_back(std::chrono::duration<double, std::milli>(Clock::now() - t0).count());
        answer(app, screen);
        window.syncAll();
    }
    const auto report = [&](const char *what, std::vector<double> &ms) {
        std::sort(ms.begin(), ms.end());
        const auto at = [&](double q) { return ms[std::size_t(q * double(ms.size() - 1))]; };
        std::printf("  %-5s p50 %.3f ms  p99 %.3f ms  max %.3f ms\n", what, at(0.50), at(0.99),
                    ms.back());
    };
    std::printf("%s dart (press or computer tick) + full repaint, %dx%d, %d throws:\n",
                screenName.c_str(), view->width(), view->height(), throws);
    report("wall", wall);
    report("cpu", cpu);
    return 0;
}
