// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/opened_content.h"

#include "storage/internal/budget_image.h"
#include "storage/internal/faults.h"

#include "storage/key_ring.h"

namespace kiv::storage::internal {

OpenedContent decrypted(const QByteArray &bytes, const KeyRing *keys, const QString &path)
{
    const EncryptedFile file(bytes);
    std::optional<Encryption> encryption = keys ? keys->encryptionOf(file) : std::nullopt;
    if (!encryption)
        throw passphraseNeeded(path);
    return {file.content(*encryption->key), std::move(encryption)};
}

OpenedContent opened(const QByteArray &bytes, const KeyRing *keys, const QString &path)
{
    OpenedContent content{bytes, {}};
    if (kindOf(bytes) == FileKind::Encrypted) {
        try {
            content = decrypted(bytes, keys, path);
        } catch (const ContentFault &fault) {
            throw damaged(path, fault);
        }
    }
    requireBudget(kindOf(content.bytes), path);
    return content;
}

} // namespace kiv::storage::internal
