// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include "interchange/errors.h"

#include <QtCore/QByteArray>

namespace kiv::workbench {

/// Reads the files that a journal includes, for interchange::JournalOptions::include.
/// They must be in the journal's own folder or below it, so a journal from elsewhere
/// reaches nothing else; together they are at most 64 MiB.
class KIV_WORKBENCH_EXPORT JournalFiles {
public:
    /// `file` is the journal. Without one, as for standard input, nothing can be included.
    explicit JournalFiles(const QString &file);

    /// The bytes of the file `path`, which `place` includes. Throws ImportError for a
    /// file that may not be included or does not exist, and a Refusal for one that cannot
    /// be read.
    QByteArray operator()(const QString &path, const interchange::Place &place);

private:
    QString m_folder;
    qint64 m_total = 0;
};

} // namespace kiv::workbench
