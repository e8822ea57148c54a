// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "updating/export.h"

#include "foundation/debug_stream.h"

#include <QtCore/QMetaType>
#include <QtCore/QString>

#include <compare>
#include <cstdint>
#include <optional>
#include <ostream>

namespace kiv::updating {

/// A version by Semantic Versioning 2.0.0 (https://semver.org), such as
/// "1.2.0-rc.1+build.5", whose three numbers are at most 255.
class KIV_UPDATING_EXPORT SemanticVersion {
public:
    /// 0.0.0
    SemanticVersion() = default;
    /// Throws UpdateError when the pre-release or the build is given and is
    /// not what the standard's items 9 and 10 allow: identifiers of letters,
    /// digits and hyphens, joined by dots, none empty, and no number of a
    /// pre-release with a leading zero.
    SemanticVersion(std::uint8_t major, std::uint8_t minor, std::uint8_t patch,
                    std::optional<QString> preRelease = std::nullopt,
                    std::optional<QString> build = std::nullopt);
    /// Throws UpdateError for anything but a version.
    [[nodiscard]] static SemanticVersion fromText(const QString &text);

    /// The number that changes with incompatible changes.
    [[nodiscard]] std::uint8_t major() const noexcept { return m_major; }
    /// The number that changes with new features.
    [[nodiscard]] std::uint8_t minor() const noexcept { return m_minor; }
    /// The number that changes with corrections.
    [[nodiscard]] std::uint8_t patch() const noexcept { return m_patch; }
    /// What stands behind the hyphen.
    [[nodiscard]] const std::optional<QString> &preRelease() const noexcept { return m_preRelease; }
    /// What stands behind the plus sign.
    [[nodiscard]] const std::optional<QString> &build() const noexcept { return m_build; }

    /// Whether this version has a higher precedence than the other by the
    /// standard's item 11, which ignores builds.
    [[nodiscard]] bool isNewerThan(const SemanticVersion &other) const;

    friend bool operator==(const SemanticVersion &, const SemanticVersion &) = default;
    /// By precedence, and among equals by the text of the build, so that the
    /// order agrees with equality.
    friend KIV_UPDATING_EXPORT std::strong_ordering operator<=>(const SemanticVersion &a,
                                                                const SemanticVersion &b);

private:
    std::uint8_t m_major = 0;
    std::uint8_t m_minor = 0;
    std::uint8_t m_patch = 0;
    std::optional<QString> m_preRelease;
    std::optional<QString> m_build;
};

/// "1.2.0-rc.1+build.5"
[[nodiscard]] KIV_UPDATING_EXPORT QString toQString(const SemanticVersion &version);
/// The same as toQString.
[[nodiscard]] KIV_UPDATING_EXPORT QString presentationText(const SemanticVersion &version);
KIV_UPDATING_EXPORT std::ostream &operator<<(std::ostream &out, const SemanticVersion &version);
using foundation::operator<<;

} // namespace kiv::updating

Q_DECLARE_METATYPE(kiv::updating::SemanticVersion)
