// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/page.h"

#include "workbench/statements/import_reading.h"

QT_BEGIN_NAMESPACE
class QStackedWidget;
QT_END_NAMESPACE

namespace kiv::desktop {

class ImportColumnsStep;
class ImportFileStep;
class ImportJournalStep;
class ImportRowsStep;

/// Imports a bank's file, or a journal of another program: the file, then what becomes of each
/// entry. Nothing is changed before the end, and then all of it as one step of undo.
class ImportWizard final : public Page {
    Q_OBJECT

public:
    explicit ImportWizard(Desk &desk);

    /// A step that has something to show: "file", "columns", "rows" or
    /// "journal".
    void goTo(const QString &detail) override;
    [[nodiscard]] QString detail() const override;
    [[nodiscard]] QStringList parts() const override;
    [[nodiscard]] QWidget *firstFocus() override;

protected:
    void refresh() override;
    void forgetFile() override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void choose(std::optional<accounting::AccountNumber> into, const QString &file);
    void showStep(QWidget *step);
    void showColumns(std::optional<accounting::AccountNumber> account);
    void fillColumns(std::optional<accounting::AccountNumber> account);
    void showRows(const workbench::ImportReading &reading);
    void showJournal();
    /// Shows what the first step asks, or says how the file is read if that is at fault.
    void followQuestion(const QString &sentence, bool isOfFile);
    void forget();
    void goBack();
    /// What is remembered of imports, and how the table is read if that is to be kept.
    [[nodiscard]] workbench::ImportMemory memory(accounting::AccountNumber account) const;
    /// The file compared with the books. What was said of its entries stands, as long as they are
    /// read as before.
    [[nodiscard]] workbench::ImportPreview preview(const workbench::ImportReading &reading) const;
    /// Compares the file with the books anew if these are others than they were.
    void compareAnew();
    void importRows();
    void importJournal();
    /// Goes on in the register, where the import can be seen.
    void leaveTo(const Place &place, const QString &line);

    QStackedWidget *m_steps;
    ImportFileStep *m_file;
    ImportColumnsStep *m_columns;
    ImportRowsStep *m_rows;
    ImportJournalStep *m_journal;
    std::optional<workbench::ImportReading> m_reading;
    bool m_isOutdated = false; ///< whether the books have changed since the comparison
    bool m_isImporting = false;
};

} // namespace kiv::desktop
