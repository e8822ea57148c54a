// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/export.h"

#include "accounting/account.h"

#include <functional>
#include <map>
#include <set>

namespace kiv::interchange {

/// The top-level name of accounts of this kind in a journal, such as "Assets".
[[nodiscard]] KIV_INTERCHANGE_EXPORT QString rootOf(accounting::AccountTypes type);

/// The kind of accounts with such a top-level name, in upper or lower case, singular or
/// plural. "Revenues" counts as income; any other name gives Unknown.
[[nodiscard]] KIV_INTERCHANGE_EXPORT accounting::AccountTypes typeOfRoot(const QString &root);

/// The path of each account: the root of its kind and the names of its parents
/// and itself, with colons between them ("Assets:First:Checking").
///
/// Names are made safe for plain-text journals: no colon, semicolon or control character,
/// single blanks. Accounts that would share a path get their numbers behind their names, so
/// every path names one account. Accounts nested deeper than accounting::accountDepthMax
/// stand beside their nearest ancestor that is not, so no path has more than 100 names.
/// `accounts` must be a whole ledger's: each account's parent must be among them. Accounts are
/// called by their names, or as `nameOf` says.
[[nodiscard]] KIV_INTERCHANGE_EXPORT std::map<accounting::AccountNumber, QString>
accountPaths(const std::set<accounting::Account> &accounts,
             const std::function<QString(const accounting::Account &)> &nameOf = {});

} // namespace kiv::interchange
