// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/desk.h"

#include <QtWidgets/QWidget>

namespace kiv::desktop {

class Table;
class TableModel;

/// The past reconciliations, the newest first, and whether they hold.
class PastSurveys final : public QWidget {
    Q_OBJECT

public:
    PastSurveys(Desk &desk, QWidget *parent);

    void refresh();
    /// Chooses one by its place, see reconciliationRows(); the newest if there is none.
    void choose(const QString &key);
    /// The table; null while it is empty.
    [[nodiscard]] QWidget *firstFocus() noexcept;

private:
    void follow();

    Desk &m_desk;
    TableModel *m_rows;
    Table *m_table;
    QLabel *m_state;
};

} // namespace kiv::desktop
