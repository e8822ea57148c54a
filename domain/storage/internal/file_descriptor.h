// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <unistd.h>

#include <cerrno>
#include <utility>

namespace kiv::storage::internal {

/// Whether the file system does not support the call.
[[nodiscard]] inline bool isUnsupported(int error) noexcept
{
    return error == EOPNOTSUPP || error == EINVAL || error == ENOSYS;
}

/// Owns an open file descriptor, or none.
class FileDescriptor {
public:
    FileDescriptor() noexcept = default;
    explicit FileDescriptor(int descriptor) noexcept : m_descriptor(descriptor) {}
    FileDescriptor(FileDescriptor &&other) noexcept
        : m_descriptor(std::exchange(other.m_descriptor, -1))
    {
    }
    FileDescriptor &operator=(FileDescriptor &&other) noexcept
    {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }
    FileDescriptor(const FileDescriptor &) = delete;
    FileDescriptor &operator=(const FileDescriptor &) = delete;
    ~FileDescriptor() { (void)close(); }

    [[nodiscard]] int get() const noexcept { return m_descriptor; }
    [[nodiscard]] explicit operator bool() const noexcept { return m_descriptor >= 0; }
    /// Whether the system closed it without a complaint; errno tells which one.
    /// The descriptor is gone either way.
    [[nodiscard]] bool close() noexcept
    {
        const int descriptor = std::exchange(m_descriptor, -1);
        return descriptor < 0 || ::close(descriptor) == 0 || errno == EINTR;
    }

private:
    int m_descriptor = -1;
};

} // namespace kiv::storage::internal
