#include "shell/record/RecordFile.h"

#include "core/Platform.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

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
    ~Fd() { reset(); }
    Fd(const Fd &) = delete;
    Fd &operator=(const Fd &) = delete;
    int get() const { return fd_; }
    void reset(int fd = -1)
    {
        if (fd_ >= 0)
            ::close(fd_);
        fd_ = fd;
    }
    // Closes now and reports whether the close succeeded (a late write error shows up here).
    bool close()
    {
        const int fd = fd_;
        fd_ = -1;
        return ::close(fd) == 0;
    }

private:
    int fd_;
};

bool writeAll(int fd, const char *data, std::size_t size)
{
    while (size > 0) {
        const ssize_t n = ::write(fd, data, size);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return false;
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
        const ssize_t n = ::read(fd, data + done, size - done);
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
    if (::lseek(in, from, SEEK_SET) < 0)
        return false;
    char buf[65536];
    for (off_t left = to - from; left > 0;) {
        const ssize_t n = readSome(in, buf, std::size_t(std::min<off_t>(left, sizeof buf)));
        if (n < 0)
            return false;
        if (n == 0)
            break; // the old file shrank meanwhile: keep what there was
        if (!writeAll(out, buf, std::size_t(n)))
            return false;
        left -= n;
    }
    return true;
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
    ReadOutcome out;
    // Non-blocking, so a named pipe given by mistake cannot hang the program.
    Fd fd(::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
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
    if (::fstat(fd.get(), &st) != 0 || S_ISDIR(st.st_mode)) {
        out.problem = "it is a folder, not a record file";
        return out;
    }
    if (!S_ISREG(st.st_mode)) {
        out.problem = "it is not an ordinary file";
        return out;
    }
    if (std::uintmax_t(st.st_size) > kMaxRecordBytes) {
        out.problem = "it is far too big to be a pupil record";
        return out;
    }
    // Some files report no size until read, so read up to one byte past the largest record.
    std::string bytes(std::size_t(st.st_size) + 1, '\0');
    std::size_t got = 0;
    while (true) {
        const ssize_t n = readSome(fd.get(), bytes.data() + got, bytes.size() - got);
        if (n < 0) {
            out.problem = "it cannot be read (" + std::generic_category().message(errno) + ")";
            return out;
        }
        got += std::size_t(n);
        if (got < bytes.size() || bytes.size() > kMaxRecordBytes)
            break;
        bytes.resize(std::min(bytes.size() * 2, kMaxRecordBytes + 1));
    }
    bytes.resize(got);
    if (got == 0) {
        out.problem = "the file is empty";
        return out;
    }
    if (got > kMaxRecordBytes) {
        out.problem = "it is far too big to be a pupil record";
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

std::string writeRecordFile(const fs::path &file, std::string_view record)
{
    // Write through a link to the file it points at, so the link stays a link.
    fs::path target = file;
    std::error_code ec;
    if (fs::is_symlink(file, ec)) {
        const fs::path real = fs::canonical(file, ec);
        if (!ec)
            target = real;
    }

    // The old file, if any: its tail is kept and its permissions carried over.
    mode_t mode = 0666;
    off_t oldSize = 0;
    Fd old(::open(target.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (old.get() >= 0) {
        struct stat st
        {};
        if (::fstat(old.get(), &st) != 0)
            return describe(errno);
        if (S_ISDIR(st.st_mode))
            return describe(EISDIR);
        if (!S_ISREG(st.st_mode))
            return "there is something other than a file with that name";
        mode = st.st_mode & 07777;
        oldSize = st.st_size;
    } else if (errno != ENOENT && errno != ENOTDIR) {
        // An existing file we cannot read would lose its tail; leave it alone.
        return errno == EISDIR
                   ? describe(EISDIR)
                   : "the old file of that name cannot be read, so it was left as it is";
    }
    // A record never grows past the longest a record can be, so it can always be read back; only
    // a big foreign file overwritten by mistake loses the part beyond that.
    const off_t keepTo = std::min<off_t>(oldSize, off_t(kMaxRecordBytes));

    const fs::path folder = target.parent_path().empty() ? fs::path(".") : target.parent_path();
    fs::path temp;
    Fd out;
    for (int attempt = 0; attempt < 100 && out.get() < 0; ++attempt) {
        temp = folder / ("." + target.filename().string() + ".saving-" +
                         std::to_string(::getpid()) + "-" + std::to_string(attempt));
        out.reset(::open(temp.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
        if (out.get() < 0 && errno != EEXIST)
            return describe(errno);
    }
    if (out.get() < 0)
        return describe(EEXIST);
    ::fchmod(out.get(), mode); // the umask may have narrowed an old file's permissions

    bool ok = writeAll(out.get(), record.data(), record.size());
    if (ok && keepTo > off_t(record.size()))
        ok = copyTail(old.get(), out.get(), off_t(record.size()), keepTo);
    if (ok)
        ok = ::fsync(out.get()) == 0;
    int err = ok ? 0 : errno;
    if (!out.close() && ok) {
        ok = false;
        err = errno;
    }
    if (ok && ::rename(temp.c_str(), target.c_str()) != 0) {
        ok = false;
        err = errno;
    }
    if (!ok) {
        ::unlink(temp.c_str());
        return describe(err ? err : EIO);
    }
    // The folder is not flushed as well: the rename is atomic either way, so a power cut just
    // after it leaves the old record or the new one, and a second flush would double the time a
    // save takes on a slow disk.
    return {};
}

} // namespace nb::record
