// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "navigation/export.h"

#include <QtCore/QObject>
#include <QtCore/QStringList>

#include <exception>
#include <optional>

namespace kiv::navigation {

/// Why a request was refused, in parts that a front end words by itself.
struct Failure {
    QString sentence;   ///< what failed, in English, as the log says it
    QString message;    ///< why, in the user's language
    QStringList causes; ///< the reasons behind that, the nearest first; likewise

    /// Whether all parts are the same.
    friend bool operator==(const Failure &, const Failure &) = default;
};
/// All parts, for logs and failed comparisons.
KIV_NAVIGATION_EXPORT QDebug operator<<(QDebug debug, const Failure &failure);

/// The failure that `error` tells of: its message, and the messages of the errors
/// that caused it. An error of another class than foundation::Error has its what().
[[nodiscard]] KIV_NAVIGATION_EXPORT Failure failureOf(const QString &sentence,
                                                      const std::exception &error);

/// Why the Navigator last refused a request. It is a child of the Navigator; its
/// signals carry one text alone, and whoever hears one looks here for the rest.
/// What it tells belongs to that request only until the next one begins.
class KIV_NAVIGATION_EXPORT LastFailure final : public QObject {
    Q_OBJECT
public:
    /// Knows of no failure yet.
    explicit LastFailure(QObject *navigator);
    ~LastFailure() override;

    /// The one of this Navigator; null only when somebody destroyed it.
    [[nodiscard]] static LastFailure *of(const QObject &navigator);

    /// Nothing before the first refusal and after clear().
    [[nodiscard]] const std::optional<Failure> &failure() const noexcept { return m_failure; }
    /// Takes the failure's place.
    void keep(Failure failure);
    /// Forgets the failure.
    void clear();

private:
    std::optional<Failure> m_failure;
};

} // namespace kiv::navigation
