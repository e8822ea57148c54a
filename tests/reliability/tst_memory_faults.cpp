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
    void everyFailureLeavesNoTrace_data() { addStates(); }
    void everyFailureLeavesNoTrace() { checkRequests(Fault::Place::Memory, randomRuns(3)); }
    void aWorkerThatWantsMemoryEndsNothing();
};

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
