// Drives every registered screen with long streams of random clicks, keys, pastes, ticks, mouse
// presses and box replies, from several seeds, with the timers of every open screen running as
// they do in the window. Nothing may crash, hang or trip the sanitizers, whatever a child does,
// and the progress left at the end must save as a record that loads back the same.
#include "core/Random.h"
#include "shell/record/RecordFile.h"
#include "support/Driver.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

namespace nb::test {
namespace {

namespace fs = std::filesystem;

// One round of every running timer of every open screen, as the window's timers fire; a screen
// closed by an earlier tick gets no more.
void tickAllTimers(Driver &d)
{
    std::vector<std::pair<Screen *, std::string>> timers;
    for (Screen *s : d.app.openScreens())
        for (const Control &c : s->controls())
            if (c.kind == ControlKind::Timer)
                timers.emplace_back(s, c.name);
    for (const auto &[screen, name] : timers) {
        const auto open = d.app.openScreens();
        if (std::find(open.begin(), open.end(), screen) == open.end())
            continue;
        const auto &controls = screen->controls();
        const auto c = std::find_if(controls.begin(), controls.end(),
                                    [&](const Control &x) { return x.name == name; });
        if (c != controls.end() && c->timerOn && c->interval > 0)
            d.app.timerTick(*screen, name);
    }
}

// Leaves through the save screen as a pupil would; the file written must load back as the
// progress that was saved.
void saveAndLoadBack(Driver &d)
{
    d.app.close("Filesave"); // opened afresh, so a loaded pupil's record is written back
    const PupilProgress &p = d.progress();
    const std::string saved = record::encode(p);
    d.app.show("Filesave");
    fs::path file;
    if (p.LoadedFileName.isText() && !p.LoadedFileName.asText().empty()) {
        // Written back at once, to the folder the record came from.
        file = fs::path(p.RecordFolder.isText() ? p.RecordFolder.asText() : std::string()) /
               p.LoadedFileName.asText();
    } else {
        ASSERT_EQ(d.frontName(), "Filesave");
        file = fs::path(d.caption("lbldirname")) / "final.DAT";
        std::error_code ec;
        fs::remove(file, ec);
        d.setText("txtfilename", "final");
        d.click("cmdOK");
    }
    ASSERT_TRUE(d.app.ended()) << d.platform.lastMessage();
    const record::ReadOutcome read = record::readRecordFile(file);
    ASSERT_TRUE(read.values.has_value()) << file << ": " << read.problem;
    EXPECT_EQ(record::encode(*read.values), saved);
}

class RandomEvents : public ::testing::TestWithParam<std::uint64_t>
{};

TEST_P(RandomEvents, EveryScreenSurvivesRandomEventsAndTheRecordStillLoads)
{
    const fs::path folder =
        fs::temp_directory_path() / ("numbrook-random-events-" + std::to_string(GetParam()));
    fs::remove_all(folder);
    fs::create_directories(folder);
    UniformRandom rnd(GetParam());
    const auto pick = [&rnd](std::size_t n) { return int(rnd.next() * double(n)); };
    const int keys[] = {'0', '1', '2', '3', '4', '5', '6', '7', '8',  '9',    '-', '.',
                        ' ', 'a', 'Z', 13,  13,  13,  8,   27,  0xE9, 0x4E2D, '/'};
    std::unique_ptr<Driver> d;
    int runs = 0;
    for (int i = 0; i < 25000; ++i) {
        if (!d || d->app.ended()) {
            d.reset();
            d = std::make_unique<Driver>();
            d->platform.setLenient(true, std::uint64_t(rnd.next() * 1e9));
            d->platform.setDocuments(folder.string());
            d->platform.setDrives({folder.string()});
            ++runs;
        }
        if (pick(4) == 0)
            tickAllTimers(*d);
        if (d->app.ended())
            continue;
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
    if (d->app.ended()) {
        d = std::make_unique<Driver>();
        d->platform.setDocuments(folder.string());
        d->platform.setDrives({folder.string()});
        d->toMainMenu();
        d->newPupil("Last Pupil");
    }
    saveAndLoadBack(*d);
    d.reset();
    fs::remove_all(folder);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomEvents,
                         ::testing::Values(20261122u, 1u, 424242u, 987654321u));

} // namespace
} // namespace nb::test
