// SPDX-License-Identifier: GPL-3.0-or-later
#include "updating/semantic_version.h"

#include "updating/internal/faults.h"

#include "foundation/streams.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>

#include <tuple>

namespace kiv::updating {

namespace {

using Part = std::optional<QString>;

/// The pattern that the standard itself gives, with its five groups.
const QRegularExpression &versionPattern()
{
    static const QRegularExpression pattern(QRegularExpression::anchoredPattern(
        QStringLiteral("(0|[1-9][0-9]*)\\.(0|[1-9][0-9]*)\\.(0|[1-9][0-9]*)"
                       "(?:-((?:0|[1-9][0-9]*|[0-9]*[a-zA-Z-][0-9a-zA-Z-]*)"
                       "(?:\\.(?:0|[1-9][0-9]*|[0-9]*[a-zA-Z-][0-9a-zA-Z-]*))*))?"
                       "(?:\\+([0-9a-zA-Z-]+(?:\\.[0-9a-zA-Z-]+)*))?")));
    return pattern;
}

bool isNumber(QStringView identifier)
{
    return std::all_of(identifier.begin(), identifier.end(),
                       [](QChar character) { return character >= u'0' && character <= u'9'; });
}

/// Numbers by value, which without leading zeros is by length first; texts by
/// their ASCII codes; numbers before texts.
std::strong_ordering compareIdentifiers(QStringView a, QStringView b)
{
    if (isNumber(a) != isNumber(b))
        return isNumber(a) ? std::strong_ordering::less : std::strong_ordering::greater;
    if (isNumber(a) && a.size() != b.size())
        return a.size() <=> b.size();
    return a.compare(b) <=> 0;
}

/// A version without a pre-release comes after all of its pre-releases.
std::strong_ordering comparePreReleases(const Part &a, const Part &b)
{
    if (!a || !b)
        return b.has_value() <=> a.has_value();
    const QStringList as = a->split(u'.');
    const QStringList bs = b->split(u'.');
    return std::lexicographical_compare_three_way(
        as.begin(), as.end(), bs.begin(), bs.end(),
        [](const QString &x, const QString &y) { return compareIdentifiers(x, y); });
}

std::strong_ordering comparePrecedence(const SemanticVersion &a, const SemanticVersion &b)
{
    const auto numbers = [](const SemanticVersion &version) {
        return std::tuple(version.major(), version.minor(), version.patch());
    };
    if (const auto order = numbers(a) <=> numbers(b); order != 0)
        return order;
    return comparePreReleases(a.preRelease(), b.preRelease());
}

} // namespace

SemanticVersion::SemanticVersion(std::uint8_t major, std::uint8_t minor, std::uint8_t patch,
                                 Part preRelease, Part build)
    : m_major(major),
      m_minor(minor),
      m_patch(patch),
      m_preRelease(std::move(preRelease)),
      m_build(std::move(build))
{
    const QString text = toQString(*this);
    const auto match = versionPattern().match(text);
    // A build's text must not pass as part of the pre-release; what stands behind
    // that is the build.
    if (!match.hasMatch() || match.captured(4) != m_preRelease.value_or(QString()))
        throw internal::notAVersion(text);
}

SemanticVersion SemanticVersion::fromText(const QString &text)
{
    const auto match = versionPattern().match(text);
    if (!match.hasMatch())
        throw internal::notAVersion(text);
    const auto number = [&](int group) {
        bool isSmall = false;
        const uint value = match.captured(group).toUInt(&isSmall);
        if (!isSmall || value > 255)
            throw internal::notAVersion(text);
        return static_cast<std::uint8_t>(value);
    };
    const auto part = [&](int group) {
        return match.hasCaptured(group) ? Part(match.captured(group)) : std::nullopt;
    };
    return {number(1), number(2), number(3), part(4), part(5)};
}

bool SemanticVersion::isNewerThan(const SemanticVersion &other) const
{
    return comparePrecedence(*this, other) > 0;
}

std::strong_ordering operator<=>(const SemanticVersion &a, const SemanticVersion &b)
{
    if (const auto order = comparePrecedence(a, b); order != 0)
        return order;
    if (!a.m_build || !b.m_build)
        return a.m_build.has_value() <=> b.m_build.has_value();
    return a.m_build->compare(*b.m_build) <=> 0;
}

QString toQString(const SemanticVersion &version)
{
    QString text =
        QStringLiteral("%1.%2.%3").arg(version.major()).arg(version.minor()).arg(version.patch());
    if (const auto &preRelease = version.preRelease())
        text += u'-' + *preRelease;
    if (const auto &build = version.build())
        text += u'+' + *build;
    return text;
}

QString presentationText(const SemanticVersion &version)
{
    return toQString(version);
}

std::ostream &operator<<(std::ostream &out, const SemanticVersion &version)
{
    return out << foundation::escapedUtf8(toQString(version));
}

} // namespace kiv::updating
