// SPDX-License-Identifier: GPL-3.0-or-later
#include "failing_calls.h"

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdarg>
#include <cstddef>

using kiv::test::answer;
using kiv::test::failingCalls;
using kiv::test::lies;

namespace {

template <long Number, typename... Arguments>
int ask(const char *call, Arguments... arguments)
{
    return answer(call, [&] { return static_cast<int>(::syscall(Number, arguments...)); });
}

/// The system's library's own function of this name.
template <typename Function>
Function next(const char *name)
{
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

/// The mode behind the flags of open, if there is one.
int openWithMode(const char *call, int folder, const char *path, int flags, va_list more)
{
    return ask<SYS_openat>(call, folder, path, flags, va_arg(more, mode_t));
}

} // namespace

// The names that the libraries call; those of the program go before those of
// the system's library.
#pragma GCC visibility push(default)
// clang-format off
extern "C" {

int open(const char *path, int flags, ...)
{
    va_list more;
    va_start(more, flags);
    const int result = openWithMode("open", AT_FDCWD, path, flags, more);
    va_end(more);
    return result;
}
int openat(int folder, const char *path, int flags, ...)
{
    va_list more;
    va_start(more, flags);
    const int result = openWithMode("openat", folder, path, flags, more);
    va_end(more);
    return result;
}
ssize_t pread(int file, void *bytes, size_t size, off_t offset)
{
    // A disk that gives back something else, or that has nothing of it.
    const bool isOther = lies("pread");
    const bool isNothing = isOther && failingCalls.times > 1;
    const ssize_t got = ask<SYS_pread64>("pread", file, bytes, size, offset);
    if (isOther && got > 0)
        static_cast<std::byte *>(bytes)[got / 2] ^= std::byte{1};
    return isNothing ? 0 : got;
}
ssize_t write(int file, const void *bytes, size_t size)
{
    const size_t taken = lies("write") ? size / 2 : size;
    return ask<SYS_write>("write", file, bytes, taken);
}
int close(int file)
{
    // The system closes the file also when it then finds something wrong.
    const auto result = static_cast<int>(::syscall(SYS_close, file));
    return answer("close", [&] { return result; });
}
ssize_t pwrite(int file, const void *bytes, size_t size, off_t offset) { return ask<SYS_pwrite64>("pwrite", file, bytes, size, offset); }
ssize_t readlink(const char *path, char *target, size_t size) { return ask<SYS_readlink>("readlink", path, target, size); }
ssize_t read(int file, void *bytes, size_t size) { return ask<SYS_read>("read", file, bytes, size); }
int fsync(int file) { return ask<SYS_fsync>("fsync", file); }
int fchmod(int file, mode_t mode) { return ask<SYS_fchmod>("fchmod", file, mode); }
int fchown(int file, uid_t user, gid_t group) { return ask<SYS_fchown>("fchown", file, user, group); }
int fremovexattr(int file, const char *name) { return ask<SYS_fremovexattr>("fremovexattr", file, name); }
int fsetxattr(int file, const char *name, const void *value, size_t size, int flags)
{ return ask<SYS_fsetxattr>("fsetxattr", file, name, value, size, flags); }
ssize_t fgetxattr(int file, const char *name, void *value, size_t size) { return ask<SYS_fgetxattr>("fgetxattr", file, name, value, size); }
ssize_t flistxattr(int file, char *names, size_t size) { return ask<SYS_flistxattr>("flistxattr", file, names, size); }
int fstat(int file, struct stat *status) { return ask<SYS_fstat>("fstat", file, status); }
int fstatat(int folder, const char *path, struct stat *status, int flags) { return ask<SYS_newfstatat>("fstatat", folder, path, status, flags); }
int lstat(const char *path, struct stat *status) { return ask<SYS_lstat>("lstat", path, status); }
int access(const char *path, int mode) { return ask<SYS_access>("access", path, mode); }
int faccessat(int folder, const char *path, int mode, int flags) { return ask<SYS_faccessat2>("faccessat", folder, path, mode, flags); }
int flock(int file, int operation) { return ask<SYS_flock>("flock", file, operation); }
int ftruncate(int file, off_t size) { return ask<SYS_ftruncate>("ftruncate", file, size); }
int linkat(int fromFolder, const char *from, int toFolder, const char *to, int flags)
{ return ask<SYS_linkat>("linkat", fromFolder, from, toFolder, to, flags); }
int renameat(int fromFolder, const char *from, int toFolder, const char *to)
{ return ask<SYS_renameat2>("renameat", fromFolder, from, toFolder, to, 0); }
int mkdir(const char *path, mode_t mode) { return ask<SYS_mkdir>("mkdir", path, mode); }
int rmdir(const char *path) { return ask<SYS_rmdir>("rmdir", path); }
int fstatvfs(int file, struct statvfs *status)
{
    static const auto real = next<int (*)(int, struct statvfs *)>("fstatvfs");
    return answer("fstatvfs", [&] { return real(file, status); });
}
DIR *fdopendir(int folder)
{
    static const auto real = next<DIR *(*)(int)>("fdopendir");
    DIR *list = nullptr;
    return answer("fdopendir", [&] { return (list = real(folder)) ? 0 : -1; }) == 0 ? list : nullptr;
}
dirent *readdir(DIR *list)
{
    static const auto real = next<dirent *(*)(DIR *)>("readdir");
    dirent *entry = nullptr;
    return answer("readdir", [&] { entry = real(list); return 0; }) == 0 ? entry : nullptr;
}
int unlink(const char *path) { return ask<SYS_unlink>("unlink", path); }
int unlinkat(int folder, const char *path, int flags) { return ask<SYS_unlinkat>("unlinkat", folder, path, flags); }

} // extern "C"
// clang-format on
#pragma GCC visibility pop
