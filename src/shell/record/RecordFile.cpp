#include "shell/record/RecordFile.h"

#include "core/Platform.h"
#include "shell/record/FileCalls.h"

#include <algorithm>
#include <atomic>
#include <cctype>
#include <cerrno>
#include <charconv>
#include <fcntl.h>
#include <system_error>
#include <utility>

namespace nb::record {

namespace fs = std::filesystem;

namespace {

std::string describe(int err)
{
    switch (err) {
    case EACCES:
    case EPERM:
    case EROFS:
        return "this folder cannot be written to";
    case ENOSPC:
    case EDQUOT:
        return "the disk is full";
    case ENOENT:
    case ENOTDIR:
        return "the folder is no longer there";
    case EISDIR:
        return "there is a folder with that name";
    case ENAMETOOLONG:
        return "the name is too long for this folder";
    default: {
        std::string m = std::generic_category().message(err);
        if (!m.empty())
            m[0] = char(std::tolower(static_cast<unsigned char>(m[0])));
        return m;
    }
    }
}

// Closes the descriptor when it goes out of scope.
class Fd
{
public:
    explicit Fd(int fd = -1)
        : fd_(fd)
    {}
    ~Fd() { reset(-1); }
    Fd(const Fd &) = delete;
    Fd &operator=(const Fd &) = delete;
    int get() const { return fd_; }
    void reset(int fd)
    {
        if (fd_ >= 0)
            fileCalls().close(fd_);
        fd_ = fd;
    }

private:
    int fd_;
};

// A temporary file that is removed when it goes out of scope, unless it was given its name.
class Temporary
{
public:
    Temporary(const fs::path &folder, mode_t mode)
    {
        static std::atomic<unsigned> counter{0};
        const std::string pid = std::to_string(fileCalls().getpid());
        for (int attempt = 0; attempt < 100; ++attempt) {
            path_ = folder / (".numbrook-" + pid + "-" + std::to_string(counter++) + ".tmp");
            fd_ = fileCalls().open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
            if (fd_ >= 0 || errno != EEXIST)
                break;
        }
        error_ = fd_ < 0 ? errno : 0;
    }
    ~Temporary()
    {
        if (fd_ >= 0)
            fileCalls().close(fd_);
        if (!error_ && !kept_)
            fileCalls().unlink(path_.c_str());
    }
    Temporary(const Temporary &) = delete;
    Temporary &operator=(const Temporary &) = delete;

