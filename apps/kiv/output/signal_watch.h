// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QObject>

#include <functional>

namespace kiv::app {

/// Tells of every signal of an object that its class declares, as it is
/// emitted: {"signal": …, "arguments": {name: value, …}}. Texts, numbers and
/// booleans are JSON values, everything else is its debug text.
class SignalWatch final : public QObject {
public:
    using Teller = std::function<void(const QJsonObject &)>;

    SignalWatch(QObject &watched, Teller teller);
    /// Receives all signals: the object has one method more than its class
    /// declares for each of them.
    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override;

private:
    QObject &m_watched;
    Teller m_teller;
};

} // namespace kiv::app
