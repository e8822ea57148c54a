// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QString>

namespace kiv::app {

/// Standard output: how wide it is, whether it shows colours, and the one place
/// that writes to it.
class Terminal {
public:
    /// Looks at standard output and at the variables COLUMNS, NO_COLOR and TERM.
    Terminal();

    /// In columns; nothing when it is not a terminal, so that no text is cut.
    [[nodiscard]] std::optional<int> width() const noexcept { return m_width; }

    [[nodiscard]] QString bold(const QString &text) const { return styled(text, "1"); }
    [[nodiscard]] QString faint(const QString &text) const { return styled(text, "2"); }
    [[nodiscard]] QString red(const QString &text) const { return styled(text, "31"); }

    /// Throws a Refusal when not all of it could be written.
    void write(const QByteArray &bytes) const;

private:
    [[nodiscard]] QString styled(const QString &text, const char *code) const;

    std::optional<int> m_width;
    bool m_hasColours = false;
};

/// How many columns the text takes: none for combining characters, two for wide
/// ones.
[[nodiscard]] int displayWidth(const QString &text);
/// The text cut to at most so many columns, with an ellipsis at its end when
/// something is missing.
[[nodiscard]] QString elided(const QString &text, int width);

} // namespace kiv::app