    int error() const { return error_; }
    int fd() const { return fd_; }
    const char *path() const { return path_.c_str(); }
    bool close() { return fileCalls().close(std::exchange(fd_, -1)) == 0; }
    // It now is the record (renamed to the record's name): nothing to remove.
    void keep() { kept_ = true; }

private:
    fs::path path_;
    int fd_ = -1;
    int error_ = 0;
    bool kept_ = false;
};

bool writeAll(int fd, const char *data, std::size_t size)
{
    while (size > 0) {
        const ssize_t n = fileCalls().write(fd, data, size);
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            return false;
        if (n == 0) {
            errno = EIO; // no progress and no reason given
            return false;
        }
        data += n;
        size -= std::size_t(n);
    }
    return true;
}

// Reads up to size bytes at the current position; returns the count, or -1 on an error.
ssize_t readSome(int fd, char *data, std::size_t size)
{
    std::size_t done = 0;
    while (done < size) {
        const ssize_t n = fileCalls().read(fd, data + done, size - done);
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            return -1;
        if (n == 0)
            break;
        done += std::size_t(n);
    }
    return ssize_t(done);
}

// Copies the old file's bytes from `from` up to `to` (exclusive) onto the end of out.
bool copyTail(int in, int out, off_t from, off_t to)
{
    if (fileCalls().lseek(in, from, SEEK_SET) < 0)
        return false;
    std::string buf(65536, '\0');
    for (off_t left = to - from; left > 0;) {
        const ssize_t n = readSome(in, buf.data(), std::size_t(std::min<off_t>(left, 65536)));
        if (n < 0)
            return false;
        if (n == 0)
            break; // the old file shrank meanwhile: keep what there was
        if (!writeAll(out, buf.data(), std::size_t(n)))
            return false;
        left -= n;
    }
    return true;
}

bool unsupported(int err)
{
    return err == EINVAL || err == ENOSYS || err == EOPNOTSUPP || err == ENOTSUP || err == EPERM ||
           err == EMLINK;
}

// Gives the finished temporary file the name `to` only if nothing has that name: in one step
// where the file system can, else by a hard link, else by first creating an empty file of that
// name exclusively and renaming over it. Returns 0, or the error (EEXIST when the name is taken).
int placeAsNew(Temporary &temp, const fs::path &to)
{
    FileCalls &sys = fileCalls();
    if (sys.renameNoReplace(temp.path(), to.c_str()) == 0) {
        temp.keep();
        return 0;
    }
    if (!unsupported(errno))
        return errno;
    if (sys.link(temp.path(), to.c_str()) == 0)
        return 0; // the temporary name goes when temp does
    if (!unsupported(errno))
        return errno;
    const int claim = sys.open(to.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (claim < 0)
        return errno;
    sys.close(claim);
    if (sys.rename(temp.path(), to.c_str()) != 0) {
        const int err = errno;
        sys.unlink(to.c_str()); // the empty file just claimed, nobody else's
        return err;
    }
    temp.keep();
    return 0;
}

WriteOutcome failed(int err)
{
    return {WriteOutcome::Result::Failed, describe(err ? err : EIO)};
}

WriteOutcome failed(std::string problem)
{
    return {WriteOutcome::Result::Failed, std::move(problem)};
}

// The process id in a temporary name this program writes, or 0 for any other name. The names
// are ".numbrook-<pid>-<n>.tmp", and ".<record>.saving-<pid>-<n>" for saves of the releases that
// named them after the record.
int temporaryOwner(std::string_view name)
{
    std::string_view ids;
    if (name.starts_with(".numbrook-") && name.ends_with(".tmp")) {
        ids = name.substr(10, name.size() - 14);
    } else if (name.starts_with('.')) {
        const std::size_t at = name.rfind(".saving-");
        if (at == std::string_view::npos || at == 0)
            return 0;
        ids = name.substr(at + 8);
    } else {
        return 0;
    }
    const std::size_t dash = ids.find('-');
    if (dash == std::string_view::npos || dash == 0 || dash + 1 == ids.size())
        return 0;
    int pid = 0;
    const auto [end, ec] = std::from_chars(ids.data(), ids.data() + dash, pid);
    if (ec != std::errc() || end != ids.data() + dash || pid <= 1)
        return 0;
    const std::string_view serial = ids.substr(dash + 1);
    if (!std::all_of(serial.begin(), serial.end(), [](char c) { return c >= '0' && c <= '9'; }))
        return 0;
    return pid;
}

} // namespace

fs::path recordsFolder(Platform &platform)
{
    const fs::path documents = platform.documentsFolder();
    if (documents.empty())
        return documents; // never a folder relative to wherever the program was started
    const fs::path folder = documents / "NUMBROOK records";
    std::error_code ec;
    fs::create_directories(folder, ec);
    return fs::is_directory(folder, ec) ? folder : documents;
}

bool nameTaken(const fs::path &folder, const std::string &name)
{
    std::error_code ec;
    if (fs::exists(fs::symlink_status(folder / name, ec)))
        return true;
    const auto lower = [](std::string s) {
        for (char &c : s)
            c = char(std::tolower(static_cast<unsigned char>(c)));
        return s;
    };
    const std::string wanted = lower(name);
    for (fs::directory_iterator it(folder, ec), end; !ec && it != end; it.increment(ec))
        if (lower(it->path().filename().string()) == wanted)
            return true;
    return false;
}

ReadOutcome readRecordFile(const fs::path &file)
{
    FileCalls &sys = fileCalls();
    ReadOutcome out;
    // Non-blocking, so a named pipe given by mistake cannot hang the program.
    Fd fd(sys.open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (fd.get() < 0) {
        const int err = errno;
        if (err == ENOENT || err == ENOTDIR)
            out.problem = "there is no such file in this folder";
        else if (err == EISDIR)
            out.problem = "it is a folder, not a record file";
        else
            out.problem = "it cannot be read (" + std::generic_category().message(err) + ")";
        return out;
    }
    struct stat st
    {};
    if (sys.fstat(fd.get(), &st) != 0 || S_ISDIR(st.st_mode)) {
        out.problem = "it is a folder, not a record file";
        return out;
    }
    if (!S_ISREG(st.st_mode)) {
        out.problem = "it is not an ordinary file";
        return out;
    }
    // No record is longer than kMaxRecordBytes, so nothing past that is read. Some files report
    // no size until read, so the buffer grows as needed up to that limit.
    std::string bytes(
        std::clamp<std::size_t>(std::size_t(std::max<off_t>(st.st_size, 0)), 4096, kMaxRecordBytes),
        '\0');
    std::size_t got = 0;
    while (true) {
        const ssize_t n = readSome(fd.get(), bytes.data() + got, bytes.size() - got);
        if (n < 0) {
            out.problem = "it cannot be read (" + std::generic_category().message(errno) + ")";
            return out;
        }
        got += std::size_t(n);
        if (got < bytes.size() || bytes.size() == kMaxRecordBytes)
            break;
        bytes.resize(std::min(bytes.size() * 2, kMaxRecordBytes));
    }
    bytes.resize(got);
    if (got == 0) {
        out.problem = "the file is empty";
        return out;
    }
    Decoded d = decode(bytes);
    if (!d.values) {
        out.problem = "it is not a pupil record (" + d.error + ")";
        return out;
    }
    out.values = std::move(d.values);
    return out;
}

WriteOutcome writeRecordFile(const fs::path &file, std::string_view record, WriteMode mode)
{
    FileCalls &sys = fileCalls();
    fs::path target = file;
    struct stat st
    {};
    if (mode == WriteMode::NewFile) {
        if (sys.lstat(file.c_str(), &st) == 0)
            return {WriteOutcome::Result::NameTaken, {}};
    } else if (sys.lstat(file.c_str(), &st) == 0 && S_ISLNK(st.st_mode)) {
        // Write through a link to the file it points at, so the link stays a link.
        std::error_code ec;
        target = fs::canonical(file, ec);
        if (ec)
            return failed("the name is a link to a file that cannot be found");
    }

    // The old file, if any: its tail, permissions and owner are kept.
    Fd old;
    bool hadOld = false;
    if (mode == WriteMode::Replace) {
        old.reset(sys.open(target.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
        if (old.get() >= 0) {
            if (sys.fstat(old.get(), &st) != 0)
                return failed(errno);
            if (S_ISDIR(st.st_mode))
                return failed(EISDIR);
            if (!S_ISREG(st.st_mode))
                return failed("there is something other than a file with that name");
            // Marked read-only, or not this user's to change: renaming over it would bypass that.
            if ((st.st_mode & 0222) == 0 || (sys.canWrite(target.c_str()) != 0 && errno == EACCES))
                return {WriteOutcome::Result::ReadOnly, {}};
            hadOld = true;
        } else if (errno != ENOENT) {
            // An existing file we cannot read would lose its tail; leave it alone.
            return errno == EISDIR || errno == ENOTDIR
                       ? failed(errno)
                       : failed(
                             "the old file of that name cannot be read, so it was left as it is");
        }
    }
    // A record never grows past the longest a record can be, so it can always be read back; only
    // a big foreign file overwritten by mistake loses the part beyond that.
    const off_t keepTo = hadOld ? std::min<off_t>(st.st_size, off_t(kMaxRecordBytes)) : 0;

    const fs::path folder = target.parent_path().empty() ? fs::path(".") : target.parent_path();
    Temporary temp(folder, 0666);
    if (temp.error())
        return failed(temp.error());
    if (hadOld) {
        sys.fchmod(temp.fd(), st.st_mode & 07777);   // the umask may have narrowed them
        sys.fchown(temp.fd(), st.st_uid, st.st_gid); // refused unless allowed: a best effort
    }

    if (!writeAll(temp.fd(), record.data(), record.size()))
        return failed(errno);
    if (keepTo > off_t(record.size()) &&
        !copyTail(old.get(), temp.fd(), off_t(record.size()), keepTo))
        return failed(errno);
    // A file system that cannot flush at all still renames in one step: old record or new.
    if (sys.fsync(temp.fd()) != 0 && errno != EINVAL && errno != ENOSYS && errno != ENOTSUP)
        return failed(errno);
    if (!temp.close())
        return failed(errno);
    if (mode == WriteMode::NewFile) {
        const int err = placeAsNew(temp, target);
        if (err == EEXIST)
            return {WriteOutcome::Result::NameTaken, {}};
        if (err)
            return failed(err);
    } else {
        if (sys.rename(temp.path(), target.c_str()) != 0)
            return failed(errno);
        temp.keep();
    }
    // The folder is not flushed as well: the rename is atomic either way, so a power cut just
    // after it leaves the old record or the new one, and a second flush would double the time a
    // save takes on a slow disk.
    return {};
}

int clearStaleTemporaries(const fs::path &folder)
{
    FileCalls &sys = fileCalls();
    const auto now = sys.now();
    int removed = 0;
    std::error_code ec;
    for (fs::directory_iterator it(folder, ec), end; !ec && it != end; it.increment(ec)) {
        const fs::path path = it->path();
        const int pid = temporaryOwner(path.filename().string());
        struct stat st
        {};
        if (pid == 0 || sys.lstat(path.c_str(), &st) != 0 || !S_ISREG(st.st_mode))
            continue;
        const auto modified = std::chrono::system_clock::time_point(
            std::chrono::duration_cast<std::chrono::system_clock::duration>(
                std::chrono::seconds(st.st_mtim.tv_sec) +
                std::chrono::nanoseconds(st.st_mtim.tv_nsec)));
        if (now - modified > std::chrono::minutes(1) && !sys.processAlive(pid) &&
            sys.unlink(path.c_str()) == 0)
            ++removed;
    }
    return removed;
}

} // namespace nb::record
