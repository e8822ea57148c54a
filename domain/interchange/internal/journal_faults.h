// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/internal/faults.h"

/// The sentences with which journals are refused.
namespace kiv::interchange::faults {

[[nodiscard]] ImportError unknownDirective(const Place &place, const QString &text);
[[nodiscard]] ImportError strayLine(const Place &place);
[[nodiscard]] ImportError notClosed(const Place &place, const QString &what);
[[nodiscard]] ImportError unknownRoot(const Place &place, const QString &root);
[[nodiscard]] ImportError noAccount(const Place &place);
[[nodiscard]] ImportError notAnAmount(const Place &place, const QString &text);
[[nodiscard]] ImportError notMoney(const Place &place, const QString &commodity);
[[nodiscard]] ImportError tooFewPostings(const Place &place);
[[nodiscard]] ImportError severalWithoutAmount(const Place &place);
[[nodiscard]] ImportError notBalanced(const Place &place, const QString &rest);
[[nodiscard]] ImportError assertionFailed(const Place &place, const QString &account,
                                          const QString &asserted, const QString &found);
/// The account should have no other commodity than this one.
[[nodiscard]] ImportError otherCommodities(const Place &place, const QString &account,
                                           const QString &commodity);
/// Its lot has another price than the posting, or the posting has none.
[[nodiscard]] ImportError ambiguousLot(const Place &place, const QString &commodity);
[[nodiscard]] ImportError badPattern(const Place &place, const QString &pattern);
[[nodiscard]] ImportError tooManyAccounts(const Place &place, qsizetype most);
[[nodiscard]] ImportError pathsTooLong(const Place &place, qsizetype charactersMax);
[[nodiscard]] ImportError kindDeclaredLate(const Place &place, const QString &account);
/// What ledger and hledger read in two ways.
[[nodiscard]] ImportError ambiguousAlias(const Place &place, const QString &account);
[[nodiscard]] ImportError ambiguousAssignment(const Place &place, const QString &account);
[[nodiscard]] ImportError ambiguousMultiplier(const Place &place, const QString &text);
[[nodiscard]] ImportError ambiguousRule(const Place &place, const QString &account);
[[nodiscard]] ImportError tooManyRules(const Place &place, std::size_t most);
[[nodiscard]] ImportError includeWithoutFolder(const Place &place, const QString &path);
[[nodiscard]] ImportError includedTooDeeply(const Place &place, const QString &path);
[[nodiscard]] ImportError tooManyIncludes(const Place &place, const QString &path, int most);

} // namespace kiv::interchange::faults
