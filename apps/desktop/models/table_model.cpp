// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/table_model.h"

#include "workbench/entry/money_text.h"

#include "foundation/presentation.h"

#include <QtCore/QHash>
#include <QtCore/QSize>
#include <QtGui/QFont>
#include <QtGui/QGuiApplication>

namespace kiv::desktop {
namespace {

QHash<QString, int> places(const std::vector<Row> &rows)
{
    QHash<QString, int> places;
    for (const Row &row : rows)
        places.insert(row.key, static_cast<int>(places.size()));
    return places;
}

const QString &spokenText(const Cell &cell)
{
    return cell.spoken.isEmpty() ? cell.text : cell.spoken;
}

} // namespace

Cell amountCell(const numira::Money &amount, navigation::CurrencyDisplayOptions displayAs)
{
    Cell cell{workbench::amountText(amount, displayAs), {}, true};
    if (amount.isNegative()) {
        cell.spoken = QObject::tr("minus %1").arg(workbench::amountText(amount.abs(), displayAs));
        cell.colour = Colour::Negative;
    }
    return cell;
}

Cell dayCell(QDate day)
{
    return {day.isValid() ? foundation::presentationText(day) : QString()};
}

TableModel::TableModel(QStringList columns, QObject *parent)
    : QAbstractTableModel(parent), m_columns(std::move(columns))
{
}

void TableModel::setColumns(const QStringList &columns)
{
    beginResetModel();
    m_columns = columns;
    m_rows.clear();
    endResetModel();
}

void TableModel::setRows(std::vector<Row> rows)
{
    removeOthers(rows);
    addMissing(rows);
    putInOrder(rows);
    for (std::size_t place = 0; place < rows.size(); ++place) {
        if (m_rows[place] != rows[place]) {
            m_rows[place] = std::move(rows[place]);
            const int row = static_cast<int>(place);
            emit dataChanged(index(row, 0), index(row, columnCount() - 1));
        }
    }
}

void TableModel::setRow(Row row)
{
    const int at = place(row.key);
    m_rows.at(static_cast<std::size_t>(at)) = std::move(row);
    emit dataChanged(index(at, 0), index(at, columnCount() - 1));
}

void TableModel::removeOthers(const std::vector<Row> &rows)
{
    const QHash<QString, int> kept = places(rows);
    for (std::size_t end = m_rows.size(); end > 0;) {
        std::size_t first = end;
        while (first > 0 && !kept.contains(m_rows[first - 1].key))
            --first;
        if (first < end) {
            beginRemoveRows({}, static_cast<int>(first), static_cast<int>(end) - 1);
            m_rows.erase(m_rows.begin() + static_cast<std::ptrdiff_t>(first),
                         m_rows.begin() + static_cast<std::ptrdiff_t>(end));
            endRemoveRows();
        }
        end = first > 0 ? first - 1 : 0;
    }
}

void TableModel::addMissing(const std::vector<Row> &rows)
{
    const QHash<QString, int> present = places(m_rows);
    std::vector<Row> missing;
    for (const Row &row : rows) {
        if (!present.contains(row.key))
            missing.push_back(row);
    }
    if (missing.empty())
        return;
    beginInsertRows({}, rowCount(), rowCount() + static_cast<int>(missing.size()) - 1);
    std::ranges::move(missing, std::back_inserter(m_rows));
    endInsertRows();
}

void TableModel::putInOrder(const std::vector<Row> &rows)
{
    if (std::ranges::equal(m_rows, rows, {}, &Row::key, &Row::key))
        return;
    emit layoutAboutToBeChanged();
    const QModelIndexList before = persistentIndexList();
    const QHash<QString, int> wanted = places(rows);
    QModelIndexList after;
    for (const QModelIndex &old : before)
        after += index(wanted.value(key(old)), old.column());
    std::ranges::sort(m_rows, {}, [&wanted](const Row &row) { return wanted.value(row.key); });
    changePersistentIndexList(before, after);
    emit layoutChanged();
}

int TableModel::place(const QString &key) const
{
    const auto found = std::ranges::find(m_rows, key, &Row::key);
    return found == m_rows.end() ? -1 : static_cast<int>(found - m_rows.begin());
}

QString TableModel::key(const QModelIndex &index) const
{
    return index.isValid() ? m_rows.at(static_cast<std::size_t>(index.row())).key : QString();
}

int TableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int TableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QString TableModel::spokenRow(const Row &row) const
{
    QStringList parts;
    for (std::size_t column = 0; column < row.cells.size(); ++column) {
        const QString &text = spokenText(row.cells[column]);
        const QString &header = m_columns.at(static_cast<qsizetype>(column));
        if (!text.isEmpty())
            parts += column == 0 || header.isEmpty() ? text : header + u' ' + text;
    }
    return parts.join(QStringLiteral(", "));
}

QVariant TableModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const Row &row = m_rows.at(static_cast<std::size_t>(index.row()));
    const auto column = static_cast<std::size_t>(index.column());
    const Cell cell = column < row.cells.size() ? row.cells[column] : Cell{};
    switch (role) {
    case Qt::DisplayRole:
        // Among words from right to left, the minus stays in front of its number.
        if (cell.isAmount && QGuiApplication::isRightToLeft() && !cell.text.isEmpty())
            return QChar(0x200e) + cell.text;
        return cell.text;
    case Qt::ToolTipRole:
        return cell.text;
    case Qt::AccessibleTextRole:
        if (column == 0 || row.isHeading)
            return spokenRow(row);
        return spokenText(cell).isEmpty() ? tr("nothing") : spokenText(cell);
    case Qt::TextAlignmentRole:
        return static_cast<int>((cell.isAmount ? Qt::AlignRight : Qt::AlignLeft) |
                                Qt::AlignVCenter);
    case Qt::FontRole:
        if (row.isHeading || row.isBold) {
            QFont font = QGuiApplication::font();
            font.setBold(true);
            return font;
        }
        return {};
    case Qt::SizeHintRole:
        // Its text runs on over the columns, so that it makes none of them wider.
        return row.isHeading ? QVariant(QSize(1, 1)) : QVariant();
    case Qt::ForegroundRole:
        if (row.isHeading || cell.colour)
            return colour(cell.colour.value_or(Colour::Heading), QGuiApplication::palette());
        return {};
    default:
        return {};
    }
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section >= m_columns.size())
        return {};
    if (role == Qt::DisplayRole)
        return m_columns.at(section);
    const auto isAmount = [column = static_cast<std::size_t>(section)](const Row &row) {
        return column < row.cells.size() && row.cells[column].isAmount;
    };
    if (role == Qt::TextAlignmentRole)
        return static_cast<int>(
            (std::ranges::any_of(m_rows, isAmount) ? Qt::AlignRight : Qt::AlignLeft) |
            Qt::AlignVCenter);
    return {};
}

Qt::ItemFlags TableModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return {};
    if (m_rows.at(static_cast<std::size_t>(index.row())).isHeading)
        return Qt::ItemNeverHasChildren; // not enabled: the keys go on to the next row
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
}

} // namespace kiv::desktop
