// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/passphrase.h"

#include "storage/internal/faults.h"
#include "storage/internal/file_content.h"
#include "storage/internal/secret.h"

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
    const auto content =
        internal::readFile(internal::FileTarget(path), sizeMax + qsizetype(sizeof "\r\n"));
    if (!content)
        throw internal::fileNotFound(path);
    QByteArrayView bytes = content->bytes;
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
