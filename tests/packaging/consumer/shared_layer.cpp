// SPDX-License-Identifier: GPL-3.0-or-later
// A front end on what all of them share: asks the Navigator, and hears why it refuses.
#include <networking/http_request_sender.h>
#include <workbench/document/document.h>

#include <QtCore/QCoreApplication>

#include <iostream>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    kiv::workbench::Document document(
        {[] {
             return kiv::foundation::UniqueQtPtr<kiv::networking::RequestSender>(
                 new kiv::networking::HttpRequestSender());
         },
         QStringLiteral("no-rates")});
    const kiv::banking::BankName nameless{QString()};
    try {
        document.requests().change(kiv::workbench::bankOutcome,
                                   &kiv::navigation::Navigator::onBankClosed, nameless);
    } catch (const kiv::workbench::Refusal &refusal) {
        std::cout << refusal.message().toStdString() << '\n';
    }
}
