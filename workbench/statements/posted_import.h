// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/requests/requests.h"

#include "interchange/draft.h"

/// Posts what another program's file contains.
namespace kiv::workbench {

/// Whether transactions that the budget already has are posted again.
enum class KnownTransactions : std::uint8_t {
    Skip = 1,
    Post = 2,
};

/// A transaction of the file.
struct ImportedTransaction {
    accounting::Transaction transaction; ///< as the file tells it
    interchange::Place place;            ///< where it begins in the file
    bool isSkipped = false;              ///< as a duplicate
};

/// What an import posted and skipped.
struct PostedImport {
    std::vector<accounting::Account> opened;       ///< each after its parent
    std::vector<ImportedTransaction> transactions; ///< in the order of the file
    QStringList notices;                           ///< sentences for the user, each once

    /// The number of skipped duplicates.
    [[nodiscard]] KIV_WORKBENCH_EXPORT std::ptrdiff_t skipped() const;
    /// The number of posted transactions.
    [[nodiscard]] std::ptrdiff_t posted() const { return std::ssize(transactions) - skipped(); }
    /// False if the budget is as before. Saving it would only push out an older version.
    [[nodiscard]] bool hasChanges() const { return posted() > 0 || !opened.empty(); }
};

/// What postDraft() would do, without doing it.
[[nodiscard]] KIV_WORKBENCH_EXPORT PostedImport plannedImport(Requests &requests,
                                                              const interchange::Draft &draft,
                                                              KnownTransactions known);

/// Opens the missing accounts of a journal, and posts its transactions. Throws a Refusal for
/// an account and an ImportError with the place of a transaction that is refused; what came
/// before it stays then, so revert the document.
[[nodiscard]] KIV_WORKBENCH_EXPORT PostedImport postDraft(Requests &requests,
                                                          const interchange::Draft &draft,
                                                          KnownTransactions known);

} // namespace kiv::workbench
