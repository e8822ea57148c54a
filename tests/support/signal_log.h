// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/fault.h"

#include <QtCore/QDebug>
#include <QtCore/QMetaMethod>
#include <QtCore/QObject>
#include <QtCore/QSet>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <functional>
#include <utility>

namespace kiv::test {

/// Records every signal of an object that its own class declares, as text:
/// `name(first argument, second argument)`, each argument as its meta-type
/// prints it. Compared as a whole list, it shows an answer too many as well as
/// a missing one.
class SignalLog final : public QObject {
public:
    explicit SignalLog(const QObject &sender, Qt::ConnectionType type = Qt::DirectConnection)
        : m_meta(sender.metaObject())
    {
        for (int i = QObject::staticMetaObject.methodCount(); i < m_meta->methodCount(); ++i) {
            if (m_meta->method(i).methodType() == QMetaMethod::Signal)
                QMetaObject::connect(&sender, i, this, firstMethod() + i, type);
        }
    }

    /// Called for each signal; what it answers is put behind the text. Signals
    /// that it causes itself are recorded too.
    void annotate(std::function<QString(const QString &name)> annotation)
    {
        m_annotation = std::move(annotation);
    }
    void ignore(const QString &name, bool isIgnored)
    {
        if (isIgnored)
            m_ignored.insert(name);
        else
            m_ignored.remove(name);
    }

    /// Records a line that is no signal, such as one of the log.
    void note(const QString &line) { m_entries.append(line); }

    /// What was recorded since the last call.
    [[nodiscard]] QStringList take() { return std::exchange(m_entries, {}); }

    /// The arguments themselves, for each signal, since the last call.
    [[nodiscard]] QList<QVariantList> takeValues() { return std::exchange(m_values, {}); }

    // What Q_OBJECT would declare; here every signal of the other object is
    // a slot of this one.
    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override
    {
        id = QObject::qt_metacall(call, id, arguments);
        if (id < 0 || call != QMetaObject::InvokeMetaMethod)
            return id;
        record(m_meta->method(id), arguments);
        return -1;
    }

private:
    static int firstMethod() { return QObject::staticMetaObject.methodCount(); }

    void record(const QMetaMethod &method, void **arguments)
    {
        const Unwatched aside;
        const QString name = QString::fromLatin1(method.name());
        if (m_ignored.contains(name))
            return;
        QStringList texts;
        QVariantList values;
        for (int i = 0; i < method.parameterCount(); ++i) {
            QMetaType type = method.parameterMetaType(i);
            QString text;
            QDebug stream(&text);
            if (!type.debugStream(stream.nospace(), arguments[i + 1]))
                text = QStringLiteral("<no debug text>");
            texts.append(text);
            values.append(QVariant(type, arguments[i + 1]));
        }
        m_values.append(values);
        const qsizetype place = m_entries.size();
        m_entries.append(QStringLiteral("%1(%2)").arg(name, texts.join(QStringLiteral(", "))));
        if (m_annotation) {
            const QString behind = m_annotation(name);
            if (place < m_entries.size())
                m_entries[place] += behind;
        }
    }

    const QMetaObject *m_meta;
    QStringList m_entries;
    QList<QVariantList> m_values;
    QSet<QString> m_ignored;
    std::function<QString(const QString &)> m_annotation;
};

} // namespace kiv::test
