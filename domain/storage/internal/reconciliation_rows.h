// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/internal/rows.h"
#include "storage/notes.h"

#include "surveying/reconciliation.h"

/// The tables that the second edition has beside the books. Writing throws ContentFault
/// for what a file cannot hold; reading throws ContentFault, and what numira throws.
namespace kiv::storage::internal {

/// One that reconciled more transactions than a text has room for takes several rows.
void writeReconciliations(RowSink &sink, const surveying::Reconciliations &all);
[[nodiscard]] surveying::Reconciliations readReconciliations(RowSource &source);

void writeNotes(RowSink &sink, const Notes &notes);
[[nodiscard]] Notes readNotes(RowSource &source);

} // namespace kiv::storage::internal
