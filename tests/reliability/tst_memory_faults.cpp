// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "fault_rig.h"

#include "storage/internal/pipeline.h"
#include "support/damage.h"

using namespace kiv;
using namespace kiv::test;

/// The system has no memory left when a request asks for some: at a few of the
/// places where it does, or at all of them when there is time.
class MemoryFaults : public QObject {
    Q_OBJECT

private slots:
    void everyFailureLeavesNoTrace_data();
    void everyFailureLeavesNoTrace();
    void aWorkerThatWantsMemoryEndsNothing();
};

void MemoryFaults::everyFailureLeavesNoTrace_data()
{
    QTest::addColumn<Request>("prepare");
    for (const auto &[name, prepare] : allStates())
        QTest::newRow(name.constData()) << prepare;
}

void MemoryFaults::everyFailureLeavesNoTrace()
{
    QFETCH(const Request, prepare);
    FaultRig rig(prepare);
    QStringList broken;
    long trials = 0;
    const int perRequest = randomRuns(3);
    for (const auto &row : rigRequests()) {
        // Qt's own connections between objects do not survive it.
        if (row.first.startsWith("network"))
            continue;
        const long calls = rig.callsOf(row, Fault::Place::Memory);
        const long step = std::max(1L, calls / perRequest);
        for (long due = 1 + trials % step; due <= calls; due += step) {
            ++trials;
            const QString promise =
                rig.brokenPromise(row, Fault::Place::Memory, Fault::Kind::Memory, due);
            if (!promise.isEmpty())
                broken.append(QStringLiteral("%1, place %2 of %3: %4")
                                  .arg(QString::fromUtf8(row.first), QString::number(due),
                                       QString::number(calls), promise));
        }
    }
    qInfo() << trials << "faults";
    if (!broken.isEmpty())
        QTextStream(stderr) << broken.join(u'\n') << '\n';
    QVERIFY(broken.isEmpty() && trials > 200);
}

void MemoryFaults::aWorkerThatWantsMemoryEndsNothing()
{
    long wants = 0;
    for (long due = 1; wants == due - 1; ++due) {
        fault = {.isOn = true, .place = Fault::Place::Memory, .due = due};
        try {
            storage::internal::Pipeline<int> pipeline([](int &) {});
            for (int part = 0; part < 64; ++part)
                pipeline.add(int(part));
            pipeline.finish(0);
        } catch (const std::bad_alloc &) {
            ++wants;
        }
        fault = {};
    }
    QVERIFY(wants > 1);
}

static const kiv::test::Suite<MemoryFaults> suite;
#include "tst_memory_faults.moc"
