// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "banking/bank_account_types.h"

#include "accounting/account_number.h"
#include "foundation/debug_stream.h"

#include "numira/money.h"

#include <QtCore/QDate>
#include <QtCore/QString>

#include <optional>
#include <set>

namespace kiv::banking {

/// The name of a bank. Names are compared exactly, by their code units.
class KIV_BANKING_EXPORT BankName {
public:
    BankName() = default;
    /// Any text; the map of banks refuses an empty one.
    explicit BankName(QString institution) : m_institution(std::move(institution)) {}
    /// The name as the user wrote it.
    [[nodiscard]] const QString &institution() const noexcept { return m_institution; }

    friend bool operator==(const BankName &, const BankName &) noexcept = default;
    /// By name, by code units.
    friend std::strong_ordering operator<=>(const BankName &a, const BankName &b) noexcept
    {
        return QString::compare(a.m_institution, b.m_institution) <=> 0;
    }

private:
    QString m_institution;
};

/// A ledger account's number with the kind of bank account that it is.
struct KIV_BANKING_EXPORT AccountNumberBankType {
    /// The account's number in the ledger.
    accounting::AccountNumber number;
    /// What the account is to its bank.
    BankAccountTypes type = BankAccountTypes::Unknown;

    friend bool operator==(const AccountNumberBankType &, const AccountNumberBankType &) = default;
    friend std::strong_ordering operator<=>(const AccountNumberBankType &,
                                            const AccountNumberBankType &) = default;
};

/// An account at a bank: BankAccount{bank, number, type}.
struct KIV_BANKING_EXPORT BankAccount {
    /// The bank that keeps it.
    BankName bank;
    /// The account there.
    AccountNumberBankType account;

    friend bool operator==(const BankAccount &, const BankAccount &) = default;
    friend std::strong_ordering operator<=>(const BankAccount &, const BankAccount &) = default;
};

/// A bank account as its last reconciliation left it: its balance, and the day,
/// which is missing when it was never reconciled.
class KIV_BANKING_EXPORT ReconciledBankAccount {
public:
    ReconciledBankAccount() = default;
    /// Never reconciled: a zero balance and no day.
    ReconciledBankAccount(BankAccount account, const numira::Currency &currency);
    /// `reconciledOn` is the day of the statement; nothing when there was none yet.
    ReconciledBankAccount(BankAccount account, const numira::Money &balance,
                          std::optional<QDate> reconciledOn);

    /// The account.
    [[nodiscard]] const BankAccount &bankAccount() const noexcept { return m_account; }
    /// The balance of the last statement that was accepted.
    [[nodiscard]] const numira::Money &balance() const noexcept { return m_balance; }
    /// The day of that statement; nothing when there was none yet.
    [[nodiscard]] const std::optional<QDate> &reconciledOn() const noexcept
    {
        return m_reconciledOn;
    }
    friend bool operator==(const ReconciledBankAccount &, const ReconciledBankAccount &) = default;

private:
    BankAccount m_account;
    numira::Money m_balance;
    std::optional<QDate> m_reconciledOn;
};

/// The last reconciled balance of an account, for showing.
struct KIV_BANKING_EXPORT ReconciledBalance {
    /// The balance of the last statement that was accepted.
    numira::Money amount;
    /// The day of that statement; nothing when there was none yet.
    std::optional<QDate> reconciledOn;
    /// The account's currency.
    numira::Currency currency;

    friend bool operator==(const ReconciledBalance &, const ReconciledBalance &) = default;
};

/// The name as the user wrote it.
[[nodiscard]] KIV_BANKING_EXPORT QString presentationText(const BankName &name);
/// "First 1200 (checking)".
[[nodiscard]] KIV_BANKING_EXPORT QString presentationText(const BankAccount &account);

KIV_BANKING_EXPORT std::ostream &operator<<(std::ostream &out, const BankName &name);
KIV_BANKING_EXPORT std::ostream &operator<<(std::ostream &out,
                                            const AccountNumberBankType &account);
KIV_BANKING_EXPORT std::ostream &operator<<(std::ostream &out, const BankAccount &account);
KIV_BANKING_EXPORT std::ostream &operator<<(std::ostream &out,
                                            const ReconciledBankAccount &account);
KIV_BANKING_EXPORT std::ostream &operator<<(std::ostream &out, const ReconciledBalance &balance);
using foundation::operator<<;

} // namespace kiv::banking

Q_DECLARE_METATYPE(kiv::banking::BankName)
Q_DECLARE_METATYPE(std::set<kiv::banking::BankName>)
Q_DECLARE_METATYPE(std::optional<kiv::banking::BankName>)
Q_DECLARE_METATYPE(kiv::banking::BankAccount)
Q_DECLARE_METATYPE(std::optional<kiv::banking::BankAccount>)
Q_DECLARE_METATYPE(std::set<kiv::banking::AccountNumberBankType>)
Q_DECLARE_METATYPE(std::optional<kiv::banking::ReconciledBalance>)
