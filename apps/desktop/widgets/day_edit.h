// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QDate>
#include <QtWidgets/QLineEdit>

namespace kiv::desktop {

/// A field for a day. It reads what workbench::dayOf() reads, and shows the date when it is
/// left. While a whole date stands in it, + and ↑ go to the next day, − and ↓ to the one
/// before, and T to today. Digits behind + or − make days from today of it, as in "+7".
class DayEdit final : public QLineEdit {
    Q_OBJECT

public:
    explicit DayEdit(QWidget *parent = nullptr);

    void setDay(QDate day);
    /// What is typed. Throws an EntryError if that is no day.
    [[nodiscard]] QDate day() const;

protected:
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    /// The day that stands there whole, and not as somebody began to type it.
    [[nodiscard]] std::optional<QDate> wholeDay() const;

    QString m_sign; ///< the + or − that was pressed just before
};

} // namespace kiv::desktop
