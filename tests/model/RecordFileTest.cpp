// The record file layer on a real disk, with failing calls and awkward file systems.
#include "shell/record/RecordFile.h"
#include "model/RecordFileSupport.h"

#include <gtest/gtest.h>

#include <barrier>
#include <chrono>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace nb::test {
namespace {

namespace fs = std::filesystem;
using record::WriteMode;
using Result = record::WriteOutcome::Result;
using Step = FaultyFileCalls::Step;

std::string recordOf(const std::string &name, double best)
{
    PupilProgress p;
    p.PupilName = Value::text(name);
    p.MulBest = Value::real(best);
    return record::encode(p);
}

mode_t modeOf(const fs::path &p)
{
    struct stat st
    {};
    return ::lstat(p.c_str(), &st) == 0 ? st.st_mode & 07777 : 0;
}

class RecordFile : public ::testing::Test
{
protected:
    void SetUp() override { dir = emptyTestFolder(); }
    void TearDown() override { fs::remove_all(dir); }
    void emptyFolder()
    {
        fs::remove_all(dir);
        fs::create_directories(dir);
    }

    record::WriteOutcome write(const std::string &bytes, WriteMode mode,
                               const std::string &name = "tom.DAT")
    {
        return record::writeRecordFile(dir / name, bytes, mode);
    }

