// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/csv_headings.h"

namespace kiv::interchange::internal {

CsvHeading headingOf(const QString &text, const numira::Currency &preferred)
{
    const QString trimmed = text.trimmed();
    CsvHeading heading{words::plainWord(trimmed), {}, {}};
    heading.base = heading.plain;
    qsizetype begin = -1; // of what may be a currency
    QString name;
    if (trimmed.endsWith(u')')) {
        begin = trimmed.lastIndexOf(u'(');
        name = trimmed.mid(begin + 1).chopped(1);
    } else {
        begin = trimmed.lastIndexOf(u' ');
        name = trimmed.mid(begin + 1);
    }
    if (begin <= 0 || name.isEmpty() || name.size() > 3)
        return heading;
    heading.currency = readCurrency(name.toUpper(), preferred);
    if (!heading.currency)
        return heading;
    heading.base = words::plainWord(QStringView(trimmed).first(begin));
    if (!trimmed.endsWith(u')') && heading.base.endsWith(u" in"))
        heading.base.chop(3);
    return heading;
}

} // namespace kiv::interchange::internal
