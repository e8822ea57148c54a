// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/text_decoding.h"

#include "interchange/internal/faults.h"

#include <unicode/ucnv.h>
#include <unicode/ucsdet.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>

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

/// How many letters of several bytes there are, and how many bytes that make none.
struct Utf8Count {
    qsizetype letters = 0;
    qsizetype invalid = 0;
};

Utf8Count utf8In(const QByteArray &bytes)
{
    Utf8Count count;
    for (qsizetype at = 0; at < bytes.size();) {
        const auto lead = static_cast<unsigned char>(bytes[at++]);
        if (lead < 0x80)
            continue;
        const qsizetype more = lead >= 0xf0 && lead < 0xf5   ? 3
                               : lead >= 0xe0 && lead < 0xf0 ? 2
                               : lead >= 0xc2 && lead < 0xe0 ? 1
                                                             : 0;
        const auto isContinued = [&](qsizetype offset) {
            return at + offset < bytes.size() && (bytes[at + offset] & 0xc0) == 0x80;
        };
        qsizetype found = 0;
        while (found < more && isContinued(found))
            ++found;
        ++(more > 0 && found == more ? count.letters : count.invalid);
        at += found;
    }
    return count;
}

/// UTF-16 without a mark, which texts in Latin letters show by zeros.
std::optional<QString> wideEncodingOf(const QByteArray &head)
{
    std::array<qsizetype, 2> zeros{};
    for (qsizetype at = 0; at < head.size(); ++at)
        zeros[static_cast<std::size_t>(at % 2)] += head[at] == 0 ? 1 : 0;
    const qsizetype most = head.size() * 2 / 5;
    if (zeros[1] > most && zeros[0] == 0)
        return QStringLiteral("UTF-16LE");
    if (zeros[0] > most && zeros[1] == 0)
        return QStringLiteral("UTF-16BE");
    return std::nullopt;
}

/// The lines that are not in ASCII: the others say nothing about the encoding.
QByteArray tellingLines(const QByteArray &bytes)
{
    constexpr qsizetype sampleMax = qsizetype{32} * 1024;
    const auto isTelling = [](char byte) { return (byte & 0x80) != 0; };
    QByteArray lines;
    for (qsizetype begin = 0; begin < bytes.size() && lines.size() < sampleMax;) {
        const qsizetype found = bytes.indexOf('\n', begin);
        const qsizetype end = found < 0 ? bytes.size() : found + 1;
        const QByteArray line = bytes.mid(begin, std::min(end - begin, sampleMax));
        if (std::ranges::any_of(line, isTelling))
            lines += line;
        begin = end;
    }
    return lines;
}

/// How often a sign stands within a word, as "³" in "P³atnosc": the text is read wrongly. Of
/// letters, "õ" stands only before an "e" in western Europe.
qsizetype oddSignsIn(const QByteArray &sample, const QString &encoding)
{
    const QString text = decoded(sample, {}, encoding);
    qsizetype odd = 0;
    for (qsizetype at = 1; at + 1 < text.size(); ++at) {
        const QChar unit = text[at];
        if (unit.unicode() < 0x80 || !text[at - 1].isLetter() || !text[at + 1].isLetter())
            continue;
        const bool isApostrophe = QStringLiteral("´’‘·\u00AD").contains(unit);
        odd +=
            (!unit.isLetter() && !isApostrophe) || (unit == u'õ' && text[at + 1] != u'e') ? 1 : 0;
    }
    return odd;
}

/// The encoding of letters other than Latin ones, or of Turkish; nothing for others.
std::optional<QString> detectedEncoding(const QByteArray &sample)
{
    constexpr int confidenceMin = 30;
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<UCharsetDetector, decltype(&ucsdet_close)> detector(ucsdet_open(&status),
                                                                              &ucsdet_close);
    ucsdet_setText(detector.get(), sample.constData(), static_cast<int32_t>(sample.size()),
                   &status);
    const UCharsetMatch *const match = ucsdet_detect(detector.get(), &status);
    if (U_FAILURE(status) || !match || ucsdet_getConfidence(match, &status) < confidenceMin)
        return std::nullopt;
    const QString name = QLatin1String(ucsdet_getName(match, &status));
    const auto isTurkish = [](char byte) {
        return std::strchr("\xd0\xdd\xde\xf0\xfd\xfe", byte) && byte != 0;
    };
    if (name == u"ISO-8859-9" || name == u"windows-1254")
        return std::ranges::any_of(sample, isTurkish) ? std::optional(name) : std::nullopt;
    // Words of other letters have them one after the other.
    qsizetype following = 0;
    qsizetype all = 0;
    for (qsizetype at = 1; at < sample.size(); ++at) {
        all += (sample[at] & 0x80) != 0 ? 1 : 0;
        following += (sample[at] & 0x80) != 0 && (sample[at - 1] & 0x80) != 0 ? 1 : 0;
    }
    for (const char *known : {"ISO-8859-5", "ISO-8859-7", "windows-1251", "windows-1253"}) {
        if (name == QLatin1String(known) && following * 2 > all)
            return name;
    }
    return std::nullopt;
}

/// One of the encodings with a byte for each letter.
QString narrowEncodingOf(const QByteArray &bytes)
{
    const QByteArray sample = tellingLines(bytes);
    if (const auto detected = detectedEncoding(sample))
        return *detected;
    QString best = QStringLiteral("windows-1252");
    qsizetype least = oddSignsIn(sample, best);
    for (const char *central : {"windows-1250", "ISO-8859-2"}) {
        const qsizetype odd = least > 0 ? oddSignsIn(sample, QLatin1String(central)) : 0;
        if (odd < least) {
            best = QLatin1String(central);
            least = odd;
        }
    }
    // Nobody writes the currency sign; in the later standard, the euro has its place.
    const bool hasEuro = bytes.contains('\xa4') && !std::ranges::any_of(bytes, [](char byte) {
                             return (byte & 0xe0) == 0x80;
                         });
    return hasEuro ? QStringLiteral("ISO-8859-15") : best;
}

} // namespace

QString guessedEncoding(const QByteArray &bytes)
{
    // Its mark tells UTF-16 and its order.
    if (bytes.startsWith("\xff\xfe") || bytes.startsWith("\xfe\xff"))
        return QStringLiteral("UTF-16");
    if (const auto wide = wideEncodingOf(bytes.left(4096)))
        return *wide;
    const Utf8Count count = utf8In(bytes);
    return count.letters >= count.invalid ? utf8Name : narrowEncodingOf(bytes);
}

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
