// SPDX-License-Identifier: GPL-3.0-or-later
#include "application/application.h"
#include "application/desktop_keyring.h"
#include "application/start_options.h"
#include "main_window.h"

#include "networking/http_request_sender.h"

#include <QtCore/QStandardPaths>
#include <QtCore/QTimer>

int main(int argc, char **argv)
{
    using namespace kiv::desktop;
    Application application(argc, argv);
    const StartOptions options = readStartOptions(Application::arguments());
    WindowSettings settings(WindowSettings::usualFile());
    DialogQuestions questions;
    DesktopKeyring keyring;
    kiv::workbench::Document document(
        {[] {
             return kiv::foundation::UniqueQtPtr<kiv::networking::RequestSender>(
                 new kiv::networking::HttpRequestSender());
         },
         QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
             QStringLiteral("/rates")});
    MainWindow window({document, settings, questions, keyring, options.showsTerms()});
    application.setReporter([&window](const QString &sentence) { window.report(sentence); });
    QString file = options.file;
    if (file.isEmpty() && settings.opensLastFile())
        file = settings.recentFiles().value(0);
    if (!file.isEmpty())
        window.open(file);
    window.show();
    return Application::exec();
}
