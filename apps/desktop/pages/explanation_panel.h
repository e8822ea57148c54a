// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/page.h"

#include <QtWidgets/QFrame>

QT_BEGIN_NAMESPACE
class QPushButton;
QT_END_NAMESPACE

namespace kiv::desktop {

class Table;
class TableModel;
struct Row;

/// Tells below the page why a figure is what it is, line by line. Enter opens the transaction of
/// a line; Esc closes the panel, and the focus goes back to where it was.
class ExplanationPanel final : public QFrame {
    Q_OBJECT

public:
    ExplanationPanel(Desk &desk, QWidget *parent);

    /// Shows the panel, and gives it the focus.
    void open(const Explain &explain);
    /// Shows these explanations. What cannot be explained is told in their place.
    void explain(const Explain &explain);
    void close();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    /// The rows for these, and the title above them.
    [[nodiscard]] std::vector<Row> rowsOf(const std::vector<workbench::Explanation> &all);

    Desk &m_desk;
    QLabel *m_title;
    QPushButton *m_close;
    TableModel *m_model;
    Table *m_table;
    std::map<QString, accounting::TransactionNumber> m_entries; ///< by the key of their row
    QPointer<QWidget> m_focusBefore;
};

} // namespace kiv::desktop
