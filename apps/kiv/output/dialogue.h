// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QString>

#include <functional>
#include <optional>

namespace kiv::app {

/// Asks on standard error and reads answers from standard input, so that standard
/// output holds only the results. Each question throws a Refusal when the input ends.
class Dialogue {
public:
    /// Whether somebody sits at a terminal who can answer.
    [[nodiscard]] static bool isPossible();

    /// Whether the user says yes. An empty answer means `whenEmpty`, if it is given.
    bool agrees(const QString &question, std::optional<bool> whenEmpty = std::nullopt);
    /// Asks until `take` accepts the answer.
    void until(const QString &question, const std::function<void(const QString &)> &take);
    /// Asks until `take` accepts the answer, which nobody sees. Its bytes are as typed.
    void untilSecret(const QString &question, const std::function<void(const QByteArray &)> &take);
    /// Accepts answers until an empty one.
    void each(const QString &question, const std::function<void(const QString &)> &take);

private:
    template <typename Ask, typename Take>
    void repeat(Ask ask, Take take);
    [[nodiscard]] static QString asked(const QString &question);
};

} // namespace kiv::app
