// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/desk.h"

#include <QtWidgets/QWidget>

#include <optional>
#include <type_traits>

QT_BEGIN_NAMESPACE
class QFormLayout;
class QHBoxLayout;
class QPushButton;
QT_END_NAMESPACE

namespace kiv::desktop {

/// Labelled fields, one below the other, with the line that tells a refusal, and buttons.
/// Enter in any field is the first button, Esc gives up. What was typed stays after a
/// refusal.
class Form final : public QWidget {
    Q_OBJECT

public:
    Form(Desk &desk, QWidget *parent);

    /// Says above the fields what they are for.
    void setHeading(const QString &heading);
    /// Adds a field. `id` is its object name; the label has its mnemonic. Returns the field.
    template <typename Field>
    Field *add(const QString &id, const QString &label, Field *field)
    {
        addField(id, label, field);
        return field;
    }
    /// Shows or hides a field with its label.
    void setShown(QWidget &field, bool isShown);
    /// Changes the label of a field.
    void setLabel(QWidget &field, const QString &label);
    /// Adds a button. The first one is what Enter does.
    QPushButton *addButton(const QString &id, const QString &text,
                           const std::function<void()> &run);
    /// Allows all fields and buttons, or says why they cannot be used now.
    void allow(const std::optional<QString> &whyNot);

    /// What `read` returns, or whether it was done if that is nothing. A refusal is shown at the
    /// field, and nothing returned.
    template <typename Read>
    auto read(QWidget &field, Read &&read)
    {
        using Result = std::invoke_result_t<Read>;
        if constexpr (std::is_void_v<Result>) {
            return m_message->attempt(&field, read);
        } else {
            std::optional<Result> result;
            m_message->attempt(&field, [&] { result.emplace(read()); });
            return result;
        }
    }
    /// Makes a change as Desk::perform() does. A refusal is shown at the field that is most
    /// likely at fault.
    bool perform(QWidget &field, const workbench::Deed &deed, const std::function<void()> &work);
    /// Within the work of perform(): a refusal from now on is shown at this field.
    void blame(QWidget &field) { m_blamed = &field; }
    /// Changes what is not part of the budget, as Desk::apply() does.
    bool apply(QWidget &field, const QString &line, const std::function<void()> &work);
    /// The line that tells a refusal.
    [[nodiscard]] FieldMessage &message() noexcept { return *m_message; }

signals:
    /// Esc was pressed.
    void givenUp();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void addField(const QString &id, const QString &label, QWidget *field);
    void widen(QWidget &field) const;

    struct FieldRow {
        QLabel *label;
        QWidget *field;
        bool isShown = true;
    };
    [[nodiscard]] FieldRow &rowOf(const QWidget &field);

    Desk &m_desk;
    QLabel *m_heading;
    QFormLayout *m_fields;
    FieldMessage *m_message;
    QHBoxLayout *m_foot;
    QList<FieldRow> m_rows;
    QList<QPushButton *> m_buttons;
    QWidget *m_blamed = nullptr;
};

} // namespace kiv::desktop
