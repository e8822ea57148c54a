// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/export.h"

#include "accounting/general_ledger.h"
#include "banking/bank_map.h"
#include "budgeting/budget.h"
#include "foundation/type_index_map.h"
#include "surveying/completed_surveys.h"
#include "tagging/budget_item_tags.h"

#include <QtCore/QString>

namespace kiv::storage {

/// A store of one budget file, which is read and written whole.
///
/// The path is chosen first; load and store then work on it. When they fail,
/// the store goes back to the file that it last loaded or stored, if there is
/// one, so that a failed attempt to open or save another file leaves the open
/// one open.
class KIV_STORAGE_EXPORT BudgetStorage {
public:
    /// The account of each budget item, by the item's class and source.
    using BudgetAccountCodes =
        foundation::TypeIndexMap<budgeting::BudgetSource, accounting::AccountNumber>;

    /// Everything that a budget file holds.
    struct KIV_STORAGE_EXPORT Data {
        /// The accounts and transactions.
        accounting::GeneralLedger generalLedger;
        /// The budget items.
        budgeting::Budget budget;
        /// Which account belongs to which item.
        BudgetAccountCodes budgetAccountCodes;
        /// The banks and the accounts that they keep.
        banking::BankMap banks;
        /// The surveys, the last one of each bank account.
        surveying::CompletedSurveys surveys;
        /// The tags of the items.
        tagging::BudgetItemTags itemTags;

        /// Whether all parts are the same.
        friend bool operator==(const Data &, const Data &) = default;
    };

    virtual ~BudgetStorage();
    BudgetStorage(const BudgetStorage &) = delete;
    BudgetStorage &operator=(const BudgetStorage &) = delete;

    /// Chooses the file for the next load or store. Touches no file.
    virtual void setFilePathName(const QString &filePathName) = 0;
    /// Throws StorageError when the file cannot be read whole and valid; it is
    /// unchanged then, as always.
    [[nodiscard]] virtual Data load() = 0;
    /// Throws StorageError when the data cannot be stored; the file is as it
    /// was before then.
    virtual void store(const Data &data) = 0;
    /// The file that was chosen; empty before. A load or store that fails chooses the
    /// one that was loaded or saved last again, if there is one.
    [[nodiscard]] virtual QString filePathName() const = 0;

protected:
    BudgetStorage() = default;
};

} // namespace kiv::storage
