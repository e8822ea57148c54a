// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "widgets/spoken_label.h"

#include "workbench/requests/requests.h"

#include "numira/error.h"

#include <QtCore/QPointer>

namespace kiv::desktop {

/// Runs `work`, and gives the sentence of what was refused or came out too large to be kept;
/// nothing if it succeeded.
template <typename Work>
[[nodiscard]] std::optional<QString> refusalOf(Work &&work)
{
    try {
        work();
        return std::nullopt;
    } catch (const foundation::Error &error) {
        return workbench::userText(error);
    } catch (const numira::Error &error) {
        return workbench::userText(error);
    }
}

/// The line of a form that says why something was refused. The field at fault keeps what
/// was typed, is marked and gets the focus.
class FieldMessage final : public SpokenLabel {
    Q_OBJECT

public:
    explicit FieldMessage(QWidget *parent = nullptr);

    /// Says why; `field` is at fault.
    void complain(QWidget *field, const QString &sentence);
    /// Runs `work`; what is refused is complained of. Returns whether it was done.
    template <typename Work>
    bool attempt(QWidget *field, Work &&work)
    {
        const auto refused = refusalOf(work);
        if (refused)
            complain(field, *refused);
        return !refused;
    }
    /// The sentence; empty without one.
    [[nodiscard]] const QString &sentence() const noexcept { return m_sentence; }
    /// Whether `field` is at fault.
    [[nodiscard]] bool complainsOf(const QWidget *field) const { return m_field == field; }
    /// Takes the sentence and the mark away.
    void withdraw();

private:
    QPointer<QWidget> m_field;
    QString m_sentence;
};

} // namespace kiv::desktop
