// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/budget_storage.h"

namespace kiv::storage {

BudgetStorage::~BudgetStorage() = default;

} // namespace kiv::storage
