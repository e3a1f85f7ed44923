// Drives every registered screen with a long stream of random clicks, keys, ticks, mouse presses
// and box replies. Nothing may crash, hang or trip the sanitizers, whatever a child presses.
#include "core/Random.h"
#include "support/Driver.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

namespace nb::test {
namespace {

namespace fs = std::filesystem;

class RandomEvents
{
public:
    explicit RandomEvents(std::uint64_t seed)
        : rnd_(seed)
    {
        folder_ = fs::temp_directory_path() / ("numbrook-random-" + std::to_string(seed));
        fs::remove_all(folder_);
        fs::create_directories(folder_);
        restart();
    }
    ~RandomEvents()
    {
        d_.reset();
        std::error_code ec;
        fs::remove_all(folder_, ec);
    }

    void step()
    {
        if (d_->app.ended() || !d_->app.front() || pick(500) == 0) {
            if (d_->app.ended())
                restart();
            openAny();
            return;
        }
        Screen &s = d_->front();
        std::vector<const Control *> usable;
        for (const Control &c : s.controls())
            if ((c.visible && c.enabled) || c.kind == ControlKind::Timer)
                usable.push_back(&c);
        if (usable.empty())
            return;
        const Control &c = *usable[pick(int(usable.size()))];
        const std::string name = c.name;
        const int index = c.index;
        switch (c.kind) {
        case ControlKind::Timer:
            if (c.timerOn)
                d_->app.timerTick(s, name);
            break;
        case ControlKind::TextBox:
            typeSomething(s, name, index);
            break;
        case ControlKind::List:
        case ControlKind::ComboBox:
            if (!c.items.empty()) {
                s.ctl(name, index).listIndex = pick(int(c.items.size()));
                if (pick(3) == 0)
                    d_->app.doubleClick(s, name, index);
                else
                    d_->app.change(s, name, index);
            }
            break;
        case ControlKind::Canvas:
        case ControlKind::Image:
            d_->app.mouseDown(s, name, index, pick(std::max(1, c.width)),
                              pick(std::max(1, c.height)));
            if (pick(2) == 0 && d_->app.isLive(s))
                d_->app.click(s, name, index);
            break;
        case ControlKind::CheckBox:
            s.ctl(name, index).value ^= 1;
            d_->app.click(s, name, index);
            break;
        default:
            d_->app.click(s, name, index);
            break;
        }
        if (d_->platform.shown.size() > 1000)
            d_->platform.clearShown();
    }

    std::size_t restarts = 0;

private:
    int pick(int n) { return int(rnd_.next() * n); }

    void restart()
    {
        d_.reset();
        d_ = std::make_unique<Driver>();
        d_->platform.setLenient(true, rnd_.next() * 1e9);
        d_->platform.setDocuments(folder_.string());
        d_->platform.setDrives({folder_.string()});
        ++restarts;
    }

    void openAny()
    {
        const auto &entries = d_->registry.entries();
        d_->app.show(entries[pick(int(entries.size()))].name);
    }

    void typeSomething(Screen &s, const std::string &name, int index)
    {
        static const int keys[] = {'0', '1', '2', '3', '4', '5', '6', '7', '8',  '9',    '-', '.',
                                   ' ', 'a', 'Z', 13,  13,  13,  8,   27,  0xE9, 0x4E2D, '/'};
        const int k = keys[pick(int(std::size(keys)))];
        const int applied = d_->app.keyPress(s, name, index, k);
        if (!d_->app.isLive(s))
            return;
        Control *c = s.find(name, index);
        if (!c || applied == 0)
            return;
        if (applied == 8) {
            if (!c->caption.empty())
                c->caption.pop_back(); // may split a character: boxes must cope with odd bytes
        } else if (applied >= 32) {
            c->caption += utf8(applied);
        } else {
            return;
        }
        d_->app.change(s, name, index);
    }

    UniformRandom rnd_;
    fs::path folder_;
    std::unique_ptr<Driver> d_;
};

TEST(RandomEvents, EveryScreenSurvivesAHundredThousandRandomEvents)
{
    RandomEvents run(20261122);
    for (int i = 0; i < 100000; ++i)
        run.step();
    EXPECT_GE(run.restarts, 1u);
}

} // namespace
} // namespace nb::test
