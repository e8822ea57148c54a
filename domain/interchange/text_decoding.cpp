// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/text_decoding.h"

#include "interchange/internal/faults.h"

#include <unicode/ucnv.h>

namespace kiv::interchange {

namespace {

struct Converter {
    explicit Converter(const QString &name)
    {
        UErrorCode status = U_ZERO_ERROR;
        handle = ucnv_open(name.toUtf8().constData(), &status);
        ucnv_setToUCallBack(handle, UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
        if (U_FAILURE(status)) {
            ucnv_close(handle);
            handle = nullptr;
        }
    }
    Converter(const Converter &) = delete;
    Converter &operator=(const Converter &) = delete;
    ~Converter() { ucnv_close(handle); }

    UConverter *handle = nullptr;
};

qsizetype lineOf(const QByteArray &bytes, qsizetype at)
{
    return bytes.left(at).count('\n') + 1;
}

} // namespace

QString decoded(const QByteArray &bytes, const QString &file, const QString &encoding)
{
    // No text in UTF-8 begins with the byte order mark of UTF-16.
    const bool isWide = bytes.startsWith("\xff\xfe") || bytes.startsWith("\xfe\xff");
    const Converter converter(isWide && encoding == utf8Name ? QStringLiteral("UTF-16") : encoding);
    // What an empty name means is not defined.
    if (encoding.isEmpty() || !converter.handle)
        throw faults::unknownEncoding({file, 0}, encoding);
    // Encodings make at most one code unit of a byte. The few exceptions are never used for
    // statements; they end here with an overflow.
    QString text(bytes.size() + 8, Qt::Uninitialized);
    auto *target = reinterpret_cast<UChar *>(text.data());
    const UChar *const begin = target;
    const char *source = bytes.constData();
    const char *const end = source + bytes.size();
    UErrorCode status = U_ZERO_ERROR;
    ucnv_toUnicode(converter.handle, &target, begin + text.size(), &source, end, nullptr, true,
                   &status);
    if (U_FAILURE(status)) {
        // The converter has already taken the invalid bytes, at most eight.
        char invalid[8];
        int8_t count = sizeof invalid;
        UErrorCode ignored = U_ZERO_ERROR;
        ucnv_getInvalidChars(converter.handle, invalid, &count, &ignored);
        const qsizetype at = source - bytes.constData() - count;
        throw faults::wrongEncoding({file, lineOf(bytes, std::max<qsizetype>(at, 0))}, encoding);
    }
    text.truncate(target - begin);
    if (text.startsWith(QChar::ByteOrderMark))
        text.remove(0, 1);
    if (const qsizetype zero = text.indexOf(QChar(u'\0')); zero >= 0)
        throw faults::wrongEncoding({file, QStringView(text).left(zero).count(u'\n') + 1},
                                    encoding);
    return text;
}

bool LineCursor::next()
{
    if (m_at >= m_text.size())
        return false;
    ++m_place.line;
    qsizetype end = m_at;
    while (end < m_text.size() && m_text[end] != u'\n' && m_text[end] != u'\r')
        ++end;
    if (end - m_at > lineMax)
        throw faults::lineTooLong(m_place, lineMax);
    m_line = m_text.sliced(m_at, end - m_at);
    const bool isPair = end + 1 < m_text.size() && m_text[end] == u'\r' && m_text[end + 1] == u'\n';
    m_at = end + (isPair ? 2 : 1);
    return true;
}

} // namespace kiv::interchange
