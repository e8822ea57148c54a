// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/signal_watch.h"

#include <QtCore/QDebug>
#include <QtCore/QMetaMethod>
#include <QtCore/QVariant>

namespace kiv::app {
namespace {

QJsonValue valueOf(QMetaType type, const void *argument)
{
    if (type == QMetaType::fromType<QString>())
        return *static_cast<const QString *>(argument);
    if (type == QMetaType::fromType<bool>())
        return *static_cast<const bool *>(argument);
    // An empty optional equals a new one.
    if (QByteArrayView(type.name()).startsWith("std::optional<") &&
        type.equals(argument, QVariant(type).constData()))
        return QJsonValue::Null;
    QString text;
    QDebug debug(&text);
    debug.nospace().noquote();
    if (!type.debugStream(debug, argument))
        text = QString::fromUtf8(type.name());
    return text.trimmed();
}

} // namespace

SignalWatch::SignalWatch(QObject &watched, Teller teller)
    : m_watched(watched), m_teller(std::move(teller))
{
    const QMetaObject *meta = m_watched.metaObject();
    const int first = QObject::staticMetaObject.methodCount();
    for (int index = meta->methodOffset(); index < meta->methodCount(); ++index) {
        if (meta->method(index).methodType() == QMetaMethod::Signal)
            QMetaObject::connect(&m_watched, index, this, first + index, Qt::DirectConnection);
    }
}

int SignalWatch::qt_metacall(QMetaObject::Call call, int id, void **arguments)
{
    const int index = QObject::qt_metacall(call, id, arguments);
    if (index < 0 || call != QMetaObject::InvokeMetaMethod)
        return index;
    const QMetaMethod signal = m_watched.metaObject()->method(index);
    const QList<QByteArray> names = signal.parameterNames();
    QJsonObject values;
    for (int at = 0; at < signal.parameterCount(); ++at)
        values.insert(QString::fromLatin1(names[at]),
                      valueOf(signal.parameterMetaType(at), arguments[at + 1]));
    m_teller({{QStringLiteral("signal"), QString::fromLatin1(signal.name())},
              {QStringLiteral("arguments"), values}});
    return -1;
}

} // namespace kiv::app
