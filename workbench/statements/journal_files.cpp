// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/statements/journal_files.h"

#include "workbench/internal/faults.h"
#include "workbench/statements/input_file.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

namespace kiv::workbench {

namespace {

constexpr qint64 totalMax = qint64{64} << 20;

} // namespace

JournalFiles::JournalFiles(const QString &file)
    : m_folder(file.isEmpty() ? QString() : QFileInfo(file).canonicalPath())
{
}

QByteArray JournalFiles::operator()(const QString &path, const interchange::Place &place)
{
    // The file that includes it may itself be in a folder below.
    const QDir near(QFileInfo(place.file).path());
    const QFileInfo wanted(near.filePath(path));
    const QString real = wanted.canonicalFilePath();
    if (real.isEmpty() && (path.contains(u'*') || path.contains(u'?')))
        throw internal::includesPattern(place, path);
    if (m_folder.isEmpty() || real.isEmpty() || !wanted.isFile())
        throw internal::includesNoFile(place, path);
    if (!real.startsWith(m_folder + u'/'))
        throw internal::includesOutside(place, path);
    QByteArray bytes = readFile(wanted.filePath());
    m_total += bytes.size();
    if (m_total > totalMax)
        throw internal::includesTooMuch(place, path);
    return bytes;
}

} // namespace kiv::workbench
