// A pupil's claim in four in a row as the window sees it: the click on a cell holding the chosen
// sum (the cell turns red, the status labels change, the computer starts thinking), the views
// brought up to date and the whole window repainted at once, by default at 1920 x 1080. The
// computer's answer is made between claims and not timed; a finished game starts again. Prints the
// 50th and 99th percentiles in milliseconds of wall-clock and thread CPU time. With a file name,
// also saves a picture of the window part-way through a game and one of the first finished game.
// Usage: bench_ui_fourrow_claim [claims [width height [picture.png]]]
#include "core/App.h"
#include "games/FourRowFrame.h"
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
#include <string>
#include <vector>

namespace {

using namespace nb::fourrow;

// Chooses the numbers for the first free cell and returns that cell's id (0 when none is free).
int chooseForFirstFreeCell(nb::App &app, nb::Screen &screen)
{
    const auto &board = dynamic_cast<nb::FourRowFrame &>(screen).board();
    for (int row = kFirst; row <= kLast; ++row)
        for (int col = kFirst; col <= kLast; ++col) {
            if (!board.isFree(row, col))
                continue;
            for (int l = kFirst; l <= kLast; ++l)
                for (int r = kFirst; r <= kLast; ++r)
                    if (board.left(l) + board.right(r) == board.sum(row, col)) {
                        app.click(screen, "xvalue", l);
                        app.click(screen, "expression", r);
                        return cellId(row, col);
                    }
        }
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication qapp(argc, argv);
    nb::ui::setUpApplication(qapp);
    const int claims = argc > 1 ? std::max(100, std::atoi(argv[1])) : 2000;
    const int width = argc > 3 ? std::atoi(argv[2]) : 1920;
    const int height = argc > 3 ? std::atoi(argv[3]) : 1080;
    const char *picture = argc > 4 && argv[4][0] ? argv[4] : nullptr;
    const std::string screenName = argc > 5 ? argv[5] : "fourinarow";
    const bool twoPlayers = screenName == "twoplayerfourinarow";

    nb::ScreenRegistry registry;
    nb::registerAllScreens(registry);
    nb::ui::QtPlatform platform;
    nb::App app(platform, registry);
    nb::ui::MainWindow window(app);
    // Every box is answered at once; Yes starts the next game after a win, loss or draw. The
    // first finished game is saved as a picture too (the window is up to date when a box opens).
    bool endSaved = false;
    platform.setAnswerer([&](const nb::ui::BoxRequest &box) {
        if (picture && !endSaved && box.kind == nb::ui::BoxRequest::Kind::YesNo) {
            endSaved = true;
            const QString end = QString::fromLocal8Bit(picture).replace(".png", "-end.png");
            if (!window.grab().save(end))
                std::fprintf(stderr, "could not save %s\n", qPrintable(end));
        }
        return nb::ui::BoxAnswer{nb::kYes, {}};
    });
    platform.setWindow(&window);
    window.resize(width, height);
    window.show();
    if (!window.start(screenName)) {
        std::fprintf(stderr, "the screen %s could not be opened\n", screenName.c_str());
        return 1;
    }
    nb::Screen &screen = *app.front();
    nb::ui::ScreenView *view = window.frontView();
    app.click(screen, "Command1");
    if (twoPlayers) {
        for (const char *box : {"player1", "player2"}) {
            screen.find(box)->caption = box[6] == '1' ? "Ann" : "Ben";
            app.keyPress(screen, box, -1, 13);
        }
    }
    window.syncAll();
    view->repaint();
    QApplication::processEvents();

    using Clock = std::chrono::steady_clock;
    const auto cpuMs = [] {
        timespec ts{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ts);
        return double(ts.tv_sec) * 1e3 + double(ts.tv_nsec) / 1e6;
    };
    std::vector<double> wall, cpu;
    for (int i = 0; i < claims; ++i) {
        const int cell = chooseForFirstFreeCell(app, screen);
        window.syncAll();
        const auto t0 = Clock::now();
        const double c0 = cpuMs();
        app.click(screen, "Label1", cell);
        window.syncAll();
        view->repaint();
        cpu.push_back(cpuMs() - c0);
        wall.push_back(std::chrono::duration<double, std::milli>(Clock::now() - t0).count());
        if (!twoPlayers)
            app.timerTick(screen, "Timer1"); // the computer's answer
        window.syncAll();
        if (picture && i == 2) {
            chooseForFirstFreeCell(app, screen); // two numbers chosen, as a pupil would
            window.syncAll();
            view->repaint();
            if (!window.grab().save(picture))
                std::fprintf(stderr, "could not save %s\n", picture);
        }
    }
    const auto report = [&](const char *what, std::vector<double> &ms) {
        std::sort(ms.begin(), ms.end());
        const auto at = [&](double q) { return ms[std::size_t(q * double(ms.size() - 1))]; };
        std::printf("  %-5s p50 %.3f ms  p99 %.3f ms  max %.3f ms\n", what, at(0.50), at(0.99),
                    ms.back());
    };
    std::printf("%s claim + full repaint, %dx%d, %d claims:\n", screenName.c_str(), view->width(),
                view->height(), claims);
    report("wall", wall);
    report("cpu", cpu);
    return 0;
}
