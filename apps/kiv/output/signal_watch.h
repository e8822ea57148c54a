// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QObject>

#include <functional>

namespace kiv::app {

/// Reports every signal of an object as {"signal": …, "arguments": {name: value, …}}.
/// Texts, numbers and booleans are JSON values, all others their debug text.
class SignalWatch final : public QObject {
public:
    using Teller = std::function<void(const QJsonObject &)>;

    SignalWatch(QObject &watched, Teller teller);
    /// Receives all signals, each as a method number beyond those that the class
    /// declares.
    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override;

private:
    QObject &m_watched;
    Teller m_teller;
};

} // namespace kiv::app
