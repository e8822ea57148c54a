// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QObject>

QT_BEGIN_NAMESPACE
class QCompleter;
class QWidget;
QT_END_NAMESPACE

namespace kiv::desktop {

/// Keeps a form quick while a list of completions is open: Tab takes the marked name and goes
/// on to the next field; Enter takes the marked name, and without one does what Enter does in
/// the form. Otherwise the first press would only close the list. Keys that go elsewhere, such
/// as the letter of another field with Alt, close it as well; open, it would get what follows.
class CompletionKeys final : public QObject {
    Q_OBJECT

public:
    /// Whether Tab also takes a name that is the only one left.
    enum class OnlyMatch : std::uint8_t { Stays, IsTaken };

    /// For the completer of `field`, which owns this.
    CompletionKeys(QCompleter &completer, QWidget &field, OnlyMatch onlyMatch);

signals:
    /// A name was taken.
    void taken(const QString &name);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QCompleter &m_completer;
    QWidget &m_field;
    OnlyMatch m_onlyMatch;
};

} // namespace kiv::desktop
