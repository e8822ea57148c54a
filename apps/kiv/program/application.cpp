// SPDX-License-Identifier: GPL-3.0-or-later
#include "program/application.h"

#include "messages/message_log.h"

#include "workbench/document/program_identity.h"
#include "workbench/entry/user_locale.h"
#include "workbench/requests/requests.h"

namespace kiv::app {

Application::Application(int &argc, char **argv) : QCoreApplication(argc, argv)
{
    workbench::identifyProgram();
    workbench::speakAsUser(*this);
}

bool Application::notify(QObject *receiver, QEvent *event)
{
    try {
        return QCoreApplication::notify(receiver, event);
    } catch (const std::exception &error) {
        complain(workbench::userText(error));
        return false;
    }
}

} // namespace kiv::app
