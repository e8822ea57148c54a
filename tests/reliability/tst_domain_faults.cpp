// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "fault_rig.h"

#include "support/damage.h"

using namespace kiv;
using namespace kiv::test;

/// Every call that a request makes of the storages, the sender, the converter,
/// the generator of numbers, the ledger, the banks, the surveys and the tags
/// fails in turn, in every state of a budget.
class DomainFaults : public QObject {
    Q_OBJECT

private slots:
    void aCarelessRequestIsCaught();
    void everyFailureLeavesNoTrace_data();
    void everyFailureLeavesNoTrace();
};

void DomainFaults::aCarelessRequestIsCaught()
{
    const auto broken = [](const Request &request) {
        FaultRig rig([](Navigator &) {});
        const Rows::value_type row("planted", request);
        const long last = rig.callsOf(row, Fault::Place::Calls);
        return rig.brokenPromise(row, Fault::Place::Calls, Fault::Kind::Other, last);
    };
    QCOMPARE(
        broken([](Navigator &n) { n.clear(), fault.pass("f"); }),
        u"f: exception with another ledger, budget, item accounts, banks, next number, file"_qs);
    QCOMPARE(broken([](Navigator &n) {
                 try {
                     n.onPrepareShowAccounts();
                 } catch (const std::exception &) {
                 }
             }).section(u": "_qs, 1),
             u"it went on"_qs);
    QCOMPARE(
        broken([](Navigator &n) {
            static int times = 0;
            fault.pass("f");
            if (times++ > 0)
                n.onPrepareNewBudgetEmpty();
        }),
        u"f: then said: showNewBudget(); then another ledger, budget, item accounts, banks, next "
        "number, file"_qs);
    QVERIFY(broken([](Navigator &) { fault.pass("f"); }).isEmpty());
}

void DomainFaults::everyFailureLeavesNoTrace_data()
{
    QTest::addColumn<Request>("prepare");
    for (const auto &[name, prepare] : allStates())
        QTest::newRow(name.constData()) << prepare;
}

void DomainFaults::everyFailureLeavesNoTrace()
{
    QFETCH(const Request, prepare);
    FaultRig rig(prepare);
    QStringList broken;
    long trials = 0;
    int next = 0;
    const int kinds = randomRuns(1); // of the three, in turn
    for (const auto &row : rigRequests()) {
        const long calls = rig.callsOf(row, Fault::Place::Calls);
        for (long due = 1; due <= calls; ++due) {
            for (int i = 0; i < kinds; ++i) {
                const auto kind = Fault::Kind(next++ % 3);
                ++trials;
                const QString promise = rig.brokenPromise(row, Fault::Place::Calls, kind, due);
                if (!promise.isEmpty())
                    broken.append(QStringLiteral("%1, call %2, kind %3: %4")
                                      .arg(QString::fromUtf8(row.first), QString::number(due),
                                           QString::number(int(kind)), promise));
            }
        }
    }
    qInfo() << trials << "faults";
    if (!broken.isEmpty())
        QTextStream(stderr) << broken.join(u'\n') << '\n';
    QVERIFY(broken.isEmpty() && trials > 200);
}

static const kiv::test::Suite<DomainFaults> suite;
#include "tst_domain_faults.moc"
