// SPDX-License-Identifier: GPL-3.0-or-later
#include "application.h"

#include "message_log.h"
#include "user_locale.h"

namespace kiv::app {

Application::Application(int &argc, char **argv) : QCoreApplication(argc, argv)
{
    // Both name the folders of the settings and of the exchange rates.
    setOrganizationName(QStringLiteral("kiv"));
    setApplicationName(QStringLiteral("kiv"));
    setApplicationVersion(QStringLiteral(KIV_VERSION));
    speakAsUser(*this);
}

bool Application::notify(QObject *receiver, QEvent *event)
{
    try {
        return QCoreApplication::notify(receiver, event);
    } catch (const std::exception &error) {
        complain(QString::fromUtf8(error.what()));
        return false;
    }
}

} // namespace kiv::app
