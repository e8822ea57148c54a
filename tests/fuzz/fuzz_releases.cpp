// SPDX-License-Identifier: GPL-3.0-or-later
// Bytes as the release feed, as the checker of updates and the release notes
// read it.
#include "networking/request_manager.h"
#include "support/scripted_sender.h"
#include "updating/release_information_fetcher.h"
#include "updating/update_checker.h"

#include <QtCore/QCoreApplication>

#include <cstdlib>

using namespace kiv;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static int count = 0;
    static const QCoreApplication application(count, nullptr);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    const QByteArray body(reinterpret_cast<const char *>(data), qsizetype(size));
    const updating::ReleaseFeed feed{QUrl(QStringLiteral("https://a.example/releases.json")),
                                     updating::SemanticVersion(1, 1, 0)};
    QObject owner;
    const foundation::QtPtr<QObject> parent(&owner);
    networking::RequestManager manager(foundation::UniqueQtPtr<networking::RequestSender>(
                                           new ScriptedSender(ScriptedSender::json(body))),
                                       parent);
    updating::UpdateChecker checker(manager, parent, feed);
    QObject::connect(&checker, &updating::UpdateChecker::updateReleased,
                     [&](const updating::SemanticVersion &latest) {
                         if (!(latest > feed.running))
                             std::abort();
                     });
    checker.check();
    updating::ReleaseInformationFetcher notes(manager, parent, feed);
    notes.fetch();
    QCoreApplication::processEvents();
    return 0;
}
