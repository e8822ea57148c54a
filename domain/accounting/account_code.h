// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "accounting/account_number.h"

#include "foundation/debug_stream.h"

#include <QtCore/QString>

#include <optional>
#include <set>

namespace kiv::accounting {

/// How deep accounts may be nested, one at the top being 1 deep. With the name of
/// their kind in front, their paths have 100 names at most, as in journals. A budget
/// file with deeper ones is still loaded.
inline constexpr int accountDepthMax = 99;

/// What an account is called: its number, its name, and the number of the
/// account that it stands under, if any. Names may repeat in a ledger, numbers
/// may not. Codes are ordered by number, then name (by its code units), then
/// parent (none first).
///
/// A code without a name serves as a look-up key, one without a number names an
/// account that does not exist yet.
class KIV_ACCOUNTING_EXPORT AccountCode {
public:
    AccountCode() = default;
    /// The code of a named account below `parent`, or at the top.
    AccountCode(AccountNumber number, QString name, std::optional<AccountNumber> parent);
    /// The code of an account that is known by its number alone.
    AccountCode(AccountNumber number, std::optional<AccountNumber> parent);
    /// The code of an account that has no number yet.
    AccountCode(QString name, std::optional<AccountNumber> parent);

    /// The number, by which the account is found; invalid when it has none yet.
    [[nodiscard]] AccountNumber number() const noexcept { return m_number; }
    /// The name; several accounts may have the same.
    [[nodiscard]] const QString &name() const noexcept { return m_name; }
    /// The account above this one; nothing at the top.
    [[nodiscard]] const std::optional<AccountNumber> &parent() const noexcept { return m_parent; }
    /// Puts the account below another, or at the top.
    void setParent(std::optional<AccountNumber> parent) noexcept { m_parent = parent; }

    friend bool operator==(const AccountCode &, const AccountCode &) noexcept = default;
    /// By number first, then by name and parent.
    friend KIV_ACCOUNTING_EXPORT std::strong_ordering operator<=>(const AccountCode &a,
                                                                  const AccountCode &b) noexcept;

private:
    AccountNumber m_number;
    QString m_name;
    std::optional<AccountNumber> m_parent;
};

/// "1200 Checking"; the number or the name alone when there is no other.
[[nodiscard]] KIV_ACCOUNTING_EXPORT QString presentationText(const AccountCode &code);
/// "1200 Checking", and " under 1000" behind it when it has a parent.
KIV_ACCOUNTING_EXPORT std::ostream &operator<<(std::ostream &out, const AccountCode &code);
using foundation::operator<<;

} // namespace kiv::accounting

Q_DECLARE_METATYPE(kiv::accounting::AccountCode)
Q_DECLARE_METATYPE(std::set<kiv::accounting::AccountCode>)
Q_DECLARE_METATYPE(std::optional<kiv::accounting::AccountCode>)
