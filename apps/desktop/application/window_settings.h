// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "widgets/colours.h"

#include <QtCore/QByteArray>
#include <QtCore/QSettings>
#include <QtCore/QStringList>

namespace kiv::desktop {

/// What the window remembers about itself: size, columns, the last page, recent files. It
/// lies in a file of its own, since the existence of preferences decides whether the
/// first-time wizard is offered.
class WindowSettings {
public:
    /// The most recent files that are remembered.
    static constexpr qsizetype recentMax = 10;
    /// The text sizes that can be chosen, in percent of the system's.
    static constexpr int textSizeMin = 80;
    static constexpr int textSizeMax = 250;

    /// In this file.
    explicit WindowSettings(const QString &file);
    /// The file in the user's folder for settings.
    [[nodiscard]] static QString usualFile();

    /// A state of a widget, such as the window's geometry or the columns of a table; empty
    /// if it was never set.
    [[nodiscard]] QByteArray state(const QString &widget) const;
    /// Remembers it.
    void setState(const QString &widget, const QByteArray &state);

    /// The page that was shown last.
    [[nodiscard]] QString page() const;
    /// Remembers it.
    void setPage(const QString &page);

    /// The files that were opened, the last one first.
    [[nodiscard]] QStringList recentFiles() const;
    /// Puts a file first.
    void addRecentFile(const QString &file);
    /// Forgets a file, for example one that is gone.
    void removeRecentFile(const QString &file);

    /// Whether the desktop's keyring keeps the passphrase of this file; it is not asked for
    /// others, since it might ask the user to open it.
    [[nodiscard]] bool isPassphraseKept(const QString &file) const;
    /// Remembers it.
    void setPassphraseKept(const QString &file, bool isKept);

    /// Whether the row of fields below a register is shown.
    [[nodiscard]] bool isEntryShown() const;
    /// Remembers it.
    void setEntryShown(bool isShown);

    /// Whether the file that was open last is opened at the start.
    [[nodiscard]] bool opensLastFile() const;
    /// Remembers it.
    void setOpensLastFile(bool opens);

    /// The colours of the window.
    [[nodiscard]] Appearance appearance() const;
    /// Remembers it.
    void setAppearance(Appearance appearance);
    /// In percent of the system's size.
    [[nodiscard]] int textSize() const;
    /// Remembers it, within the bounds.
    void setTextSize(int percent);

private:
    mutable QSettings m_file;
};

} // namespace kiv::desktop
