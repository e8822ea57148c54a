// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "fault_rig.h"

#include "support/damage.h"

/// The system has no memory left when a request asks for some: at a few of the
/// places where it does, or at all of them when there is time.
class MemoryFaults : public QObject {
    Q_OBJECT

private slots:
    void everyFailureLeavesNoTrace_data() { addStates(); }
    void everyFailureLeavesNoTrace() { checkRequests(Fault::Place::Memory, randomRuns(3)); }
};

static const kiv::test::Suite<MemoryFaults> memoryFaultsSuite;
#include "tst_memory_faults.moc"
