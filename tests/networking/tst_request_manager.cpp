// SPDX-License-Identifier: GPL-3.0-or-later
#include <QtTest/QtTest>

#include "networking/request_manager.h"

#include "support/scripted_sender.h"

using kiv::foundation::QtPtr;
using kiv::networking::RequestManager;
using kiv::networking::Response;

namespace {

const QUrl anywhere(QStringLiteral("https://a.example/"));
const auto goneReason = QStringLiteral("The request manager was destroyed before the answer came.");

/// Answers when it is told to, in any order.
class ManualSender final : public kiv::networking::RequestSender {
public:
    void send(kiv::networking::RequestNumber request, const QUrl &) override
    {
        requests.append(request);
    }
    void cancel(kiv::networking::RequestNumber request) override { cancelled.append(request); }

    QList<kiv::networking::RequestNumber> requests;
    QList<kiv::networking::RequestNumber> cancelled;
};

Response ok(const QByteArray &body)
{
    return Response::succeeded(body, QStringLiteral("text/plain"));
}

struct Users {
    std::unique_ptr<QObject> first = std::make_unique<QObject>();
    std::unique_ptr<QObject> second = std::make_unique<QObject>();
    QByteArrayList answers;

    kiv::networking::NotifyingSender::Answer keep(const QByteArray &who)
    {
        return [this, who](const Response &response) {
            answers.append(who + ':' +
                           (response.isSuccess() ? response.body() : response.failure().toUtf8()));
        };
    }
};

} // namespace

class tst_RequestManager : public QObject {
    Q_OBJECT

private slots:
    void everyUserGetsItsOwnAnswerOnce()
    {
        auto owned = std::make_unique<ManualSender>();
        auto &sender = *owned;
        RequestManager manager(std::move(owned), nullptr);
        Users users;
        manager.get(anywhere, *users.first, users.keep("first"));
        manager.get(anywhere, *users.second, users.keep("second"));
        manager.get(anywhere, *users.first, users.keep("third"));
        QCOMPARE(sender.requests.size(), 3);
        emit sender.answered(sender.requests.at(2), ok("3"));
        emit sender.answered(sender.requests.at(1), ok("2"));
        emit sender.answered(sender.requests.at(1), ok("again"));
        emit sender.answered(4711, ok("unasked"));
        emit sender.answered(sender.requests.at(0), Response::failed(QStringLiteral("bad")));
        QVERIFY(users.answers.isEmpty());
        QCoreApplication::processEvents();
        QCOMPARE(users.answers, (QByteArrayList{"third:3", "second:2", "first:bad"}));
    }

    void answersAreNeverGivenWithinTheRequest()
    {
        RequestManager manager(std::make_unique<ScriptedSender>(ScriptedSender::json("1")),
                               nullptr);
        Users users;
        manager.get(anywhere, *users.first, users.keep("first"));
        QVERIFY(users.answers.isEmpty());
        QCoreApplication::processEvents();
        QCOMPARE(users.answers, (QByteArrayList{"first:1"}));
    }

    void destroyedUsersAreForgottenAndTheirRequestsCancelled()
    {
        auto owned = std::make_unique<ManualSender>();
        auto &sender = *owned;
        RequestManager manager(std::move(owned), nullptr);
        Users users;
        manager.get(anywhere, *users.first, users.keep("first"));
        manager.get(anywhere, *users.second, users.keep("second"));
        // One is answered, but destroyed before the answer is given.
        emit sender.answered(sender.requests.at(0), ok("late"));
        users.first.reset();
        emit sender.answered(sender.requests.at(1), ok("2"));
        QCoreApplication::processEvents();
        QCOMPARE(users.answers, (QByteArrayList{"second:2"}));
        QCOMPARE(sender.cancelled, (QList{sender.requests.at(0)}));
    }

    void aUserMayDestroyTheManager()
    {
        auto manager = std::make_unique<RequestManager>(
            std::make_unique<ScriptedSender>(ScriptedSender::json("1")), nullptr);
        Users users;
        manager->get(anywhere, *users.first, [&](const Response &) { manager.reset(); });
        manager->get(anywhere, *users.second, users.keep("second"));
        QCoreApplication::processEvents();
        QVERIFY(!manager);
        QCOMPARE(users.answers, (QByteArrayList{"second:" + goneReason.toUtf8()}));
    }

    void destructionAnswersEveryoneWhoIsLeft()
    {
        QObject parent;
        auto *manager = new RequestManager(
            std::make_unique<ScriptedSender>(ScriptedSender::silence()), QtPtr<QObject>(&parent));
        Users users;
        manager->get(anywhere, *users.first, [&](const Response &response) {
            users.keep("first")(response);
            users.second.reset();
            manager->get(anywhere, *users.first, users.keep("again"));
        });
        manager->get(anywhere, *users.second, users.keep("second"));
        delete manager;
        QCOMPARE(users.answers, (QByteArrayList{"first:" + goneReason.toUtf8()}));
        QCoreApplication::processEvents();
        QCOMPARE(users.answers, (QByteArrayList{"first:" + goneReason.toUtf8(),
                                                "again:There is nothing to send requests with."}));
    }
};

QTEST_GUILESS_MAIN(tst_RequestManager)
#include "tst_request_manager.moc"
