// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/starter_rows.h"
#include "pages/form.h"

QT_BEGIN_NAMESPACE
class QComboBox;
QT_END_NAMESPACE

namespace kiv::desktop {

class DayEdit;
class MoneyEdit;
class Table;

/// The step of the first-time wizard that shows the usual items of a household. Space in
/// the table says whether an item is wanted; the fields below belong to the chosen line.
class HouseholdStep final : public QWidget {
    Q_OBJECT

public:
    HouseholdStep(Desk &desk, QWidget *parent);

    /// The currency of amounts that are typed without one.
    void setCurrency(const numira::Currency &currency);
    /// The items that will be made.
    [[nodiscard]] std::vector<workbench::StarterChoice> items() const;
    /// Takes what was typed and not yet sent into its line. Returns false, with the
    /// refusal at its field, if it cannot be read.
    [[nodiscard]] bool takeTyped();
    /// Shows a refusal; the line of an item that it names is chosen.
    void complain(const QString &sentence);
    [[nodiscard]] QWidget *firstFocus() const;

signals:
    /// How many items will be made has changed.
    void changed();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    [[nodiscard]] StarterLine *chosen();
    void follow();
    void showRows();
    void showLines();
    void toggle();
    void take();
    void chooseNext();

    QComboBox *m_household;
    TableModel *m_model;
    Table *m_table;
    Form *m_form;
    MoneyEdit *m_amount;
    DayEdit *m_day;
    MoneyEdit *m_target;
    Desk &m_desk;
    numira::Currency m_currency;
    std::vector<StarterLine> m_lines;
    QString m_shownKey;  ///< of the line that the fields show
    QString m_shownText; ///< what the fields showed of it
};

} // namespace kiv::desktop
