// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "desktop/told.h"

#include <QtTest/QAbstractItemModelTester>

namespace kiv::test {

/// What a table shows that looks again only at what its model calls changed.
class Follower : public QObject {
public:
    explicit Follower(QAbstractItemModel &model) : QObject(&model), m_model(model)
    {
        new QAbstractItemModelTester(&model, this);
        connect(&model, &QAbstractItemModel::modelReset, this, [this] { lookAnew(); });
        connect(&model, &QAbstractItemModel::layoutChanged, this, [this] { lookAnew(); });
        connect(&model, &QAbstractItemModel::rowsInserted, this,
                [this](const QModelIndex &, int first, int last) {
                    m_rows.insert(first, last - first + 1, {});
                    look(first, last, 0, m_model.columnCount() - 1);
                });
        connect(&model, &QAbstractItemModel::rowsRemoved, this,
                [this](const QModelIndex &, int first, int last) {
                    m_rows.remove(first, last - first + 1);
                });
        connect(&model, &QAbstractItemModel::dataChanged, this,
                [this](const QModelIndex &first, const QModelIndex &last) {
                    look(first.row(), last.row(), first.column(), last.column());
                });
        lookAnew();
    }
    /// A cell that was not called changed; nothing if there is none.
    [[nodiscard]] QString missed()
    {
        const auto shown = m_rows;
        lookAnew();
        for (qsizetype row = 0; row < m_rows.size(); ++row) {
            for (const auto &[column, text] : m_rows[row].asKeyValueRange()) {
                if (shown.value(row).value(column) != text)
                    return text;
            }
        }
        return {};
    }

private:
    void lookAnew()
    {
        m_rows = QList<QMap<int, QString>>(m_model.rowCount());
        look(0, m_model.rowCount() - 1, 0, m_model.columnCount() - 1);
    }
    void look(int firstRow, int lastRow, int firstColumn, int lastColumn)
    {
        for (int row = firstRow; row <= lastRow; ++row) {
            for (int column = firstColumn; column <= lastColumn; ++column)
                m_rows[row][column] = cellText(m_model.index(row, column));
        }
    }

    QAbstractItemModel &m_model;
    QList<QMap<int, QString>> m_rows;
};

} // namespace kiv::test