    fs::path dir;
    const std::string mine = recordOf("Tom Lee", 12.5);
    const std::string theirs = recordOf("Tom Brown", 40);
};

TEST_F(RecordFile, EveryFailingStepKeepsTheOldRecordAndLeavesNothingBehind)
{
    const struct
    {
        WriteMode mode;
        Step step;
        int at;
        int err;
        std::size_t writeLimit;
        std::string problem;
    } cases[] = {
        {WriteMode::NewFile, Step::OpenNew, 1, EACCES, 0, "this folder cannot be written to"},
        {WriteMode::NewFile, Step::Write, 1, ENOSPC, 0, "the disk is full"},
        {WriteMode::NewFile, Step::Write, 3, EIO, 50, "input/output error"}, // after short ones
        {WriteMode::NewFile, Step::Fsync, 1, EIO, 0, "input/output error"},
        {WriteMode::NewFile, Step::Close, 1, EDQUOT, 0, "the disk is full"},
        {WriteMode::NewFile, Step::RenameNoReplace, 1, EIO, 0, "input/output error"},
        {WriteMode::Replace, Step::OpenNew, 1, EROFS, 0, "this folder cannot be written to"},
        {WriteMode::Replace, Step::Write, 2, ENOSPC, 0, "the disk is full"}, // in the old tail
        {WriteMode::Replace, Step::Lseek, 1, EIO, 0, "input/output error"},
        {WriteMode::Replace, Step::Fsync, 1, EIO, 0, "input/output error"},
        {WriteMode::Replace, Step::Close, 1, EIO, 0, "input/output error"},
        {WriteMode::Replace, Step::Rename, 1, ENOSPC, 0, "the disk is full"},
    };
    const std::string old = theirs + std::string(200000, 't'); // a tail to copy
    for (const auto &c : cases) {
        SCOPED_TRACE(&c - cases);
        emptyFolder();
        spit(dir / (c.mode == WriteMode::Replace ? "tom.DAT" : "ann.DAT"), old);
        const auto before = entries(dir);
        FaultyFileCalls calls;
        calls.failStep = c.step;
        calls.failAt = c.at;
        calls.failErr = c.err;
        calls.writeLimit = c.writeLimit;
        const record::UseFileCalls use(calls);
        const record::WriteOutcome out = write(mine, c.mode);
        EXPECT_EQ(out.result, Result::Failed);
        EXPECT_EQ(out.problem, c.problem);
        EXPECT_EQ(entries(dir), before) << "no temporary file left, no record made";
        EXPECT_EQ(slurp(dir / before[0]), old);
    }
}

// Short writes, no exclusive rename, no hard links, no flush: whole records, no overwrites.
TEST_F(RecordFile, NewRecordsArriveWholeOrNotAtAllWhateverTheFileSystem)
{
    const struct
    {
        std::size_t writeLimit;
        bool noRenameNoReplace;
        bool noLink;
        bool noFsync = false;
    } cases[] = {{0, false, false},
                 {7, false, false},
                 {0, true, false},
                 {7, true, true},
                 {0, false, false, true}};
    for (const auto &c : cases)
        for (const bool clash : {false, true}) {
            SCOPED_TRACE(::testing::Message() << "case " << &c - cases << (clash ? " clash" : ""));
            emptyFolder();
            FaultyFileCalls calls;
            calls.writeLimit = c.writeLimit;
            calls.noRenameNoReplace = c.noRenameNoReplace;
            calls.noLink = c.noLink;
            if (c.noFsync) {
                calls.failStep = Step::Fsync;
                calls.failErr = EINVAL;
            }
            if (clash)
                calls.clashWith = theirs;
            const record::UseFileCalls use(calls);
            EXPECT_EQ(write(mine, WriteMode::NewFile).result,
                      clash ? Result::NameTaken : Result::Saved);
            EXPECT_EQ(slurp(dir / "tom.DAT"), clash ? theirs : mine);
            EXPECT_EQ(entries(dir), std::vector<std::string>{"tom.DAT"});
            EXPECT_EQ(calls.placements, 1);
            // Once the name is there, a new pupil never even starts writing.
            EXPECT_EQ(write(mine, WriteMode::NewFile).result, Result::NameTaken);
            EXPECT_EQ(calls.placements, 1);
        }
}

TEST_F(RecordFile, TwoProgramsSavingOneNameAtOnceNeverLoseARecord)
{
    for (const int fallback : {0, 1, 2}) {
        FaultyFileCalls calls;
        calls.noRenameNoReplace = fallback >= 1;
        calls.noLink = fallback >= 2;
        const record::UseFileCalls use(calls);
        for (int round = 0; round < 40; ++round) {
            SCOPED_TRACE(std::to_string(fallback) + " round " + std::to_string(round));
            fs::remove(dir / "tom.DAT");
            const std::string records[2] = {recordOf("First", round), recordOf("Second", round)};
            Result results[2];
            std::barrier start(2);
            const auto save = [&](int i) {
                start.arrive_and_wait();
                results[i] = write(records[i], WriteMode::NewFile).result;
            };
            std::thread other(save, 1);
            save(0);
            other.join();
            ASSERT_EQ(int(results[0] == Result::Saved) + int(results[1] == Result::Saved), 1);
            const int winner = results[0] == Result::Saved ? 0 : 1;
            EXPECT_EQ(results[1 - winner], Result::NameTaken);
            EXPECT_EQ(slurp(dir / "tom.DAT"), records[winner]);
            EXPECT_EQ(entries(dir), std::vector<std::string>{"tom.DAT"});
        }
    }
}

TEST_F(RecordFile, WritingBackKeepsWhatIsThereOrLeavesItAlone)
{
    const std::string tail = std::string(3000, 'x');
    spit(dir / "tail.DAT", theirs + tail);
    fs::permissions(dir / "tail.DAT", fs::perms(0640));
    fs::create_directories(dir / "real");
    spit(dir / "real" / "linked.DAT", theirs);
    fs::create_symlink("real/linked.DAT", dir / "linked.DAT");
    fs::create_symlink("nowhere.DAT", dir / "broken.DAT");
    fs::create_symlink("loop2.DAT", dir / "loop1.DAT");
    fs::create_symlink("loop1.DAT", dir / "loop2.DAT");
    ASSERT_EQ(::mkfifo((dir / "pipe.DAT").c_str(), 0644), 0);
    fs::create_directories(dir / "folder.DAT");
    spit(dir / "locked.DAT", theirs);
    fs::permissions(dir / "locked.DAT", fs::perms(0444));
    const std::string longName = std::string(251, 'a') + ".DAT"; // the longest a name can be

    const struct
    {
        std::string name;
        Result result;
        std::string problem;
    } cases[] = {
        {"tail.DAT", Result::Saved, ""},
        {"linked.DAT", Result::Saved, ""},
        {longName, Result::Saved, ""},
        {"broken.DAT", Result::Failed, "the name is a link to a file that cannot be found"},
        {"loop1.DAT", Result::Failed, "the name is a link to a file that cannot be found"},
        {"pipe.DAT", Result::Failed, "there is something other than a file with that name"},
        {"folder.DAT", Result::Failed, "there is a folder with that name"},
        {"locked.DAT", Result::ReadOnly, ""},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name.substr(0, 20));
        const auto before = entries(dir);
        const record::WriteOutcome out = write(mine, WriteMode::Replace, c.name);
        EXPECT_EQ(out.result, c.result);
        EXPECT_EQ(out.problem, c.problem);
        EXPECT_EQ(entries(dir).size(), before.size() + (c.name == longName));
    }
    EXPECT_EQ(slurp(dir / "tail.DAT"), mine + (theirs + tail).substr(mine.size()));
    EXPECT_EQ(modeOf(dir / "tail.DAT"), 0640u);
    EXPECT_TRUE(fs::is_symlink(dir / "linked.DAT"));
    EXPECT_EQ(slurp(dir / "real" / "linked.DAT"), mine + theirs.substr(mine.size()));
    EXPECT_EQ(slurp(dir / longName), mine);
    EXPECT_EQ(write(mine, WriteMode::Replace, longName).result, Result::Saved) << "and again";
    EXPECT_TRUE(fs::is_symlink(dir / "broken.DAT"));
    EXPECT_FALSE(fs::exists(dir / "nowhere.DAT"));
    EXPECT_TRUE(fs::is_fifo(dir / "pipe.DAT"));
    EXPECT_EQ(slurp(dir / "locked.DAT"), theirs);
    EXPECT_EQ(modeOf(dir / "locked.DAT"), 0444u);

