// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "widgets/delay.h"
#include "widgets/field_message.h"

#include "workbench/entry/account_index.h"
#include "workbench/search/filter_part.h"

#include <QtWidgets/QWidget>

QT_BEGIN_NAMESPACE
class QComboBox;
class QLabel;
class QLineEdit;
QT_END_NAMESPACE

namespace kiv::desktop {

/// The field for searches, and choices beside it that stand for parts of the same search.
class FilterBar final : public QWidget {
    Q_OBJECT

public:
    explicit FilterBar(QWidget *parent);

    [[nodiscard]] QString text() const;
    void setText(const QString &text);
    /// The accounts and items that can be chosen. Returns whether they are others now.
    bool offer(const workbench::AccountIndex &accounts);
    /// What the search found.
    void showResult(const QString &result);
    /// Why the search cannot be understood. What is typed stays.
    void complain(const QString &sentence);
    [[nodiscard]] QWidget *field() const;

signals:
    /// The search is another one.
    void searched(const QString &text);
    /// The user is done with the field.
    void leaving();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QComboBox *addChoice(const QString &name, const QString &anything);
    /// Puts a part, as it is typed, in the place of those of its kind; an empty one takes
    /// them away.
    void choose(workbench::FilterKind kind, const QString &chosen);
    void followText();
    void search();

    QLineEdit *m_field;
    QComboBox *m_marks;
    QComboBox *m_periods;
    QComboBox *m_accounts;
    QLabel *m_result;
    FieldMessage *m_message;
    Delay m_delay;
};

} // namespace kiv::desktop
