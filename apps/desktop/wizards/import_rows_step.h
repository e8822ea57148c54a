// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/draft_rows.h"
#include "pages/form.h"

QT_BEGIN_NAMESPACE
class QCheckBox;
class QComboBox;
class QPushButton;
QT_END_NAMESPACE

namespace kiv::desktop {

class AccountBox;
class Table;

/// The last step of an import of a statement: what becomes of each entry, to be looked at and
/// corrected. Space in the table says whether an entry is taken; the fields below belong to
/// the chosen one. What is shown is what is done.
class ImportRowsStep final : public QWidget {
    Q_OBJECT

public:
    ImportRowsStep(Desk &desk, QWidget *parent);

    /// Shows what an import would do.
    void show(workbench::ImportPreview preview);
    /// What it would do after all corrections; null if nothing is shown.
    [[nodiscard]] const workbench::ImportPreview *preview() const noexcept;
    void forget();
    /// Says what can be changed now.
    void allow();
    /// Shows a refusal; the entry at this place in the file is chosen.
    void complain(const QString &sentence, const interchange::Place &place);
    /// Takes what was typed and not yet sent into its entry. Returns false, with the refusal
    /// at its field, if it cannot be read.
    [[nodiscard]] bool takeTyped();
    [[nodiscard]] FieldMessage &message();
    [[nodiscard]] QWidget *firstFocus() const;

signals:
    void importWanted();
    void backWanted();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void build();
    [[nodiscard]] std::optional<std::size_t> chosen() const;
    void showRows();
    /// As showRows() after a correction, which often changes a single row of many.
    void showChanges();
    [[nodiscard]] bool showsFewChanges();
    void sayFigures();
    void follow();
    void offerMeanings(std::size_t place);
    void fillFields(std::size_t place);
    void allowFields();
    /// The account that is typed; nothing after a refusal at its field.
    [[nodiscard]] std::optional<accounting::AccountNumber> readOther();
    void toggle();
    void mean();
    void remember(bool isRemembered);
    void keep();

    Desk &m_desk;
    QLabel *m_notices;
    QComboBox *m_filter;
    TableModel *m_model;
    Table *m_table;
    Form *m_form;
    QComboBox *m_meaning;
    AccountBox *m_other;
    QCheckBox *m_remember;
    QLabel *m_figures;
    QPushButton *m_import;
    std::optional<workbench::ImportPreview> m_preview;
    std::vector<workbench::ImportRow> m_told; ///< the rows as they are shown
    std::shared_ptr<const workbench::AccountIndex> m_accounts;
    /// What the entry of the fields can be, in the order of the box; nothing for new.
    std::vector<std::optional<workbench::ImportMeaning>> m_meanings;
    std::optional<std::size_t> m_shown; ///< the entry of the fields
    QString m_shownOther;               ///< what its other side was when it was shown
};

} // namespace kiv::desktop
