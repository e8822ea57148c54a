// SPDX-License-Identifier: GPL-3.0-or-later
#include "banking/bank_account.h"

#include "foundation/local_dates.h"
#include "foundation/streams.h"

namespace kiv::banking {
namespace {

void streamReconciled(std::ostream &out, const numira::Money &balance,
                      const std::optional<QDate> &on)
{
    out << balance;
    if (on)
        out << " on " << foundation::isoText(*on).toStdString();
    else
        out << " never reconciled";
}

} // namespace

ReconciledBankAccount::ReconciledBankAccount(BankAccount account, const numira::Currency &currency)
    : ReconciledBankAccount(std::move(account), numira::Money(currency), std::nullopt)
{
}

ReconciledBankAccount::ReconciledBankAccount(BankAccount account, const numira::Money &balance,
                                             std::optional<QDate> reconciledOn)
    : m_account(std::move(account)), m_balance(balance), m_reconciledOn(reconciledOn)
{
}

QString presentationText(const BankName &name)
{
    return name.institution();
}

QString presentationText(const BankAccount &account)
{
    return QStringLiteral("%1 %2 (%3)")
        .arg(presentationText(account.bank), presentationText(account.account.number),
             presentationText(account.account.type));
}

std::ostream &operator<<(std::ostream &out, const BankName &name)
{
    return out << foundation::escapedUtf8(name.institution());
}

std::ostream &operator<<(std::ostream &out, const AccountNumberBankType &account)
{
    return out << account.number << "=>" << account.type;
}

std::ostream &operator<<(std::ostream &out, const BankAccount &account)
{
    return out << account.bank << ' ' << account.account.number << " (" << account.account.type
               << ')';
}

std::ostream &operator<<(std::ostream &out, const ReconciledBankAccount &account)
{
    out << account.bankAccount() << ' ';
    streamReconciled(out, account.balance(), account.reconciledOn());
    return out;
}

std::ostream &operator<<(std::ostream &out, const ReconciledBalance &balance)
{
    streamReconciled(out, balance.amount, balance.reconciledOn);
    return out << " in " << balance.currency;
}

} // namespace kiv::banking
