// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "scratch_folder.h"

#include <QtCore/QtEndian>

#include <sodium.h>

namespace kiv::test {

/// The budget file in an encrypted one, and any other as it is. Written anew from what
/// docs/file-format.md says; nothing is checked.
inline QByteArray decrypted(const QByteArray &file)
{
    using Bytes = const unsigned char *;
    if (!file.startsWith("kivbudget locked"))
        return file;
    const auto at = [&](qsizetype offset) { return Bytes(file.constData() + offset); };
    const auto number = [&](qsizetype offset) { return qFromBigEndian<quint32>(at(offset)); };
    const QByteArrayView words = passphrase().bytes();
    unsigned char wrapping[32], key[32], streamKey[32];
    (void)!crypto_pwhash(wrapping, 32, words.data(), size_t(words.size()), at(32), number(20),
                         qFromBigEndian<quint64>(at(24)), crypto_pwhash_ALG_ARGON2ID13);
    (void)!crypto_aead_xchacha20poly1305_ietf_decrypt(key, nullptr, nullptr, at(72), 48, at(20), 28,
                                                      at(48), wrapping);
    crypto_generichash(streamKey, 32, Bytes("kivbudget stream"), 16, key, 32);
    crypto_secretstream_xchacha20poly1305_state state;
    crypto_secretstream_xchacha20poly1305_init_pull(&state, at(120), streamKey);
    QByteArray content;
    constexpr qsizetype piece = 65'536 + 17;
    for (qsizetype begin = 184 + number(144); begin < file.size(); begin += piece) {
        QByteArray part(65'536, '\0');
        unsigned long long size = 0;
        if (crypto_secretstream_xchacha20poly1305_pull(
                &state, reinterpret_cast<unsigned char *>(part.data()), &size, nullptr, at(begin),
                size_t(std::min(piece, file.size() - begin)), nullptr, 0) != 0)
            return "not decrypted";
        content += part.first(qsizetype(size));
    }
    return content;
}

} // namespace kiv::test
