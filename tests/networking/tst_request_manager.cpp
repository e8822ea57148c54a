// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/suite.h"

#include "networking/request_manager.h"

using kiv::networking::RequestManager;
using kiv::networking::RequestNumber;
using kiv::networking::Response;
using namespace Qt::StringLiterals;

namespace {

/// Answers when it is told to, in any order.
class ManualSender final : public kiv::networking::RequestSender {
public:
    void send(RequestNumber request, const QUrl &) override { requests.append(request); }
    void cancel(RequestNumber request) override { cancelled.append(request); }
    void answer(qsizetype index, const QString &type)
    {
        emit answered(requests.at(index), Response::succeeded("{}", type));
    }

    QList<RequestNumber> requests;
    QList<RequestNumber> cancelled;
};

} // namespace

class tst_RequestManager : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        m_answers.clear();
        m_sender = new ManualSender;
        m_manager =
            std::make_unique<RequestManager>(std::unique_ptr<ManualSender>(m_sender), nullptr);
        m_first = std::make_unique<QObject>();
        m_second = std::make_unique<QObject>();
    }

    void everyUserGetsItsOwnAnswerOnceAndLater()
    {
        get(*m_first, u"first "_s);
        get(*m_second, u"second "_s);
        get(*m_first, u"third "_s);
        for (const auto &[index, type] : {std::pair(2, u"3"_s), {1, u"2"_s}, {1, u"again"_s}})
            m_sender->answer(index, type);
        emit m_sender->answered(4711, Response::succeeded("{}", u"unasked"_s));
        emit m_sender->answered(m_sender->requests.front(), Response::failed(u"bad"_s));
        QVERIFY(m_answers.isEmpty());
        QCoreApplication::processEvents();
        QCOMPARE(m_answers, (QStringList{u"third 3"_s, u"second 2"_s, u"first bad"_s}));
    }

    void destroyedUsersAreForgottenAndTheirRequestsCancelled()
    {
        get(*m_first, u"first "_s);
        get(*m_second, u"second "_s);
        // One is answered, but destroyed before the answer is given.
        m_sender->answer(0, u"late"_s);
        m_first.reset();
        m_sender->answer(1, u"2"_s);
        QCoreApplication::processEvents();
        QCOMPARE(m_answers, QStringList{u"second 2"_s});
        QCOMPARE(m_sender->cancelled, QList{m_sender->requests.front()});
    }

    void aUserMayDestroyTheManagerWhichAnswersTheOthers()
    {
        m_manager->get(anywhere(), *m_first, [this](const Response &) { m_manager.reset(); });
        get(*m_second, u"second "_s);
        m_sender->answer(0, {});
        QCoreApplication::processEvents();
        QVERIFY(!m_manager);
        QCOMPARE(m_answers, QStringList{u"second "_s + gone()});
    }

    void whoeverIsAnsweredAtTheEndMayDestroyOthersAndAskAgain()
    {
        auto *manager = m_manager.get();
        manager->get(anywhere(), *m_first, [this, manager](const Response &response) {
            m_answers.append(response.failure());
            m_second.reset();
            manager->get(anywhere(), *m_first, keep(u"again: "_s));
        });
        get(*m_second, u"second "_s);
        m_manager.reset();
        QCOMPARE(m_answers, QStringList{gone()});
        QCoreApplication::processEvents();
        QCOMPARE(m_answers.mid(1),
                 QStringList{u"again: There is nothing to send requests with."_s});
        RequestManager idle(nullptr, nullptr);
        idle.get(anywhere(), *m_first, keep(u"none: "_s));
        QTRY_COMPARE(m_answers.back(), u"none: There is nothing to send requests with."_s);
    }

    void responsesAreToldApart()
    {
        const Response good = Response::succeeded("{}", u"a/b\n"_s);
        const Response bad = Response::failed(u"gone"_s);
        QVERIFY(good == Response::succeeded("{}", u"a/b\n"_s) && good != bad);
        QCOMPARE(QDebug::toString(good) + u'|' + QDebug::toString(bad),
                 u"2 bytes of a/b\\u{000A}|failed: gone"_s);
    }

private:
    static QUrl anywhere() { return QUrl(u"https://a.example/"_s); }
    static QString gone() { return u"The request manager was destroyed before the answer came."_s; }
    kiv::networking::NotifyingSender::Answer keep(const QString &who)
    {
        return [this, who](const Response &response) {
            m_answers.append(who +
                             (response.isSuccess() ? response.contentType() : response.failure()));
        };
    }
    void get(QObject &user, const QString &who) { m_manager->get(anywhere(), user, keep(who)); }

    QStringList m_answers;
    ManualSender *m_sender = nullptr;
    std::unique_ptr<RequestManager> m_manager;
    std::unique_ptr<QObject> m_first;
    std::unique_ptr<QObject> m_second;
};

static const kiv::test::Suite<tst_RequestManager> suite;
#include "tst_request_manager.moc"
