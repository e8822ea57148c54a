// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGui/QColor>
#include <QtGui/QPalette>

namespace kiv::desktop {

/// How the window looks.
enum class Appearance : std::uint8_t {
    System = 0, ///< as the desktop's palette
    Light = 1,
    Dark = 2,
    BlackOnWhite = 3, ///< with as much contrast as there is
    WhiteOnBlack = 4
};

/// A meaning that has a colour. Colour never stands alone: a sign, a mark or a word says
/// the same.
enum class Colour : std::uint8_t {
    Faint,     ///< text of less weight
    Negative,  ///< an amount below zero
    Good,      ///< what is as it should be
    Warning,   ///< what needs care
    Wrong,     ///< what is refused or failed
    Heading,   ///< the text of a heading inside a table
    NoticeBack ///< the background of a notice
};

/// The colour on this palette. Every one of them has a contrast of at least 4.5 to the
/// palette's base and window colours (WCAG 2.1, 1.4.3); NoticeBack has it to its text. On a
/// palette of high contrast, text has the colour of all text.
[[nodiscard]] QColor colour(Colour meaning, const QPalette &palette);

/// Whether the palette is dark.
[[nodiscard]] bool isDark(const QPalette &palette);

/// Whether all texts are black on white, or white or yellow on black, or nearly so.
[[nodiscard]] bool isHighContrast(const QPalette &palette);

/// The palette of an appearance. For the system's, it is light or dark, or `system` itself if
/// that has a high contrast.
[[nodiscard]] QPalette paletteFor(Appearance appearance, const QPalette &system);

/// The contrast of two colours, from 1 to 21, as WCAG 2.1 defines it.
[[nodiscard]] double contrast(const QColor &one, const QColor &other);

} // namespace kiv::desktop
