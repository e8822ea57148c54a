// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/colours.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace kiv::desktop {
namespace {

struct Pair {
    QRgb light; ///< on a light palette
    QRgb dark;  ///< on a dark one
};

/// In the order of Colour.
constexpr std::array<Pair, 7> table{{{0xff5a5f66, 0xffa9b0b8},
                                     {0xffa8201a, 0xffff9a92},
                                     {0xff1e6b35, 0xff7fd39a},
                                     {0xff7a5200, 0xfff2c14e},
                                     {0xffb00020, 0xffff8a9a},
                                     {0xff2a5585, 0xff9cc4f0},
                                     {0xfffff4d6, 0xff3b3320}}};

/// The relative luminance of WCAG 2.1.
double luminance(const QColor &colour)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    const QColor rgb = colour.toRgb();
    return 0.2126 * linear(rgb.redF()) + 0.7152 * linear(rgb.greenF()) +
           0.0722 * linear(rgb.blueF());
}

QPalette lightPalette()
{
    QPalette palette(QColor(0xec, 0xee, 0xf0), QColor(0xf6, 0xf7, 0xf8));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xf4, 0xf6, 0xf9));
    palette.setColor(QPalette::Highlight, QColor(0x1f, 0x5f, 0xa8));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x1f, 0x5f, 0xa8));
    palette.setColor(QPalette::PlaceholderText, QColor(0x5a, 0x5f, 0x66));
    return palette;
}

QPalette darkPalette()
{
    QPalette palette(QColor(0x3a, 0x3f, 0x45), QColor(0x26, 0x2a, 0x2f));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        palette.setColor(role, QColor(0xec, 0xee, 0xf0));
    palette.setColor(QPalette::Base, QColor(0x1c, 0x1f, 0x23));
    palette.setColor(QPalette::AlternateBase, QColor(0x23, 0x27, 0x2c));
    palette.setColor(QPalette::ToolTipBase, QColor(0x3a, 0x3f, 0x45));
    palette.setColor(QPalette::Highlight, QColor(0x2c, 0x6c, 0xb4));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x9c, 0xc4, 0xf0));
    palette.setColor(QPalette::PlaceholderText, QColor(0xa9, 0xb0, 0xb8));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(0x9a, 0xa1, 0xa9));
    return palette;
}

/// The pairs of text and background that an appearance consists of.
constexpr std::array pairs{std::pair(QPalette::WindowText, QPalette::Window),
                           std::pair(QPalette::Text, QPalette::Base),
                           std::pair(QPalette::ButtonText, QPalette::Button)};
constexpr double highContrast = 19; ///< yellow on black has it, and no usual palette
constexpr double enhanced = 7;      ///< WCAG 2.1, 1.4.6

/// Two colours for all that there is. What is chosen has them the other way round.
QPalette contrastPalette(const QColor &text, const QColor &back)
{
    QPalette palette(text, back, back, back, back, text, text, back, back);
    for (const QPalette::ColorRole role :
         {QPalette::PlaceholderText, QPalette::ToolTipText, QPalette::Link, QPalette::LinkVisited,
          QPalette::Highlight})
        palette.setColor(role, text);
    for (const QPalette::ColorRole role :
         {QPalette::AlternateBase, QPalette::ToolTipBase, QPalette::HighlightedText})
        palette.setColor(role, back);
    const QColor weak = isDark(palette) ? QColor(0x99, 0x99, 0x99) : QColor(0x66, 0x66, 0x66);
    for (const auto &[front, behind] : pairs)
        palette.setColor(QPalette::Disabled, front, weak);
    return palette;
}

/// The system's palette with its gaps filled: not every desktop sets every colour.
QPalette followed(const QPalette &system)
{
    QPalette palette =
        contrastPalette(system.color(QPalette::WindowText), system.color(QPalette::Window));
    if (contrast(system.color(QPalette::HighlightedText), system.color(QPalette::Highlight)) >=
        enhanced) {
        for (const QPalette::ColorRole role : {QPalette::Highlight, QPalette::HighlightedText})
            palette.setColor(role, system.color(role));
    }
    return palette;
}

} // namespace

bool isDark(const QPalette &palette)
{
    return luminance(palette.color(QPalette::Base)) < luminance(palette.color(QPalette::Text));
}

bool isHighContrast(const QPalette &palette)
{
    return std::ranges::all_of(pairs, [&palette](const auto &pair) {
        return contrast(palette.color(QPalette::Active, pair.first),
                        palette.color(QPalette::Active, pair.second)) >= highContrast;
    });
}

QColor colour(Colour meaning, const QPalette &palette)
{
    if (isHighContrast(palette))
        return palette.color(meaning == Colour::NoticeBack ? QPalette::Window
                                                           : QPalette::WindowText);
    const Pair &pair = table.at(static_cast<std::size_t>(meaning));
    return QColor::fromRgb(isDark(palette) ? pair.dark : pair.light);
}

QPalette paletteFor(Appearance appearance, const QPalette &system)
{
    switch (appearance) {
    case Appearance::Light:
        return lightPalette();
    case Appearance::Dark:
        return darkPalette();
    case Appearance::BlackOnWhite:
        return contrastPalette(Qt::black, Qt::white);
    case Appearance::WhiteOnBlack:
        return contrastPalette(Qt::white, Qt::black);
    case Appearance::System:
        break;
    }
    if (isHighContrast(system))
        return followed(system);
    return isDark(system) ? darkPalette() : lightPalette();
}

double contrast(const QColor &one, const QColor &other)
{
    // By value: the references of two temporaries would outlive them.
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace kiv::desktop
