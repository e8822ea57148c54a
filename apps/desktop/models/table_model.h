// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "widgets/colours.h"

#include "navigation/currency_display.h"
#include "numira/money.h"

#include <QtCore/QAbstractTableModel>
#include <QtCore/QDate>

#include <optional>
#include <vector>

namespace kiv::desktop {

/// A cell of a table.
struct Cell {
    QString text;
    QString spoken = {};                         ///< in words, where the text does not tell
    bool isAmount = false;                       ///< stands at the right
    std::optional<Colour> colour = std::nullopt; ///< never the only sign

    friend bool operator==(const Cell &, const Cell &) = default;
};

/// A row of a table.
struct Row {
    QString key; ///< that no other row has; the row keeps it when its cells change
    std::vector<Cell> cells;
    bool isHeading = false; ///< names the rows below it, and cannot be chosen
    bool isBold = false;    ///< stands out, and can be chosen

    friend bool operator==(const Row &, const Row &) = default;
};

/// An amount, with a minus if it is negative.
[[nodiscard]] Cell amountCell(const numira::Money &amount,
                              navigation::CurrencyDisplayOptions displayAs);
/// A day; empty without one.
[[nodiscard]] Cell dayCell(QDate day);

/// A table that is only looked at. New rows take the place of the old ones by difference:
/// who points to a row goes on pointing to the row of the same key.
class TableModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit TableModel(QStringList columns, QObject *parent = nullptr);

    /// Forgets all rows and has these columns.
    void setColumns(const QStringList &columns);
    /// Shows these rows.
    void setRows(std::vector<Row> rows);
    /// Shows this row in place of the one with the same key, which must be there.
    void setRow(Row row);
    [[nodiscard]] const std::vector<Row> &rows() const noexcept { return m_rows; }
    /// The place of the row with this key, or -1.
    [[nodiscard]] int place(const QString &key) const;
    /// The key of the row that the index is in; empty without one.
    [[nodiscard]] QString key(const QModelIndex &index) const;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    void removeOthers(const std::vector<Row> &rows);
    void addMissing(const std::vector<Row> &rows);
    void putInOrder(const std::vector<Row> &rows);
    [[nodiscard]] QString spokenRow(const Row &row) const;

    QStringList m_columns;
    std::vector<Row> m_rows;
};

} // namespace kiv::desktop
