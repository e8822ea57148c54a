// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "widgets/followed_view.h"

#include <QtCore/QStringList>
#include <QtWidgets/QTableView>

namespace kiv::desktop {

class TableModel;

/// A table of whole rows, for keys, mouse and screen readers. Tab leaves it.
class Table final : public FollowedView<QTableView> {
    Q_OBJECT

public:
    /// `name` is said by screen readers.
    Table(TableModel &model, const QString &name, QWidget *parent);

    /// Whether several rows can be chosen; at first only one can.
    void chooseSeveral();
    /// Is as high as its rows, but for at most so many.
    void fit(int rowsMax);
    /// The keys of the rows that are chosen, from the top.
    [[nodiscard]] QStringList chosen() const;
    /// Chooses the row of this key, if it is there.
    void choose(const QString &key);
    /// Shows the rows anew, after they have changed. If none is chosen, the first one is.
    void settle();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    /// The row was asked for by Enter or a double click.
    void opened(const QString &key);
    /// F2 was pressed on the row.
    void changeWanted(const QString &key);
    /// Del was pressed on the row.
    void removalWanted(const QString &key);
    /// Other rows are chosen.
    void chosenChanged();

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void selectionChanged(const QItemSelection &selected,
                          const QItemSelection &deselected) override;

private:
    void setHeights();
    void setWidths();
    [[nodiscard]] int heightOf(int rows) const;

    TableModel &m_rows;
    int m_fits = 0;
};

} // namespace kiv::desktop
