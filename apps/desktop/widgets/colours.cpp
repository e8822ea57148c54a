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

/// What a part of a palette has where neither the system nor high contrast decides.
struct Ink {
    QPalette::ColorRole role;
    Pair pair;
};
constexpr std::array inks{Ink{QPalette::WindowText, {0xff000000, 0xffeceef0}},
                          Ink{QPalette::Text, {0xff000000, 0xffeceef0}},
                          Ink{QPalette::ButtonText, {0xff000000, 0xffeceef0}},
                          Ink{QPalette::ToolTipText, {0xff000000, 0xffeceef0}},
                          Ink{QPalette::ToolTipBase, {0xffffffdc, 0xff3a3f45}},
                          Ink{QPalette::Base, {0xffffffff, 0xff1c1f23}},
                          Ink{QPalette::AlternateBase, {0xfff4f6f9, 0xff23272c}},
                          Ink{QPalette::Highlight, {0xff1f5fa8, 0xff2c6cb4}},
                          Ink{QPalette::HighlightedText, {0xffffffff, 0xffffffff}},
                          Ink{QPalette::Link, {0xff1f5fa8, 0xff9cc4f0}},
                          Ink{QPalette::PlaceholderText, {0xff5a5f66, 0xffa9b0b8}}};
constexpr Pair disabledInk{0xff808080, 0xff9aa1a9};

/// The pairs of text and background that an appearance consists of.
constexpr std::array pairs{std::pair(QPalette::WindowText, QPalette::Window),
                           std::pair(QPalette::Text, QPalette::Base),
                           std::pair(QPalette::ButtonText, QPalette::Button)};
constexpr double highContrast = 19; ///< yellow on black has it, and no usual palette
constexpr double enhanced = 7;      ///< WCAG 2.1, 1.4.6

QPalette usualPalette(bool isDark)
{
    const auto pick = [isDark](const Pair &pair) {
        return QColor::fromRgb(isDark ? pair.dark : pair.light);
    };
    QPalette palette(pick({0xffeceef0, 0xff3a3f45}), pick({0xfff6f7f8, 0xff262a2f}));
    for (const Ink &ink : inks)
        palette.setColor(ink.role, pick(ink.pair));
    for (const auto &[front, behind] : pairs)
        palette.setColor(QPalette::Disabled, front, pick(disabledInk));
    return palette;
}

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
        return usualPalette(false);
    case Appearance::Dark:
        return usualPalette(true);
    case Appearance::BlackOnWhite:
        return contrastPalette(Qt::black, Qt::white);
    case Appearance::WhiteOnBlack:
        return contrastPalette(Qt::white, Qt::black);
    case Appearance::System:
        break;
    }
    if (isHighContrast(system))
        return followed(system);
    return usualPalette(isDark(system));
}

double contrast(const QColor &one, const QColor &other)
{
    // By value: the references of two temporaries would outlive them.
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace kiv::desktop
