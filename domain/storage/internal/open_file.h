// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/internal/encrypted_file.h"
#include "storage/internal/file_content.h"
#include "storage/internal/file_lock.h"

#include "storage/storage_error.h"
#include "storage/version.h"

#include <chrono>
#include <functional>
#include <memory>
#include <new>
#include <optional>

namespace kiv::storage {
class KeyRing;
}

namespace kiv::storage::internal {

class VersionFolder;

/// Calls `work` and gives its result. An error becomes the cause of the one that
/// `toError` makes.
template <typename Work, typename ToError>
auto withContent(Work work, ToError toError)
{
    try {
        return work();
    } catch (const std::bad_alloc &) {
        throw;
    } catch (const std::exception &cause) {
        throw toError(cause);
    }
}

/// The bytes to store and their mark, from the mark that a new version would have.
using Draft = std::function<std::pair<QByteArray, VersionMark>(VersionMark next, bool isMerged,
                                                               VersionFolder &former)>;
/// Where warnings go.
using Warn = std::function<void(const QString &sentence)>;

/// A file in use: locked, with the fingerprint of its last content, and with its encryption.
class OpenFile {
public:
    /// With `keys`, which outlive it, encrypted files can be opened.
    OpenFile(FileTarget target, const KeyRing *keys);

    [[nodiscard]] const FileTarget &target() const noexcept { return m_target; }
    /// `target` is the same file under another name.
    void showAs(FileTarget target) { m_target = std::move(target); }
    [[nodiscard]] const std::optional<Fingerprint> &known() const noexcept { return m_known; }
    [[nodiscard]] const VersionMark &mark() const noexcept { return m_mark; }
    /// With what the next version is encrypted, and the last one was.
    [[nodiscard]] const std::optional<Encryption> &encryption() const noexcept
    {
        return m_encryption;
    }
    void setEncryption(std::optional<Encryption> encryption)
    {
        m_encryption = std::move(encryption);
    }

    /// Whether the file is the version of that id, as it was loaded or stored here.
    [[nodiscard]] bool holds(const QString &id) const;
    [[nodiscard]] bool exists() const;
    /// Takes the lock unless it is held already.
    void lock(std::chrono::milliseconds patience);
    /// Where no lock can be made, nothing can be saved either, so no lock is
    /// needed. The next attempt to save says why; so does the answer here.
    std::optional<StorageError> lockIfPossible(std::chrono::milliseconds patience);

    [[nodiscard]] Version load(QStringList &mended);
    /// `known` is what was seen last under this name, if anything was. A merged version
    /// takes the place of the one until now, which is not kept.
    void store(const Draft &draft, const std::optional<Fingerprint> &known, bool isMerged,
               const Warn &warn);
    /// Stores the same version encrypted otherwise, or in the clear; it makes no new version.
    void rewrite(const std::optional<Encryption> &encryption);
    /// Gives the former versions the encryption of the file; the paths of those which no key
    /// opens, and which stay as they are.
    [[nodiscard]] QStringList encryptVersions(const std::optional<Encryption> &encryption) const;

private:
    [[nodiscard]] VersionMark markOf(const QByteArray &bytes) const;
    void adoptEncryption(const QByteArray &bytes);
    void checkReplaceable(const QByteArray &bytes, const Fingerprint &found,
                          const std::optional<Fingerprint> &known) const;
    [[nodiscard]] QByteArray asWritten(const QByteArray &file,
                                       const std::optional<Encryption> &encryption) const;

    FileTarget m_target;
    const KeyRing *m_keys;
    std::unique_ptr<FileLock> m_lock;
    VersionMark m_mark;
    std::optional<Encryption> m_encryption;
    std::optional<Fingerprint> m_known;
    std::optional<Fingerprint> m_attempted;
};

} // namespace kiv::storage::internal
