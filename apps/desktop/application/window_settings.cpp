// SPDX-License-Identifier: GPL-3.0-or-later
#include "application/window_settings.h"

#include <QtCore/QStandardPaths>

#include <algorithm>

namespace kiv::desktop {
namespace {

const QString pageKey = QStringLiteral("page");
const QString recentKey = QStringLiteral("recentFiles");
const QString keptKey = QStringLiteral("passphrasesInKeyring");
const QString entryKey = QStringLiteral("entryShown");
const QString lastFileKey = QStringLiteral("opensLastFile");
const QString appearanceKey = QStringLiteral("appearance");
const QString textSizeKey = QStringLiteral("textSize");

QString stateKey(const QString &widget)
{
    return QStringLiteral("state/") + widget;
}

} // namespace

WindowSettings::WindowSettings(const QString &file) : m_file(file, QSettings::IniFormat) {}

QString WindowSettings::usualFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) +
           QStringLiteral("/window.ini");
}

QByteArray WindowSettings::state(const QString &widget) const
{
    return m_file.value(stateKey(widget)).toByteArray();
}

void WindowSettings::setState(const QString &widget, const QByteArray &state)
{
    m_file.setValue(stateKey(widget), state);
}

QString WindowSettings::page() const
{
    return m_file.value(pageKey).toString();
}

void WindowSettings::setPage(const QString &page)
{
    m_file.setValue(pageKey, page);
}

QStringList WindowSettings::recentFiles() const
{
    return m_file.value(recentKey).toStringList();
}

void WindowSettings::addRecentFile(const QString &file)
{
    QStringList files = recentFiles();
    files.removeAll(file);
    files.prepend(file);
    m_file.setValue(recentKey, files.first(std::min(files.size(), recentMax)));
}

void WindowSettings::removeRecentFile(const QString &file)
{
    QStringList files = recentFiles();
    files.removeAll(file);
    m_file.setValue(recentKey, files);
}

bool WindowSettings::isPassphraseKept(const QString &file) const
{
    return m_file.value(keptKey).toStringList().contains(file);
}

void WindowSettings::setPassphraseKept(const QString &file, bool isKept)
{
    QStringList files = m_file.value(keptKey).toStringList();
    files.removeAll(file);
    if (isKept)
        files.append(file);
    m_file.setValue(keptKey, files);
}

bool WindowSettings::isEntryShown() const
{
    return m_file.value(entryKey, true).toBool();
}

void WindowSettings::setEntryShown(bool isShown)
{
    m_file.setValue(entryKey, isShown);
}

bool WindowSettings::opensLastFile() const
{
    return m_file.value(lastFileKey, true).toBool();
}

void WindowSettings::setOpensLastFile(bool opens)
{
    m_file.setValue(lastFileKey, opens);
}

Appearance WindowSettings::appearance() const
{
    const int value = m_file.value(appearanceKey).toInt();
    const bool isKnown = value > 0 && value <= static_cast<int>(Appearance::WhiteOnBlack);
    return isKnown ? static_cast<Appearance>(value) : Appearance::System;
}

void WindowSettings::setAppearance(Appearance appearance)
{
    m_file.setValue(appearanceKey, static_cast<int>(appearance));
}

int WindowSettings::textSize() const
{
    return std::clamp(m_file.value(textSizeKey, 100).toInt(), textSizeMin, textSizeMax);
}

void WindowSettings::setTextSize(int percent)
{
    m_file.setValue(textSizeKey, std::clamp(percent, textSizeMin, textSizeMax));
}

} // namespace kiv::desktop
