// Drives every registered screen with a long stream of random clicks, keys, pastes, ticks, mouse
// presses and box replies. Nothing may crash, hang or trip the sanitizers, whatever a child does.
#include "core/Random.h"
#include "support/Driver.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

namespace nb::test {
namespace {

namespace fs = std::filesystem;

TEST(RandomEvents, EveryScreenSurvivesAHundredThousandRandomEvents)
{
    const fs::path folder = fs::temp_directory_path() / "numbrook-random-events";
    fs::remove_all(folder);
    fs::create_directories(folder);
    UniformRandom rnd(20261122);
    const auto pick = [&rnd](std::size_t n) { return int(rnd.next() * double(n)); };
    const int keys[] = {'0', '1', '2', '3', '4', '5', '6', '7', '8',  '9',    '-', '.',
                        ' ', 'a', 'Z', 13,  13,  13,  8,   27,  0xE9, 0x4E2D, '/'};
    std::unique_ptr<Driver> d;
    int runs = 0;
    for (int i = 0; i < 100000; ++i) {
        if (!d || d->app.ended()) {
            d.reset();
            d = std::make_unique<Driver>();
            d->platform.setLenient(true, std::uint64_t(rnd.next() * 1e9));
            d->platform.setDocuments(folder.string());
            d->platform.setDrives({folder.string()});
            ++runs;
        }
        if (!d->app.front() || pick(500) == 0) {
            d->app.show(d->registry.entries()[pick(d->registry.entries().size())].name);
            continue;
        }
        Screen &s = d->front();
        std::vector<const Control *> usable;
        for (const Control &c : s.controls())
            if ((c.visible && c.enabled) || c.kind == ControlKind::Timer)
                usable.push_back(&c);
        if (usable.empty())
            continue;
        const Control &c = *usable[pick(usable.size())];
        const std::string name = c.name;
        switch (c.kind) {
        case ControlKind::Timer:
            if (c.timerOn)
                d->tick(name);
            break;
        case ControlKind::TextBox:
            if (pick(8) == 0 && !c.caption.empty()) // a cut that may split a character
                d->setText(name, c.caption.substr(0, c.caption.size() - 1), c.index);
            else
                d->key(name, keys[pick(std::size(keys))], c.index);
            break;
        case ControlKind::List:
        case ControlKind::ComboBox:
            if (!c.items.empty()) {
                d->select(name, pick(c.items.size()));
                if (pick(3) == 0 && d->reachable(name))
                    d->doubleClick(name);
            }
            break;
        case ControlKind::Canvas:
        case ControlKind::Image: {
            const int index = c.index;
            d->app.mouseDown(s, name, index, pick(std::size_t(std::max(1, c.width))),
                             pick(std::size_t(std::max(1, c.height))));
            if (pick(2) == 0 && d->app.isLive(s))
                d->app.click(s, name, index);
            break;
        }
        default:
            d->click(name, c.index);
            break;
        }
        if (d->platform.shown.size() > 1000)
            d->platform.clearShown();
    }
    EXPECT_GT(runs, 1) << "the program was ended at least once";
    d.reset();
    fs::remove_all(folder);
}

} // namespace
} // namespace nb::test
