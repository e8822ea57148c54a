// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/page.h"
#include "pages/unlocking.h"
#include "widgets/delay.h"

QT_BEGIN_NAMESPACE
class QPushButton;
QT_END_NAMESPACE

namespace kiv::desktop {

struct HistoryTarget;
class Table;
class TableModel;

/// The steps of this session and the former versions of the file: what changed since, and
/// going back to one of them.
class HistoryPage final : public Page {
    Q_OBJECT

public:
    explicit HistoryPage(Desk &desk);

    [[nodiscard]] QWidget *firstFocus() override;

protected:
    void refresh() override;

private:
    void showVersions();
    void follow();
    void compare();
    /// Asks for the passphrase of the chosen version, and shows what changed since then.
    void unlock();
    void goBack();
    /// The budget as it was at the step or in the version.
    [[nodiscard]] storage::BudgetStorage::Data thenOf(const HistoryTarget &target) const;
    void showChanges(const storage::BudgetStorage::Data &then);
    void showTrouble(const foundation::Error &error);

    Unlocking m_unlocking;
    TableModel *m_model;
    Table *m_table;
    TableModel *m_changes;
    Table *m_changeTable;
    QLabel *m_difference;
    QPushButton *m_goBack;
    QPushButton *m_unlock; ///< only for a version with another passphrase
    FieldMessage *m_message;
    Delay m_pause; ///< before a version is read, while the keys go on to another
};

} // namespace kiv::desktop
