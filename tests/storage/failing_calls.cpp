// SPDX-License-Identifier: GPL-3.0-or-later
#include "failing_calls.h"

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdarg>
#include <cstddef>

using kiv::test::answer;
using kiv::test::lies;

// The names that the libraries call; those of the program go before those of
// the system's library.
#pragma GCC visibility push(default)

extern "C" {

int open(const char *path, int flags, ...)
{
    va_list more;
    va_start(more, flags);
    const auto mode = va_arg(more, mode_t);
    va_end(more);
    return answer("open", [&] {
        return static_cast<int>(::syscall(SYS_openat, AT_FDCWD, path, flags, mode));
    });
}

int openat(int folder, const char *path, int flags, ...)
{
    va_list more;
    va_start(more, flags);
    const auto mode = va_arg(more, mode_t);
    va_end(more);
    return answer("openat", [&] {
        return static_cast<int>(::syscall(SYS_openat, folder, path, flags, mode));
    });
}

ssize_t read(int file, void *bytes, size_t size)
{
    return answer("read", [&] { return ::syscall(SYS_read, file, bytes, size); });
}

ssize_t pread(int file, void *bytes, size_t size, off_t offset)
{
    const bool isOther = lies("pread");
    const ssize_t got =
        answer("pread", [&] { return ::syscall(SYS_pread64, file, bytes, size, offset); });
    if (isOther && got > 0) // a disk that gives back something else
        static_cast<std::byte *>(bytes)[got / 2] ^= std::byte{1};
    return got;
}

ssize_t write(int file, const void *bytes, size_t size)
{
    const size_t taken = lies("write") ? size / 2 : size;
    return answer("write", [&] { return ::syscall(SYS_write, file, bytes, taken); });
}

int close(int file)
{
    // The system closes the file also when it then finds something wrong.
    const auto result = static_cast<int>(::syscall(SYS_close, file));
    return answer("close", [&] { return result; });
}

int fsync(int file)
{
    return answer("fsync", [&] { return static_cast<int>(::syscall(SYS_fsync, file)); });
}

int fchmod(int file, mode_t mode)
{
    return answer("fchmod", [&] { return static_cast<int>(::syscall(SYS_fchmod, file, mode)); });
}

int fchown(int file, uid_t user, gid_t group)
{
    return answer("fchown",
                  [&] { return static_cast<int>(::syscall(SYS_fchown, file, user, group)); });
}

int fsetxattr(int file, const char *name, const void *value, size_t size, int flags)
{
    return answer("fsetxattr", [&] {
        return static_cast<int>(::syscall(SYS_fsetxattr, file, name, value, size, flags));
    });
}

int linkat(int fromFolder, const char *from, int toFolder, const char *to, int flags)
{
    return answer("linkat", [&] {
        return static_cast<int>(::syscall(SYS_linkat, fromFolder, from, toFolder, to, flags));
    });
}

int renameat(int fromFolder, const char *from, int toFolder, const char *to)
{
    return answer("renameat", [&] {
        return static_cast<int>(::syscall(SYS_renameat2, fromFolder, from, toFolder, to, 0));
    });
}

int unlinkat(int folder, const char *path, int flags)
{
    return answer("unlinkat",
                  [&] { return static_cast<int>(::syscall(SYS_unlinkat, folder, path, flags)); });
}

} // extern "C"

#pragma GCC visibility pop
