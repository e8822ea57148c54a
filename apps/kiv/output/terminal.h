// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/json/json_text.h"

#include <QtCore/QString>

namespace kiv::app {

using workbench::Sink;

/// Standard output: its width, its colours, and the only place that writes to it.
class Terminal {
public:
    /// Checks standard output and the variables COLUMNS, NO_COLOR and TERM.
    Terminal();

    /// In columns. Nothing if standard output is not a terminal: then no text is cut.
    [[nodiscard]] std::optional<int> width() const noexcept { return m_width; }

    [[nodiscard]] QString bold(const QString &text) const { return styled(text, "1"); }
    [[nodiscard]] QString faint(const QString &text) const { return styled(text, "2"); }
    [[nodiscard]] QString red(const QString &text) const { return styled(text, "31"); }

    /// Throws a Refusal if not all bytes can be written.
    void write(const QByteArray &bytes) const;
    /// The same, but may keep bytes back until write() is called.
    void writeLater(const QByteArray &bytes) const;

private:
    [[nodiscard]] QString styled(const QString &text, const char *code) const;

    std::optional<int> m_width;
    bool m_hasColours = false;
};

/// The number of columns of the text. Combining characters take none, wide ones two.
[[nodiscard]] int displayWidth(const QString &text);
/// Cuts the text to at most `width` columns, with an ellipsis at the end if it was cut.
[[nodiscard]] QString elided(const QString &text, int width);

} // namespace kiv::app
