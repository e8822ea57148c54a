// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/passphrase.h"

#include "storage/internal/faults.h"
#include "storage/internal/secret.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QScopeGuard>
#include <QtCore/QStringDecoder>

#include <algorithm>

#include <sodium.h>

namespace kiv::storage {
namespace {

/// The text in the form in which two that look alike are equal.
QString comparable(const QString &typed)
{
    QString text = typed.normalized(QString::NormalizationForm_C);
    const auto isSpace = [](QChar sign) { return sign.category() == QChar::Separator_Space; };
    std::ranges::replace_if(text, isSpace, QChar(u' '));
    return text;
}

} // namespace

Passphrase::Passphrase(const QString &typed)
{
    const QString text = comparable(typed);
    m_length = text.size();
    keep(text.toUtf8());
}

Passphrase Passphrase::ofBytes(QByteArrayView bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless |
                                                     QStringDecoder::Flag::ConvertInitialBom);
    const QString typed = decoder(bytes);
    if (!decoder.hasError())
        return Passphrase(typed);
    Passphrase passphrase;
    passphrase.m_length = bytes.size();
    passphrase.keep(bytes);
    return passphrase;
}

Passphrase Passphrase::inFile(const QString &path)
{
    // A pipe as well: programs that keep passphrases give them so.
    QFile file(path);
    if (!QFileInfo::exists(path))
        throw internal::fileNotFound(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        throw internal::cannotRead(path, errno);
    QByteArray content;
    for (QByteArray part; content.size() <= sizeMax + 2; content += part) {
        part = file.read(sizeMax);
        if (part.isEmpty())
            break;
    }
    const auto forget = qScopeGuard(
        [&content] { sodium_memzero(content.data(), static_cast<std::size_t>(content.size())); });
    QByteArrayView bytes = content;
    if (bytes.endsWith('\n'))
        bytes.chop(bytes.endsWith("\r\n") ? 2 : 1);
    return ofBytes(bytes);
}

void Passphrase::keep(QByteArrayView bytes)
{
    if (bytes.isEmpty())
        throw internal::passphraseEmpty();
    if (bytes.size() > sizeMax)
        throw internal::passphraseTooLong(sizeMax);
    m_bytes = std::make_shared<const internal::Secret>(bytes);
}

QByteArrayView Passphrase::bytes() const noexcept
{
    return m_bytes->bytes();
}

} // namespace kiv::storage
