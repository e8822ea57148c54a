// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/desk.h"

#include "workbench/statements/posted_import.h"

#include <QtWidgets/QWidget>

QT_BEGIN_NAMESPACE
class QPushButton;
QT_END_NAMESPACE

namespace kiv::desktop {

class Table;
class TableModel;

/// The last step of an import of a journal: its transactions, and which are there already.
class ImportJournalStep final : public QWidget {
    Q_OBJECT

public:
    ImportJournalStep(Desk &desk, QWidget *parent);

    /// Reads the journal, and shows what its import would do. Throws ImportError for what
    /// cannot be read.
    void show(const QByteArray &bytes, const QString &file);
    /// The journal that is shown; null if there is none.
    [[nodiscard]] const interchange::Draft *draft() const noexcept;
    /// What its import would do, in a line.
    [[nodiscard]] const QString &summary() const noexcept { return m_summary; }
    void forget();
    /// Says whether it can be imported now.
    void allow();
    [[nodiscard]] FieldMessage &message() noexcept { return *m_message; }
    [[nodiscard]] QWidget *firstFocus() const;

signals:
    void importWanted();
    void backWanted();

private:
    QLabel *m_notices;
    TableModel *m_model;
    Table *m_table;
    FieldMessage *m_message;
    QLabel *m_figures;
    QPushButton *m_import;
    Desk &m_desk;
    std::optional<interchange::Draft> m_draft;
    QString m_summary;
};

} // namespace kiv::desktop
