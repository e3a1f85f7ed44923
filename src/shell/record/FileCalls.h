#pragma once
// The system calls the record files go through. Each behaves as the call of the same name: -1 (or
// false) with errno set on failure. Tests put their own in place to make any step fail.
#include <chrono>
#include <cstddef>
#include <sys/stat.h>
#include <sys/types.h>

namespace nb::record {

class FileCalls
{
public:
    virtual ~FileCalls() = default;

    virtual int open(const char *path, int flags, mode_t mode = 0);
    virtual int fstat(int fd, struct stat *st);
    virtual int lstat(const char *path, struct stat *st);
    virtual ssize_t read(int fd, void *data, std::size_t size);
    virtual ssize_t write(int fd, const void *data, std::size_t size);
    virtual off_t lseek(int fd, off_t offset, int whence);
    virtual int fsync(int fd);
    virtual int fchmod(int fd, mode_t mode);
    virtual int fchown(int fd, uid_t uid, gid_t gid);
    virtual int close(int fd);
    // Whether this user may write to the file (as faccessat with W_OK and AT_EACCESS).
    virtual int canWrite(const char *path);
    virtual int rename(const char *from, const char *to);
    // A rename that fails with EEXIST when `to` exists (EINVAL where the file system lacks it).
    virtual int renameNoReplace(const char *from, const char *to);
    virtual int link(const char *from, const char *to);
    virtual int unlink(const char *path);
    virtual int getpid();
    // False only when no process with that id is running on this machine.
    virtual bool processAlive(int pid);
    virtual std::chrono::system_clock::time_point now();
};

// The calls in use: the real ones unless a test has put others in place.
FileCalls &fileCalls();

// Puts other calls in place for as long as it lives.
class UseFileCalls
{
public:
    explicit UseFileCalls(FileCalls &calls);
    ~UseFileCalls();
    UseFileCalls(const UseFileCalls &) = delete;
    UseFileCalls &operator=(const UseFileCalls &) = delete;

private:
    FileCalls *previous_;
};

} // namespace nb::record
