// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "navigation/navigator_requests.h"

namespace kiv::test {

/// All that a Navigator holds.
struct Held;

/// Makes requests to a Navigator in one state of a budget while a call fails,
/// and compares what comes of it with what was promised.
class FaultRig {
public:
    explicit FaultRig(const Request &prepare);
    ~FaultRig();

    /// How many calls the request makes without a fault, and remembers what it
    /// says and does.
    long callsOf(const Rows::value_type &row, Fault::Place place);

    /// Makes the request of the last callsOf while its call `due` fails, and
    /// then once more without a fault. Answers with the promise that was broken,
    /// or with nothing.
    QString brokenPromise(const Rows::value_type &row, Fault::Place place, Fault::Kind kind,
                          long due);

private:
    class Trial;

    OwnSettings m_settings;
    std::unique_ptr<Held> m_before;
    std::map<QString, storage::BudgetStorage::Data> m_files;

    QStringList m_said;
    std::unique_ptr<Held> m_after;
    int m_answers = 0;
    std::map<QString, QStringList> m_traces;
    std::optional<QString> m_thrown;
};

/// Makes all requests in the state of the row, those to the network as well, and lets
/// their calls fail: each call with so many of the three kinds of error, in turn, or
/// memory at so many of the places that ask for some.
void checkRequests(Fault::Place place, int runs);

} // namespace kiv::test
