// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigation/failure.h"

#include "foundation/error.h"

#include <QtCore/QDebug>

namespace kiv::navigation {

namespace {

/// The error behind this one, with what() for those that have no message.
QStringList causesOf(std::exception_ptr cause)
{
    QStringList causes;
    while (cause) {
        std::exception_ptr next;
        QString text;
        try {
            std::rethrow_exception(cause);
        } catch (const foundation::Error &error) {
            text = error.message();
            next = error.cause();
        } catch (const std::exception &error) {
            text = QString::fromUtf8(error.what());
        }
        if (!text.isEmpty())
            causes += text;
        cause = next;
    }
    return causes;
}

} // namespace

QDebug operator<<(QDebug debug, const Failure &failure)
{
    const QDebugStateSaver saver(debug);
    return debug.nospace() << "Failure (" << failure.sentence << ", " << failure.message << ", "
                           << failure.causes << ')';
}

Failure failureOf(const QString &sentence, const std::exception &error)
{
    if (const auto *own = dynamic_cast<const foundation::Error *>(&error))
        return {sentence, own->message(), causesOf(own->cause())};
    return {sentence, QString::fromUtf8(error.what()), {}};
}

LastFailure::LastFailure(QObject *navigator) : QObject(navigator) {}

LastFailure::~LastFailure() = default;

LastFailure *LastFailure::of(const QObject &navigator)
{
    return navigator.findChild<LastFailure *>(QString(), Qt::FindDirectChildrenOnly);
}

void LastFailure::keep(Failure failure)
{
    m_failure = std::move(failure);
}

void LastFailure::clear()
{
    m_failure.reset();
}

} // namespace kiv::navigation
