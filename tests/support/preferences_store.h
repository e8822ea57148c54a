// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>

#include <filesystem>

/// A place for settings files that is gone afterwards. Settings of a given path
/// stand under the user's settings folder, which is this one while it lives.
class PreferencesStore {
public:
    PreferencesStore()
    {
        for (const auto scope : {QSettings::UserScope, QSettings::SystemScope})
            QSettings::setPath(QSettings::NativeFormat, scope, m_folder.path());
    }

    /// Another path each time, under which there are no settings yet.
    [[nodiscard]] std::filesystem::path fresh()
    {
        return "preferences-" + std::to_string(++m_count);
    }
    /// The settings of that path, as another program would open them.
    [[nodiscard]] static QSettings open(const std::filesystem::path &path)
    {
        return QSettings(QString::fromStdString(path.string()), QString());
    }
    [[nodiscard]] QString fileOf(const std::filesystem::path &path) const
    {
        return m_folder.filePath(QString::fromStdString(path.string()) + QStringLiteral(".conf"));
    }

private:
    QTemporaryDir m_folder;
    int m_count = 0;
};
