// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/statements/import_profiles.h"

#include "workbench/internal/faults.h"
#include "workbench/statements/input_file.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>
#include <QtCore/QSaveFile>
#include <QtCore/QStandardPaths>

#include <filesystem>
#include <memory>

namespace kiv::workbench {

namespace {

/// Refuses a name that could lead to another folder.
QString profilePath(const QString &name)
{
    static const QRegularExpression plain(QStringLiteral("\\A[A-Za-z0-9_-]{1,64}\\z"));
    if (!plain.match(name).hasMatch())
        throw internal::notAProfileName(name);
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/kiv/import/%1.json").arg(name);
}

} // namespace

interchange::CsvProfile readSavedProfile(const QString &name)
{
    const QString path = profilePath(name);
    if (!QFileInfo(path).isFile()) {
        QStringList present =
            QFileInfo(path).dir().entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name);
        throw internal::noSuchProfile(name,
                                      present.replaceInStrings(QStringLiteral(".json"), QString()));
    }
    return interchange::readProfile(readFile(path), path);
}

std::function<void()> storedProfile(const QString &name, const interchange::CsvProfile &profile)
{
    const QString path = profilePath(name);
    std::error_code failure;
    std::filesystem::create_directories(QFileInfo(path).filesystemFilePath().parent_path(),
                                        failure);
    if (failure)
        throw internal::cannotWrite(path, QString::fromStdString(failure.message()));
    // The new file lies beside the old one, and goes away with this unless it is committed.
    const auto target = std::make_shared<QSaveFile>(path);
    if (!target->open(QIODevice::WriteOnly) || target->write(interchange::toJson(profile)) < 0 ||
        !target->flush())
        throw internal::cannotWrite(path, target->errorString());
    return [target, path] {
        if (!target->commit())
            throw internal::cannotWrite(path, target->errorString());
    };
}

} // namespace kiv::workbench
