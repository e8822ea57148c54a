// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/journal_reader.h"

#include "interchange/internal/journal_books.h"
#include "interchange/internal/journal_parser.h"

namespace kiv::interchange {

Draft readJournal(const QByteArray &bytes, const QString &file, const JournalOptions &options)
{
    internal::JournalBooks books(options);
    internal::JournalParser(options, books).parse(bytes, file);
    return books.finish();
}

} // namespace kiv::interchange
