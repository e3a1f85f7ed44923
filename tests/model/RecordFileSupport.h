#pragma once
// What the record file tests share: files read and written whole, a folder's entries, and system
// calls for the record files that fail on request: one step failing with a given error,
// writes that take only a few bytes at a time, a file system without one-step exclusive renames
// or hard links, and another program taking the name just before this one places its record.
#include "shell/record/FileCalls.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

namespace nb::test {

// An empty folder of the running test's own, in the system's temporary folder.
inline std::filesystem::path emptyTestFolder()
{
    const ::testing::TestInfo *test = ::testing::UnitTest::GetInstance()->current_test_info();
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("numbrook-" + std::to_string(::getpid()) + "-" +
                                                  test->test_suite_name() + "-" + test->name());
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    return folder;
}

inline std::string slurp(const std::filesystem::path &p)
{
    std::ifstream in(p, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

inline void spit(const std::filesystem::path &p, const std::string &bytes)
{
    std::ofstream(p, std::ios::binary) << bytes;
}

// The names in the folder, sorted: a temporary file left behind shows up here.
inline std::vector<std::string> entries(const std::filesystem::path &folder)
{
    std::vector<std::string> out;
    for (const auto &e : std::filesystem::directory_iterator(folder))
        out.push_back(e.path().filename().string());
    std::sort(out.begin(), out.end());
    return out;
}

class FaultyFileCalls : public record::FileCalls
{
public:
    enum class Step { None, OpenNew, Write, Lseek, Fsync, Close, Rename, RenameNoReplace, Link };

    // The nth call (from 1) of the step fails with err. A failing close still closes.
    Step failStep = Step::None;
    int failAt = 1;
    int failErr = EIO;
    std::size_t writeLimit = 0;     // when set, no write takes more bytes than this
    bool noRenameNoReplace = false; // the exclusive rename is not supported here
    bool noLink = false;            // nor are hard links
    std::string clashWith;          // when set, written under the name just before it is placed
    std::atomic<int> placements{0}; // calls that tried to give a record its name
    std::atomic<std::size_t> bytesRead{0};
    int alivePid = 0; // processAlive is true for this one only

    int open(const char *path, int flags, mode_t mode) override
    {
        if ((flags & O_CREAT) && fails(Step::OpenNew))
            return -1;
        if ((flags & O_EXCL) &&
            std::string_view(path).find("/.numbrook-") == std::string_view::npos)
            clash(path); // claiming the record's name with an empty file
        return FileCalls::open(path, flags, mode);
    }
    ssize_t read(int fd, void *data, std::size_t size) override
    {
        const ssize_t n = FileCalls::read(fd, data, size);
        if (n > 0)
            bytesRead += std::size_t(n);
        return n;
    }
    ssize_t write(int fd, const void *data, std::size_t size) override
    {
        if (fails(Step::Write))
            return -1;
        return FileCalls::write(fd, data, writeLimit ? std::min(size, writeLimit) : size);
    }
    off_t lseek(int fd, off_t offset, int whence) override
    {
        return fails(Step::Lseek) ? -1 : FileCalls::lseek(fd, offset, whence);
    }
    int fsync(int fd) override { return fails(Step::Fsync) ? -1 : FileCalls::fsync(fd); }
    int close(int fd) override
    {
        const int r = FileCalls::close(fd);
        return fails(Step::Close) ? -1 : r;
    }
    int rename(const char *from, const char *to) override
    {
        return fails(Step::Rename) ? -1 : FileCalls::rename(from, to);
    }
    int renameNoReplace(const char *from, const char *to) override
    {
        if (noRenameNoReplace)
            return refuse(EINVAL);
        clash(to);
        return fails(Step::RenameNoReplace) ? -1 : FileCalls::renameNoReplace(from, to);
    }
    int link(const char *from, const char *to) override
    {
        if (noLink)
            return refuse(EPERM);
        clash(to);
        return fails(Step::Link) ? -1 : FileCalls::link(from, to);
    }
    bool processAlive(int pid) override { return pid == alivePid; }

private:
    bool fails(Step step)
    {
        if (step != failStep || ++seen_ != failAt)
            return false;
        errno = failErr;
        return true;
    }
    static int refuse(int err)
    {
        errno = err;
        return -1;
    }
    // Another program saves under the name first, once.
    void clash(const char *to)
    {
        ++placements;
        if (!clashWith.empty() && !clashed_) {
            clashed_ = true;
            std::ofstream(to, std::ios::binary) << clashWith;
        }
    }
    int seen_ = 0;
    bool clashed_ = false;
};

} // namespace nb::test
