// Record saves under faults from outside, on a real disk (the system's temporary folder, or the
// folder named by NUMBROOK_BENCH_DIR):
//   kills  a child process saves records in a loop, writing back one record and creating new
//          ones, and is killed at a random moment; every record left must read back whole, and
//          the next opening of the folder must clear every temporary file the kills left.
//   races  two processes save a new record under one name at the same moment, with each way a
//          name can be claimed (one-step exclusive rename, hard link, exclusive create); exactly
//          one must win and the file must hold the winner's record.
// Usage: bench_record_faults [kills] [races]   (defaults 500 and 200; the races run per way)
// Prints the figures and exits with 1 if any record was lost, mixed or left behind (or none was
// lost in the control).
#include "shell/record/FileCalls.h"
#include "shell/record/RecordFile.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <signal.h>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using namespace nb::record;
using Clock = std::chrono::steady_clock;

// The record of save number i: its name and a best time both say i, and the name's length varies,
// so a record mixed from two saves, or cut short, shows.
std::string recordNumber(long i)
{
    nb::PupilProgress p;
    p.PupilName =
        nb::Value::text("Pupil " + std::string(std::size_t(i % 97), 'x') + " " + std::to_string(i));
    p.MulBest = nb::Value::real(double(i));
    p.DartsBest = nb::Value::int32(std::int32_t(i));
    return encode(p);
}

// True when the file holds a whole record of one save.
bool wholeRecord(const fs::path &file)
{
    const ReadOutcome r = readRecordFile(file);
    if (!r.values)
        return false;
    nb::PupilProgress p;
    store(*r.values, p);
    if (!p.PupilName.isText())
        return false;
    const std::string &name = p.PupilName.asText();
    const long i = std::atol(name.substr(name.rfind(' ') + 1).c_str());
    // Bytes of an older, longer record may follow the record itself: those are kept on purpose.
    return name == "Pupil " + std::string(std::size_t(i % 97), 'x') + " " + std::to_string(i) &&
           p.MulBest.equalsNumber(double(i)) && p.DartsBest.equalsNumber(double(i));
}

bool temporaryName(const std::string &name)
{
    return name.starts_with(".numbrook-");
}

// Pretends the folder is opened three minutes later, when cut-short saves are stale.
class Later : public FileCalls
{
public:
    std::chrono::system_clock::time_point now() override
    {
        return FileCalls::now() + std::chrono::minutes(3);
    }
};

[[noreturn]] void saveForever(const fs::path &dir, int round)
{
    for (long i = 1;; ++i) {
        const std::string bytes = recordNumber(long(round) * 100000 + i);
        if (i % 2)
            writeRecordFile(dir / "tom.DAT", bytes, WriteMode::Replace);
        else
            writeRecordFile(dir /
                                ("new" + std::to_string(round) + "-" + std::to_string(i) + ".DAT"),
                            bytes, WriteMode::NewFile);
    }
}

bool kills(const fs::path &dir, int count)
{
    fs::create_directories(dir);
    writeRecordFile(dir / "tom.DAT", recordNumber(0), WriteMode::Replace);
    std::mt19937 rnd(20261122);
    int broken = 0, leftBehind = 0, records = 0;
    const auto start = Clock::now();
    for (int round = 0; round < count; ++round) {
        int ready[2];
        if (::pipe(ready) != 0)
            return false;
        const pid_t child = ::fork();
        if (child == 0) {
            ::close(ready[0]);
            [[maybe_unused]] const ssize_t sent = ::write(ready[1], "!", 1);
            saveForever(dir, round);
        }
        ::close(ready[1]);
        char c;
        [[maybe_unused]] const ssize_t n = ::read(ready[0], &c, 1);
        ::close(ready[0]);
        std::this_thread::sleep_for(std::chrono::microseconds(rnd() % 20000));
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        for (const auto &e : fs::directory_iterator(dir)) {
            const std::string name = e.path().filename().string();
            if (!temporaryName(name) && !wholeRecord(e.path())) {
                ++broken;
                std::printf("  not a whole record: %s\n", name.c_str());
            }
        }
    }
    for (const auto &e : fs::directory_iterator(dir))
        leftBehind += temporaryName(e.path().filename().string());
    Later later;
    {
        const UseFileCalls use(later);
        clearStaleTemporaries(dir);
    }
    int remaining = 0;
    for (const auto &e : fs::directory_iterator(dir)) {
        const std::string name = e.path().filename().string();
        remaining += temporaryName(name);
        records += !temporaryName(name);
    }
    const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
    std::printf("kills: %d kills in %.1f s; %d record files, %d not whole; %d temporary files "
                "left by the kills, %d after the folder was next opened\n",
                count, seconds, records, broken, leftBehind, remaining);
    return broken == 0 && remaining == 0;
}

