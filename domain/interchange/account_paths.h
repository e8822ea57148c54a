// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/export.h"

#include "accounting/account.h"

#include <map>
#include <set>

namespace kiv::interchange {

/// Under which name accounts of a known kind stand in a journal: "Assets".
[[nodiscard]] KIV_INTERCHANGE_EXPORT QString rootOf(accounting::AccountTypes type);

/// The kind of the accounts that stand under such a name, in any case, in the
/// singular or plural, or under "Revenues"; Unknown for any other name.
[[nodiscard]] KIV_INTERCHANGE_EXPORT accounting::AccountTypes typeOfRoot(const QString &root);

/// The path of each account: the root of its kind and the names of its parents
/// and itself, with colons between them ("Assets:First:Checking").
///
/// Names are made safe for plain-text accounting journals (no colon or
/// semicolon, single blanks, no control characters), and where two accounts
/// would get the same path their numbers are added to their names, so that
/// every path stands for one account. Accounts that are nested deeper than
/// accounting::accountDepthMax stand beside their nearest ancestor that is not, so that
/// no path has more than 100 names. The accounts are those of a whole ledger, so
/// that each one's parent is among them.
[[nodiscard]] KIV_INTERCHANGE_EXPORT std::map<accounting::AccountNumber, QString>
accountPaths(const std::set<accounting::Account> &accounts);

} // namespace kiv::interchange
