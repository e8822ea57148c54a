// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/key_ring.h"

#include "storage/internal/encrypted_file.h"
#include "storage/internal/faults.h"
#include "storage/internal/file_content.h"
#include "storage/internal/schema.h"

#include <algorithm>
#include <mutex>
#include <vector>

#include <sys/resource.h>

namespace kiv::storage {
namespace {

using internal::EncryptedFile;
using internal::Encryption;

/// A dump of this program would hold the budget, and the key. The limit is 1 and not 0, since
/// the system hands dumps to a program that collects them under a limit of 0 too.
void leaveNoCoreDumps()
{
    const rlimit none{1, 1};
    (void)::setrlimit(RLIMIT_CORE, &none);
}

internal::KeyCost costOf(KeyRing::Cost cost)
{
    constexpr internal::KeyCost small{1, 8'192};
    return cost == KeyRing::Cost::Small ? small : internal::KeyCost();
}

/// Calls `work`, which makes a key from a passphrase.
template <typename Work>
auto withMemory(const QString &path, Work work)
{
    try {
        return work();
    } catch (const internal::TooLittleMemory &want) {
        throw internal::tooLittleMemory(path, want.memory());
    }
}

} // namespace

struct KeyRing::Keys {
    mutable std::mutex mutex;
    std::vector<Encryption> all;
};

KeyRing::KeyRing(Cost cost) : m_cost(cost), m_keys(std::make_unique<Keys>()) {}
KeyRing::~KeyRing() = default;

void KeyRing::add(const Encryption &encryption)
{
    leaveNoCoreDumps();
    const std::scoped_lock lock(m_keys->mutex);
    m_keys->all.push_back(encryption);
}

bool KeyRing::isLocked(const QString &path) const
{
    try {
        const auto content = internal::readFile(internal::FileTarget(path), internal::fileSizeMax);
        return content && content->bytes.startsWith(internal::encryptedMagic) &&
               !EncryptedFile::isNewer(content->bytes) &&
               !encryptionOf(EncryptedFile(content->bytes));
    } catch (const StorageError &) {
        return false;
    } catch (const internal::ContentFault &) {
        return false; // opening it says what is wrong
    }
}

void KeyRing::require(const QString &path) const
{
    if (isLocked(path))
        throw internal::passphraseNeeded(path);
}

void KeyRing::unlock(const QString &path, const Passphrase &passphrase)
{
    const auto content = internal::readFile(internal::FileTarget(path), internal::fileSizeMax);
    if (!content)
        throw internal::fileNotFound(path);
    if (!content->bytes.startsWith(internal::encryptedMagic))
        return;
    if (EncryptedFile::isNewer(content->bytes))
        throw internal::newerVersion(path);
    try {
        const EncryptedFile file(content->bytes);
        auto key = withMemory(path, [&] { return unwrapped(file.wrap(), passphrase); });
        if (!key)
            throw internal::passphraseWrong(path);
        add({file.wrap(), std::move(key)});
    } catch (const internal::ContentFault &fault) {
        throw internal::damaged(path, fault);
    }
}

std::optional<Encryption> KeyRing::encryptionOf(const EncryptedFile &file) const
{
    const std::scoped_lock lock(m_keys->mutex);
    const auto opens = [&file](const Encryption &one) {
        return one.wrap == file.wrap() || file.isUnder(*one.key);
    };
    const auto found = std::ranges::find_if(m_keys->all, opens);
    if (found == m_keys->all.end())
        return std::nullopt;
    return Encryption{file.wrap(), found->key};
}

Encryption KeyRing::encryptionWith(const Passphrase &passphrase, const Encryption *present,
                                   const QString &path)
{
    const internal::KeyCost cost = costOf(m_cost);
    Encryption made = withMemory(path, [&] {
        return present ? internal::wrapped(present->key, passphrase, cost)
                       : internal::newEncryption(passphrase, cost);
    });
    add(made);
    return made;
}

} // namespace kiv::storage