// Makes the file system lack one-step exclusive renames (ways 1 and 2) and hard links (way 2), and
// counts the races decided when the record was given its name rather than by the first look. Way
// 3 is the control: a rename that replaces whatever is there, as a save that only looks first
// would do; the tool must see records lost there.
class Way : public FileCalls
{
public:
    explicit Way(int way)
        : way_(way)
    {}
    int renameNoReplace(const char *from, const char *to) override
    {
        placed = true;
        if (way_ == 3)
            return FileCalls::rename(from, to);
        if (way_ >= 1) {
            errno = EINVAL;
            return -1;
        }
        return FileCalls::renameNoReplace(from, to);
    }
    int link(const char *from, const char *to) override
    {
        if (way_ == 2) {
            errno = EPERM;
            return -1;
        }
        return FileCalls::link(from, to);
    }
    bool placed = false;

private:
    int way_;
};

bool races(const fs::path &dir, int count, int way)
{
    fs::create_directories(dir);
    const fs::path file = dir / "race.DAT";
    int lost = 0, atPlacement = 0;
    for (int round = 0; round < count; ++round) {
        fs::remove(file);
        const auto go = std::chrono::system_clock::now() + std::chrono::milliseconds(20);
        pid_t children[2];
        for (int who = 0; who < 2; ++who) {
            children[who] = ::fork();
            if (children[who] == 0) {
                Way calls(way);
                const UseFileCalls use(calls);
                const std::string bytes = recordNumber(round * 2 + who);
                while (std::chrono::system_clock::now() < go) {
                }
                const WriteOutcome out = writeRecordFile(file, bytes, WriteMode::NewFile);
                ::_exit(out.saved()                                     ? 0
                        : out.result == WriteOutcome::Result::NameTaken ? 1 + calls.placed
                                                                        : 9);
            }
        }
        int status[2];
        for (int who = 0; who < 2; ++who)
            ::waitpid(children[who], &status[who], 0);
        const int a = WEXITSTATUS(status[0]), b = WEXITSTATUS(status[1]);
        const bool oneWinner = (a == 0) != (b == 0) && a != 9 && b != 9;
        const int winner = a == 0 ? 0 : 1;
        const ReadOutcome held = readRecordFile(file);
        if (!oneWinner || !held.values ||
            encode(*held.values) != recordNumber(round * 2 + winner)) {
            ++lost;
            if (way != 3)
                std::printf("  race %d: exits %d and %d\n", round, a, b);
        }
        atPlacement += (a == 2 || b == 2);
    }
    int leftBehind = 0;
    for (const auto &e : fs::directory_iterator(dir))
        leftBehind += temporaryName(e.path().filename().string());
    static const char *ways[] = {"one-step exclusive rename", "hard link", "exclusive create",
                                 "control: a rename that replaces"};
    std::printf("races (%s): %d tries, %d with a record lost or mixed, %d decided as the record "
                "was given its name, %d temporary files left\n",
                ways[way], count, lost, atPlacement, leftBehind);
    return (way == 3) == (lost > 0) && leftBehind == 0;
}

} // namespace

int main(int argc, char **argv)
{
    const int killCount = argc > 1 ? std::atoi(argv[1]) : 500;
    const int raceCount = argc > 2 ? std::atoi(argv[2]) : 200;
    const char *base = std::getenv("NUMBROOK_BENCH_DIR");
    const fs::path dir = fs::path(base ? base : fs::temp_directory_path().string()) /
                         ("numbrook-faults-" + std::to_string(::getpid()));
    fs::remove_all(dir);
    bool ok = kills(dir / "kills", killCount);
    for (int way = 0; way < 4; ++way)
        ok = races(dir / ("races" + std::to_string(way)), raceCount, way) && ok;
    fs::remove_all(dir);
    return ok ? 0 : 1;
}
