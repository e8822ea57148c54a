// SPDX-License-Identifier: GPL-3.0-or-later
// window_costs BUDGET: opens a copy of the budget in the window, works in it, and prints what
// a user waits for as JSON, in milliseconds. KIV_STARTED is the time by the monotonic clock, in
// nanoseconds, at which the process was asked for.
#include "application/application.h"
#include "application/desktop_keyring.h"
#include "main_window.h"
#include "widgets/chart_view.h"

#include "networking/request_sender.h"
#include "workbench/requests/transactions.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QTemporaryDir>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTableView>

#include <chrono>
#include <iostream>

using namespace kiv;
using namespace Qt::Literals::StringLiterals;

namespace {

using Clock = std::chrono::steady_clock;

double millisecondsSince(Clock::time_point begin)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
}

/// A service without rates, which answers at once: one that is waited for would keep the
/// event loop in which the times are taken.
class EmptySender final : public networking::RequestSender {
public:
    void send(networking::RequestNumber request, const QUrl &) override
    {
        emit answered(request, networking::Response::succeeded("{}", u"application/json"_s));
    }
    void cancel(networking::RequestNumber) override {}
};

/// Notes when a widget was painted.
class PaintWatch final : public QObject {
public:
    explicit PaintWatch(QWidget &watched) { watched.installEventFilter(this); }

    /// Runs `work` and the event loop until the widget was painted, and gives the time.
    double until(const std::function<void()> &work)
    {
        m_isPainted = false;
        const Clock::time_point begin = Clock::now();
        work();
        while (!m_isPainted)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return millisecondsSince(begin);
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        m_isPainted = m_isPainted || event->type() == QEvent::Paint;
        return false;
    }

private:
    bool m_isPainted = false;
};

double mebibytes(const char *field)
{
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith(field))
            return line.simplified().split(' ').value(1).toDouble() / 1024;
    }
    return 0;
}

/// The middle and the highest of some times.
QJsonObject summary(std::vector<double> times)
{
    std::ranges::sort(times);
    return {{u"median"_s, times.at(times.size() / 2)}, {u"highest"_s, times.back()}};
}

accounting::Transaction entry(workbench::Requests &requests, int number)
{
    const workbench::AccountIndex index = requests.accounts();
    const accounting::Account &bank = *index.find(accounting::AccountNumber(1));
    const accounting::Account &other = *std::next(index.accounts().begin(), 5);
    return {QDate(2026, 3, 1), other.code(), bank.code(),
            numira::Money(bank.balance().code(), number + 1, 0),
            u"Market | entry %1"_s.arg(number)};
}

} // namespace

int main(int argc, char **argv)
{
    Clock::time_point started = Clock::now();
    if (const qint64 asked = qEnvironmentVariable("KIV_STARTED").toLongLong())
        started = Clock::time_point(std::chrono::nanoseconds(asked));
    if (argc != 2) {
        std::cerr << "usage: window_costs BUDGET\n";
        return 2;
    }
    desktop::Application application(argc, argv);
    QTemporaryDir folder;
    const QString file = folder.filePath(u"book.budget"_s);
    QFile::copy(QString::fromLocal8Bit(argv[1]), file);
    desktop::WindowSettings settings(folder.filePath(u"window.ini"_s));
    settings.setPage(u"register"_s);
    desktop::DialogQuestions questions;
    workbench::Document document(
        {[] { return foundation::UniqueQtPtr<networking::RequestSender>(new EmptySender()); },
         folder.filePath(u"rates"_s)});
    desktop::DesktopKeyring keyring;
    desktop::MainWindow window({document, settings, questions, keyring});
    if (!window.open(file))
        return 1;
    window.goTo({u"register"_s, u"1"_s});
    auto *table = window.page()->findChild<QTableView *>();
    PaintWatch watch(*table->viewport());
    (void)watch.until([&window] { window.show(); });
    const double start = millisecondsSince(started);

    constexpr int rounds = 25;
    std::vector<double> posts;
    std::vector<double> undos;
    for (int round = 0; round < rounds; ++round) {
        posts.push_back(watch.until([&] {
            document.perform({u"Spent."_s, u"spending"_s, {}}, [&] {
                (void)workbench::post(document.requests(), entry(document.requests(), round));
            });
        }));
    }
    for (int round = 0; round < rounds; ++round)
        undos.push_back(watch.until([&document] { (void)document.undo(); }));

    // Keys while the file is written: each change starts a write.
    auto *field = window.page()->findChild<QLineEdit *>(u"search"_s);
    std::vector<double> keys;
    std::vector<double> searches;
    if (field) {
        PaintWatch typed(*field);
        field->setFocus();
        for (int round = 0; round < rounds; ++round) {
            document.perform({u"Spent."_s, u"spending"_s, {}}, [&] {
                (void)workbench::post(document.requests(), entry(document.requests(), round));
            });
            QElapsedTimer second;
            second.start();
            while (second.elapsed() < 60)
                QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
            QKeyEvent press(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, u"x"_s);
            keys.push_back(typed.until([&] { QCoreApplication::sendEvent(field, &press); }));
        }
        field->clear();
        for (const QString &text : {u"market"_s, u">50 march"_s, u"not:reconciled"_s, u"entry 7"_s})
            searches.push_back(watch.until([&] { field->setText(text); }));
    }
    document.writeNow();
    std::vector<double> reports;
    window.goTo({u"reports"_s, u"overview"_s});
    PaintWatch drawn(*window.page()->findChild<desktop::ChartView *>());
    for (const QString &by : {u"category"_s, u"payee"_s, u"tag"_s, u"account"_s, u"overview"_s})
        reports.push_back(drawn.until([&] { window.goTo({u"reports"_s, by}); }));
    const QJsonObject result{
        {u"start to first paint, ms"_s, start},
        {u"a posting, ms"_s, summary(posts)},
        {u"undo, ms"_s, summary(undos)},
        {u"a key while writing, ms"_s, keys.empty() ? QJsonValue() : summary(keys)},
        {u"a search, ms"_s, searches.empty() ? QJsonValue() : summary(searches)},
        {u"a report, ms"_s, summary(reports)},
        {u"memory, MiB"_s, mebibytes("VmRSS:")},
        {u"peak memory, MiB"_s, mebibytes("VmHWM:")}};
    std::cout << QJsonDocument(result).toJson().constData();
    return 0;
}
