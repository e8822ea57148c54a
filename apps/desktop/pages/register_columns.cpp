// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/register_columns.h"

#include "foundation/local_dates.h"

#include <QtWidgets/QHeaderView>

namespace kiv::desktop {

using Column = RegisterModel::Column;

namespace {

/// Payee and reason are at least so many letters wide.
constexpr int textLetters = 16;

} // namespace

void sizeColumns(QTableView &table, const RegisterModel &rows, const QString &amount)
{
    const QFontMetrics metrics = table.fontMetrics();
    table.verticalHeader()->setDefaultSectionSize(metrics.lineSpacing() + 6);
    const QString day = foundation::localText(QDate(2028, 12, 28));
    const QString name = QStringLiteral("A usual account");
    const QString both = name + QStringLiteral(" and one");
    const QString mark = RegisterModel::tr("reconciled") + QStringLiteral("\u25cf ");
    for (const auto &[column, text] : {std::pair(Column::Number, QStringLiteral("65535")),
                                       {Column::Day, day},
                                       {Column::Other, both},
                                       {Column::Debit, name},
                                       {Column::Credit, name},
                                       {Column::Mark, mark},
                                       {Column::Amount, amount},
                                       {Column::Balance, amount}}) {
        const int place = rows.place(column);
        if (place < 0)
            continue;
        const QString title = rows.headerData(place, Qt::Horizontal, Qt::DisplayRole).toString();
        table.setColumnWidth(
            place, std::max(metrics.horizontalAdvance(text), metrics.horizontalAdvance(title)) +
                       3 * metrics.averageCharWidth());
    }
}

void followWidth(QTableView &table, const RegisterModel &rows)
{
    const int place = rows.place(RegisterModel::Column::Text);
    QHeaderView &header = *table.horizontalHeader();
    const int least = textLetters * table.fontMetrics().averageCharWidth();
    const int left = table.viewport()->width() - header.length() + header.sectionSize(place);
    const bool isNarrow = left < least;
    header.setSectionResizeMode(place, isNarrow ? QHeaderView::Interactive : QHeaderView::Stretch);
    if (isNarrow)
        header.resizeSection(place, std::max(least, header.sectionSize(place)));
}

} // namespace kiv::desktop