    // A new pupil never writes over any of them.
    for (const std::string name :
         {"tail.DAT", "linked.DAT", "broken.DAT", "pipe.DAT", "folder.DAT", "locked.DAT"})
        EXPECT_EQ(write(mine, WriteMode::NewFile, name).result, Result::NameTaken) << name;
}

TEST_F(RecordFile, ReadingStopsAtTheEndOfTheRecord)
{
    spit(dir / "long.DAT", mine + std::string(6 << 20, '\xFF'));
    ASSERT_EQ(::mkfifo((dir / "pipe.DAT").c_str(), 0644), 0);
    FaultyFileCalls calls;
    const record::UseFileCalls use(calls);
    const record::ReadOutcome read = record::readRecordFile(dir / "long.DAT");
    ASSERT_TRUE(read.values.has_value()) << read.problem;
    EXPECT_EQ(record::encode(*read.values), mine);
    EXPECT_LE(calls.bytesRead, record::kMaxRecordBytes);
    EXPECT_EQ(record::readRecordFile(dir / "pipe.DAT").problem, "it is not an ordinary file");
}

TEST_F(RecordFile, StaleTemporaryFilesOfCutShortSavesAreCleared)
{
    const auto now = fs::file_time_type::clock::now();
    const auto make = [&](const std::string &name, std::chrono::seconds age) {
        spit(dir / name, "part of a record");
        fs::last_write_time(dir / name, now - age);
    };
    using std::chrono::seconds;
    make(".numbrook-4001-0.tmp", seconds(120));    // cleared
    make(".tom.DAT.saving-4002-3", seconds(3600)); // cleared
    make(".numbrook-4001-1.tmp", seconds(20));     // perhaps still being written
    make(".numbrook-777-0.tmp", seconds(120));     // its program is running
    make(".numbrook-x-0.tmp", seconds(120));
    make(".numbrook-4001-.tmp", seconds(120));
    make(".numbrook-1-0.tmp", seconds(120));
    make("numbrook-4001-0.tmp", seconds(120));
    make("tom.DAT", seconds(120));
    fs::create_directories(dir / ".numbrook-4001-2.tmp");
    fs::create_symlink("tom.DAT", dir / ".numbrook-4001-3.tmp");
    FaultyFileCalls calls;
    calls.alivePid = 777;
    const record::UseFileCalls use(calls);
    EXPECT_EQ(record::clearStaleTemporaries(dir), 2);
    EXPECT_EQ(entries(dir),
              (std::vector<std::string>{".numbrook-1-0.tmp", ".numbrook-4001-.tmp",
                                        ".numbrook-4001-1.tmp", ".numbrook-4001-2.tmp",
                                        ".numbrook-4001-3.tmp", ".numbrook-777-0.tmp",
                                        ".numbrook-x-0.tmp", "numbrook-4001-0.tmp", "tom.DAT"}));
    EXPECT_EQ(record::clearStaleTemporaries(dir / "gone"), 0);
}

} // namespace
} // namespace nb::test
