// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/form.h"
#include "pages/page.h"

QT_BEGIN_NAMESPACE
class QGridLayout;
QT_END_NAMESPACE

namespace kiv::desktop {

class Table;
class TableModel;
struct Row;

/// A page with a table, the buttons for what can be done with a row, and at its side a form
/// that is opened for one thing at a time. Enter or F2 changes the row, Del removes it, Esc
/// closes the form.
class ListPage : public Page {
    Q_OBJECT

public:
    [[nodiscard]] QWidget *firstFocus() override;

protected:
    ListPage(Desk &desk, const QString &id, const QString &title, const QStringList &columns);

    /// Puts a widget above the table and the form.
    void addAbove(QWidget *widget);
    /// Puts a widget between the table and the buttons.
    void addBelow(QWidget *widget);
    /// Adds a button below the table. `id` is its object name.
    QPushButton *addButton(const QString &id, const QString &text,
                           const std::function<void()> &run);
    /// Adds a form, which is closed at first.
    Form *addForm(const QString &id);
    /// Adds the buttons of a form behind its fields. `save` is what the first one does.
    void addFormButtons(Form &form, const std::function<void()> &save);
    /// Opens this form and no other. The field gets the focus.
    void open(Form &form, QWidget &first);
    /// Closes the open form, if there is one, and goes back to the table.
    void closeForm();
    /// The form that is open; null without one.
    [[nodiscard]] Form *openForm() const noexcept { return m_open; }

    /// Shows these rows, or the sentence that there are none.
    void showRows(std::vector<Row> rows, const QString &none);
    /// The key of the row that is chosen; empty without one.
    [[nodiscard]] QString chosen() const;
    void choose(const QString &key);
    /// Allows the changes of a row that is chosen, or says why not.
    void allowForRow(std::initializer_list<QWidget *> buttons,
                     const std::optional<QString> &whyNot = std::nullopt) const;
    [[nodiscard]] Table &table() const noexcept { return *m_table; }
    [[nodiscard]] TableModel &model() const noexcept { return *m_model; }

    void forgetFile() override { closeForm(); }
    /// Makes a change of the row that is chosen. A refusal is shown above the buttons.
    bool perform(const workbench::Deed &deed, const std::function<void()> &work);

    /// Brings the buttons in line with the row that is chosen.
    virtual void follow() = 0;
    /// Brings the fields of the open form in line with what can be changed.
    virtual void followForm() {}
    /// Enter was pressed on a row.
    virtual void enter() { change(); }
    /// Opens the form in which the row that is chosen is changed.
    virtual void change() = 0;
    /// Removes the row that is chosen.
    virtual void remove() = 0;

private:
    /// Where the focus is while no form is open.
    [[nodiscard]] QWidget *listFocus() const;
    void allowForm();

    TableModel *m_model;
    Table *m_table;
    QLabel *m_none;
    FieldMessage *m_message;
    QVBoxLayout *m_list;
    QWidget *m_buttons;
    QGridLayout *m_grid;
    QWidget *m_side; ///< hidden while no form is open, so that the table is as wide as the page
    Form *m_open = nullptr;
    QWidget *m_first = nullptr; ///< of the open form
};

} // namespace kiv::desktop
