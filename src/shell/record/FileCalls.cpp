#include "shell/record/FileCalls.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

namespace nb::record {

namespace {

FileCalls realCalls;
FileCalls *current = &realCalls;

} // namespace

int FileCalls::open(const char *path, int flags, mode_t mode)
{
    return ::open(path, flags, mode);
}

int FileCalls::fstat(int fd, struct stat *st)
{
    return ::fstat(fd, st);
}

int FileCalls::lstat(const char *path, struct stat *st)
{
    return ::lstat(path, st);
}

ssize_t FileCalls::read(int fd, void *data, std::size_t size)
{
    return ::read(fd, data, size);
}

ssize_t FileCalls::write(int fd, const void *data, std::size_t size)
{
    return ::write(fd, data, size);
}

off_t FileCalls::lseek(int fd, off_t offset, int whence)
{
    return ::lseek(fd, offset, whence);
}

int FileCalls::fsync(int fd)
{
    return ::fsync(fd);
}

int FileCalls::fchmod(int fd, mode_t mode)
{
    return ::fchmod(fd, mode);
}

int FileCalls::fchown(int fd, uid_t uid, gid_t gid)
{
    return ::fchown(fd, uid, gid);
}

int FileCalls::close(int fd)
{
    return ::close(fd);
}

int FileCalls::canWrite(const char *path)
{
    return ::faccessat(AT_FDCWD, path, W_OK, AT_EACCESS);
}

int FileCalls::rename(const char *from, const char *to)
{
    return ::rename(from, to);
}

int FileCalls::renameNoReplace(const char *from, const char *to)
{
    return ::renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE);
}

int FileCalls::link(const char *from, const char *to)
{
    return ::link(from, to);
}

int FileCalls::unlink(const char *path)
{
    return ::unlink(path);
}

int FileCalls::getpid()
{
    return ::getpid();
}

bool FileCalls::processAlive(int pid)
{
    return ::kill(pid, 0) == 0 || errno != ESRCH;
}

std::chrono::system_clock::time_point FileCalls::now()
{
    return std::chrono::system_clock::now();
}

FileCalls &fileCalls()
{
    return *current;
}

UseFileCalls::UseFileCalls(FileCalls &calls)
    : previous_(current)
{
    current = &calls;
}

UseFileCalls::~UseFileCalls()
{
    current = previous_;
}

} // namespace nb::record
