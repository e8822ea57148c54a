// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/budget_storage.h"

#include <QtCore/QStringList>

namespace kiv::storage::internal {

/// Repairs data that allowed requests have left inconsistent, so that every saved
/// budget can be opened again. Each repair adds a sentence to `mended`:
/// - an item without a name gets one that nothing else has; its account, tags
///   and surveys follow;
/// - an item whose account is gone, or that never got one, is tied to the
///   account that bears its name and is of its kind, if no other item has it;
///   otherwise its account is opened anew;
/// - an account of an item that is gone is no longer tied to it;
/// - a bank loses an account that is gone, or is neither an asset nor a liability;
/// - a survey of an account that its bank keeps as another kind by now becomes one
///   of that kind; of two the later one stays.
///
/// Consistent data is left as it is.
void mend(BudgetStorage::Data &data, QStringList &mended);

} // namespace kiv::storage::internal
