// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/errors.h"
#include "interchange/written_values.h"

#include "accounting/account_types.h"
#include "numira/currency.h"

#include <functional>
#include <map>
#include <optional>

namespace kiv::interchange {

/// What a journal leaves open.
struct JournalOptions {
    /// Of all its files, any name that ICU knows; UTF-8 otherwise.
    std::optional<QString> encoding = std::nullopt;
    /// Found from the journal's directives and from each number otherwise.
    std::optional<DecimalMark> decimalMark = std::nullopt;
    /// Of amounts without one; such amounts are refused otherwise.
    std::optional<numira::Currency> currency = std::nullopt;
    /// The currency that a sign means where several share it.
    numira::Currency preferred = {};
    /// Currencies by other names that the journal has for them.
    std::map<QString, numira::Currency> commodities = {};
    /// Kinds of account by other names of top-level accounts, in lower case.
    std::map<QString, accounting::AccountTypes> roots = {};
    /// Gives the bytes of a file that the journal includes, or throws
    /// ImportError. Without it every include is refused.
    std::function<QByteArray(const QString &path, const Place &place)> include = {};
};

} // namespace kiv::interchange
