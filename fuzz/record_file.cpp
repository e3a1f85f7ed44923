// Feeds arbitrary bytes to the record file layer on a real disk, with one system call failing.
// The input is: which call fails (0: none), with which error, the kind of save and file system,
// then the bytes of the file already there. Whatever happens:
//   - a read either gives the values the bytes hold or refuses with a reason;
//   - a save either writes the whole record (the old file's longer tail kept) or leaves the old
//     file exactly as it was and no new one;
//   - no temporary file is ever left in the folder.
// Removing files is never made to fail: a temporary file whose removal fails is what the clean-up
// of stale files is for.
#include "shell/record/FileCalls.h"
#include "shell/record/RecordFile.h"

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using namespace nb::record;

void check(bool ok)
{
    if (!ok)
        __builtin_trap();
}

// Fails the nth call (from 1) of any kind, once; optionally a file system without one-step
// exclusive renames or hard links, and writes that take a few bytes at a time.
class OneFailure : public FileCalls
{
public:
    int failAt = 0;
    int err = EIO;
    bool noRenameNoReplace = false;
    bool noLink = false;
    std::size_t writeLimit = 0;

    int open(const char *p, int f, mode_t m) override
    {
        return step() ? FileCalls::open(p, f, m) : -1;
    }
    int fstat(int fd, struct stat *st) override { return step() ? FileCalls::fstat(fd, st) : -1; }
    int lstat(const char *p, struct stat *st) override
    {
        return step() ? FileCalls::lstat(p, st) : -1;
    }
    ssize_t read(int fd, void *d, std::size_t n) override
    {
        return step() ? FileCalls::read(fd, d, n) : -1;
    }
    ssize_t write(int fd, const void *d, std::size_t n) override
    {
        return step() ? FileCalls::write(fd, d, writeLimit ? std::min(n, writeLimit) : n) : -1;
    }
    off_t lseek(int fd, off_t o, int w) override
    {
        return step() ? FileCalls::lseek(fd, o, w) : -1;
    }
    int fsync(int fd) override { return step() ? FileCalls::fsync(fd) : -1; }
    int fchmod(int fd, mode_t m) override { return step() ? FileCalls::fchmod(fd, m) : -1; }
    int close(int fd) override
    {
        const int r = FileCalls::close(fd);
        return step() ? r : -1;
    }
    int canWrite(const char *p) override { return step() ? FileCalls::canWrite(p) : -1; }
    int rename(const char *a, const char *b) override
    {
        return step() ? FileCalls::rename(a, b) : -1;
    }
    int renameNoReplace(const char *a, const char *b) override
    {
        if (noRenameNoReplace) {
            errno = EINVAL;
            return -1;
        }
        return step() ? FileCalls::renameNoReplace(a, b) : -1;
    }
    int link(const char *a, const char *b) override
    {
        if (noLink) {
            errno = EPERM;
            return -1;
        }
        return step() ? FileCalls::link(a, b) : -1;
    }

private:
    // False, with errno set, when this call is the one to fail.
    bool step()
    {
        if (++calls_ != failAt)
            return true;
        errno = err;
        return false;
    }
    int calls_ = 0;
};

std::string slurp(const fs::path &p)
{
    std::ifstream in(p, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

int countEntries(const fs::path &folder)
{
    int n = 0;
    for ([[maybe_unused]] const auto &e : fs::directory_iterator(folder))
        ++n;
    return n;
}

const fs::path &folder()
{
    static const fs::path f = [] {
        const fs::path shm = "/dev/shm";
        const fs::path base = fs::is_directory(shm) ? shm : fs::temp_directory_path();
        const fs::path made = base / ("numbrook-fuzz-" + std::to_string(::getpid()));
        fs::create_directories(made);
        return made;
    }();
    return f;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size < 3)
        return 0;
    static const int errors[] = {EIO, ENOSPC, EACCES, EPERM, EROFS, EDQUOT, EINTR, EINVAL, EEXIST};
    const std::string_view old(reinterpret_cast<const char *>(data) + 3, size - 3);
    const fs::path dir = folder();
    fs::remove_all(dir);
    fs::create_directories(dir);
    const fs::path file = dir / "tom.DAT";
    const fs::path fresh = dir / "new.DAT";
    std::ofstream(file, std::ios::binary) << old;

    // Reading, with no failure: exactly what the bytes hold.
    const Decoded decoded = decode(old);
    const ReadOutcome read = readRecordFile(file);
    check(read.values.has_value() == decoded.values.has_value());
    check(read.values ? encode(*read.values) == encode(*decoded.values) : !read.problem.empty());

    OneFailure calls;
    calls.failAt = data[0];
    calls.err = errors[data[1] % std::size(errors)];
    calls.noRenameNoReplace = data[2] & 1;
    calls.noLink = data[2] & 2;
    calls.writeLimit = (data[2] >> 4) * 3;
    const bool replace = data[2] & 4;
    const bool readAgain = data[2] & 8;
    const UseFileCalls use(calls);

    if (readAgain) { // reading with a failure: the right values or a reason, never wrong ones
        const ReadOutcome faulty = readRecordFile(file);
        check(faulty.values ? encode(*faulty.values) == encode(*decoded.values)
                            : !faulty.problem.empty());
        return 0;
    }
    const std::string record =
        decoded.values ? encode(*decoded.values) : std::string(old.substr(0, 40)) + "\x08";
    if (replace) {
        const WriteOutcome out = writeRecordFile(file, record, WriteMode::Replace);
        const std::string now = slurp(file);
        if (out.saved())
            check(now == record + (old.size() > record.size()
                                       ? std::string(old.substr(record.size()))
                                       : std::string()));
        else
            check(now == old &&
                  (out.result != WriteOutcome::Result::Failed || !out.problem.empty()));
        check(countEntries(dir) == 1);
    } else {
        const WriteOutcome out = writeRecordFile(fresh, record, WriteMode::NewFile);
        check(slurp(file) == old);
        if (out.saved())
            check(slurp(fresh) == record && countEntries(dir) == 2);
        else
            check(!fs::exists(fresh) && countEntries(dir) == 1);
    }
    return 0;
}
