// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QPointer>
#include <QtWidgets/QLabel>

namespace kiv::desktop {

/// The line of a form that says why something was refused. The field at fault keeps what
/// was typed, is marked and gets the focus.
class FieldMessage final : public QLabel {
    Q_OBJECT

public:
    explicit FieldMessage(QWidget *parent = nullptr);

    /// Says why; `field` is at fault.
    void complain(QWidget *field, const QString &sentence);
    /// The sentence; empty without one.
    [[nodiscard]] const QString &sentence() const noexcept { return m_sentence; }
    /// Takes the sentence and the mark away.
    void withdraw();

private:
    QPointer<QWidget> m_field;
    QString m_sentence;
};

} // namespace kiv::desktop
