// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigation/internal/update_notifier.h"

#include "updating/update_checker.h"

#include <QtCore/QDebug>

namespace kiv::navigation::internal {

namespace {

/// Logs the sentence and, behind it, the duration: "5000ms".
void logDuration(const char *sentence, const std::chrono::milliseconds &duration)
{
    qDebug().noquote() << sentence << QString::number(duration.count()) + QStringLiteral("ms");
}

} // namespace

UpdateNotifier::UpdateNotifier(const std::chrono::milliseconds &interval,
                               networking::RequestManager &requestManager,
                               const std::chrono::milliseconds &firstCheckDelay,
                               const foundation::QtPtr<QObject> &parent, updating::ReleaseFeed feed)
    : QObject(parent.get()),
      m_requestManager(requestManager),
      m_timer(new QTimer(this)),
      m_feed(std::move(feed))
{
    connect(m_timer.get(), &QTimer::timeout, this, &UpdateNotifier::checkForUpdate);
    logDuration("The first update check will occur in", firstCheckDelay);
    QTimer::singleShot(firstCheckDelay, this, &UpdateNotifier::checkForUpdate);
    startCheckNotifications(interval);
}

UpdateNotifier::~UpdateNotifier() = default;

void UpdateNotifier::startCheckNotifications(const std::chrono::milliseconds &interval)
{
    logDuration("Starting update check with the interval of", interval);
    if (m_timer)
        m_timer->start(interval);
}

void UpdateNotifier::checkForUpdate()
{
    qDebug() << "Checking to see if an update is available and notrifying if there is one.";
    // Every check has a checker of its own, which deletes itself.
    auto *checker =
        new updating::UpdateChecker(m_requestManager, foundation::QtPtr<QObject>(this), m_feed);
    connect(checker, &updating::UpdateChecker::updateReleased, this,
            &UpdateNotifier::notifyUpdateReleased);
    connect(checker, &updating::UpdateChecker::finishedCheck, checker, &QObject::deleteLater);
    checker->check();
}

void UpdateNotifier::notifyUpdateReleased(const updating::SemanticVersion &latest)
{
    qDebug() << "Stopping update check while waiting for the update notification to be "
                "acknowledged.";
    if (m_timer)
        m_timer->stop();
    emit updateReleased(latest);
}

} // namespace kiv::navigation::internal
