// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "fault_rig.h"

#include "support/damage.h"

/// Every call that a request makes of the storages, the sender, the converter,
/// the generator of numbers, the ledger, the banks, the surveys and the tags
/// fails in turn, in every state of a budget.
class DomainFaults : public QObject {
    Q_OBJECT

private slots:
    void aCarelessRequestIsCaught()
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
        QCOMPARE(broken([](Navigator &n) {
                     static int times = 0;
                     fault.pass("f");
                     if (times++ > 0)
                         n.onPrepareNewBudgetEmpty();
                 }),
                 u"f: then said: showNewBudget(); then another ledger, budget, item accounts, "
                 u"banks, next "
                 "number, file"_qs);
        QVERIFY(broken([](Navigator &) { fault.pass("f"); }).isEmpty());
    }

    void everyFailureLeavesNoTrace_data() { addStates(); }
    void everyFailureLeavesNoTrace() { checkRequests(Fault::Place::Calls, randomRuns(1)); }
};

static const kiv::test::Suite<DomainFaults> domainFaultsSuite;
#include "tst_domain_faults.moc"
