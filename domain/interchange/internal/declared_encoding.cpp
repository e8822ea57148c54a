// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/declared_encoding.h"

#include "interchange/text_decoding.h"

#include <QtCore/QRegularExpression>

namespace kiv::interchange::internal {

QString declaredEncoding(const QByteArray &bytes, qsizetype headerEnd)
{
    const QString header = QString::fromLatin1(bytes.left(headerEnd));
    static const QRegularExpression unicode(QStringLiteral("ENCODING:\\s*(?:UTF-8|UNICODE)"));
    static const QRegularExpression pattern(
        QStringLiteral("encoding=[\"']([A-Za-z0-9_.:-]+)|CHARSET:\\s*(?!NONE)([A-Za-z0-9-]+)"));
    const auto match = pattern.match(header);
    if (unicode.match(header).hasMatch() || !match.hasMatch())
        return utf8Name;
    const QString name = match.captured(1) + match.captured(2);
    static const QRegularExpression oneByte(QStringLiteral("^(1252|windows-125.|iso-8859-.+)$"),
                                            QRegularExpression::CaseInsensitiveOption);
    if (oneByte.match(name).hasMatch() && QUtf8StringView(bytes).isValidUtf8())
        return utf8Name;
    return name == u"1252" ? QStringLiteral("windows-1252") : name;
}

} // namespace kiv::interchange::internal
