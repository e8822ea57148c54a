// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigation/internal/bank_ledgers.h"

#include "navigation/internal/faults.h"
#include "navigation/internal/undo.h"

#include "accounting/number_handout.h"

namespace kiv::navigation::internal {

using accounting::AccountCode;
using accounting::AccountNumber;
using banking::Bank;
using banking::BankAccount;
using banking::BankAccountTypes;
using banking::BankName;

namespace {

/// The first of the bank's accounts that the ledger lacks.
std::optional<AccountNumber> missingAccount(const Bank &bank,
                                            const accounting::GeneralLedger &ledgers)
{
    for (const auto &[number, type] : bank.accounts()) {
        if (!ledgers.hasLedger(number))
            return number;
    }
    return std::nullopt;
}

bool doesFit(const accounting::GeneralLedger &ledgers, AccountNumber number, BankAccountTypes type)
{
    return ledgers.ledger(number).type() == banking::toAccountTypes(type);
}

} // namespace

BankLedgers::BankLedgers(foundation::ObserverPtr<banking::BankMap> banks,
                         foundation::ObserverPtr<accounting::GeneralLedger> ledgers)
    : BankLedgers(Unchecked{}, banks, ledgers)
{
    for (const auto &[name, bank] : *m_banks) {
        if (missingAccount(bank, *m_ledgers))
            throw faults::bankWithoutAccount(name);
    }
}

BankLedgers::BankLedgers(Unchecked, foundation::ObserverPtr<banking::BankMap> banks,
                         foundation::ObserverPtr<accounting::GeneralLedger> ledgers) noexcept
    : m_banks(banks), m_ledgers(ledgers)
{
}

// ---- associations --------------------------------------------------------------

std::optional<accounting::TransactionNumber>
BankLedgers::addAccount(const BankName &bank, const QString &name, const BankAccountTypes &types,
                        const numira::Money &openingBalance,
                        accounting::AccountNumberGenerator &generator)
{
    if (!m_banks->hasBank(bank))
        throw faults::bankDoesNotExist(bank);
    for (const AccountCode &code : m_ledgers->accountCodes()) {
        if (code.name() == name) {
            throw faults::accountNameIsTaken(bank, name,
                                             m_banks->find(code.number()).value_or(BankName()));
        }
    }
    accounting::NumberHandout number(generator, *m_ledgers);
    const AccountCode code(number.number(), name, std::nullopt);
    const auto opening = m_ledgers->add(
        accounting::Account(banking::toAccountTypes(types), code, openingBalance, false),
        generator);
    m_banks->add(bank, code.number(), types);
    number.keep();
    return opening;
}

BankAccount BankLedgers::addAssociation(const BankName &bank, const AccountNumber &number,
                                        const BankAccountTypes &types)
{
    if (!m_banks->hasBank(bank))
        throw faults::bankDoesNotExist(bank);
    if (!m_ledgers->hasLedger(number))
        throw faults::associatedAccountIsMissing(bank, number);
    if (types == BankAccountTypes::Unknown)
        throw faults::associatedTypeIsUnknown(bank);
    m_banks->add(bank, number, types);
    return {bank, {number, types}};
}

void BankLedgers::removeAssociation(const BankName &bank, const AccountNumber &number)
{
    if (!m_banks->hasBank(bank))
        throw faults::cannotDissociateFromMissingBank(bank);
    if (!hasBankAssociation(number))
        throw faults::cannotDissociateMissing(bank);
    m_banks->remove(bank, number);
}

BankAccount BankLedgers::recode(const AccountNumber &from, const AccountNumber &to)
{
    const std::optional<BankName> fromBank = lookUpBankName(from);
    if (!fromBank)
        throw faults::cannotRecodeUnassociated(from);
    const std::optional<BankName> toBank = lookUpBankName(to);
    if (toBank && *toBank != *fromBank)
        throw faults::cannotRecodeOntoAssociated(*fromBank, from, to);
    const BankAccountTypes types = m_banks->bank(*fromBank).accounts().at(from);
    removeAssociation(*fromBank, from);
    return addAssociation(*fromBank, to, types);
}

// ---- banks ---------------------------------------------------------------------

const Bank &BankLedgers::add(const Bank &bank)
{
    const BankName &name = bank.name();
    if (const auto missing = missingAccount(bank, *m_ledgers))
        throw faults::addedAccountIsMissing(name, *missing);
    for (const auto &[number, type] : bank.accounts()) {
        if (!doesFit(*m_ledgers, number, type))
            throw faults::addedTypeDoesNotFit(name, number, type);
    }
    Restore banksBefore(*m_banks);
    m_banks->add(bank);
    const Bank &added = m_banks->bank(name);
    banksBefore.dismiss();
    return added;
}

void BankLedgers::update(const Bank &bank)
{
    const BankName &name = bank.name();
    if (!m_banks->hasBank(name))
        throw faults::cannotUpdateMissingBank(name);
    if (bank.isClosed())
        throw faults::cannotCloseByUpdate(name);
    if (const auto missing = missingAccount(bank, *m_ledgers))
        throw faults::updatedAccountIsMissing(name, *missing);
    const Bank::Accounts &stored = m_banks->bank(name).accounts();
    for (const auto &[number, type] : bank.accounts()) {
        if (!doesFit(*m_ledgers, number, type))
            throw faults::updatedTypeDoesNotFit(name, number, type);
        if (const auto before = stored.find(number);
            before != stored.end() && before->second != type)
            throw faults::cannotChangeAccountType(name);
    }
    m_banks->update(bank);
}

void BankLedgers::rename(const BankName &from, const BankName &to)
{
    m_banks->rename(from, to);
}

void BankLedgers::open(const BankName &name)
{
    m_banks->open(name);
    for (const auto &[number, type] : m_banks->bank(name).accounts())
        m_ledgers->open(AccountCode(number, std::nullopt));
}

void BankLedgers::close(const BankName &name)
{
    Restore banksBefore(*m_banks);
    Restore ledgersBefore(*m_ledgers);
    m_banks->close(name);
    for (const auto &[number, type] : m_banks->bank(name).accounts())
        m_ledgers->close(number);
    banksBefore.dismiss();
    ledgersBefore.dismiss();
}

void BankLedgers::remove(const BankName &name)
{
    if (!m_banks->hasBank(name))
        throw faults::cannotRemoveMissingBank(name);
    const Bank &bank = m_banks->bank(name);
    if (bank.isClosed())
        throw faults::cannotRemoveClosedBank(name);
    for (const auto &[number, type] : bank.accounts()) {
        if (!m_ledgers->canRemove(AccountCode(number, std::nullopt)))
            throw faults::cannotRemoveBankAccount(name, number);
    }
    Restore ledgersBefore(*m_ledgers);
    for (const auto &[number, type] : bank.accounts())
        m_ledgers->remove(number);
    m_banks->remove(name);
    ledgersBefore.dismiss();
}

// ---- look-ups ------------------------------------------------------------------

std::optional<BankName> BankLedgers::lookUpBankName(const AccountNumber &number) const
{
    return m_banks->find(number);
}

bool BankLedgers::hasAssociation(const BankName &bank, const AccountNumber &number) const
{
    return m_banks->hasBank(bank) && lookUpBankName(number) == bank;
}

bool BankLedgers::hasBankAssociation(const AccountNumber &number) const
{
    return lookUpBankName(number).has_value();
}

std::map<AccountNumber, BankAccountTypes>
BankLedgers::bankAccountTypes(const BankName &bank, const AllowSubAccounts &allow) const
{
    std::map<AccountNumber, BankAccountTypes> types;
    if (!m_banks->hasBank(bank))
        return types;
    for (const auto &[number, type] : m_banks->bank(bank).accounts()) {
        const AccountCode code = m_ledgers->accountCode(number);
        if (allow || !code.parent())
            types.emplace(code.number(), type);
    }
    return types;
}

std::map<BankName, std::map<AccountNumber, BankAccountTypes>> BankLedgers::bankAccountTypes() const
{
    std::map<BankName, std::map<AccountNumber, BankAccountTypes>> types;
    for (const auto &[name, bank] : *m_banks)
        types.emplace(name, bank.accounts());
    return types;
}

std::optional<BankAccount> BankLedgers::lookUpBankAccount(const BankName &bank,
                                                          const AccountNumber &number) const
{
    const auto types = bankAccountTypes(bank, AllowSubAccounts(true));
    const auto found = types.find(number);
    if (found == types.end())
        return std::nullopt;
    return BankAccount{bank, {number, found->second}};
}

std::optional<BankAccount> BankLedgers::lookUpBankAccount(const AccountNumber &number) const
{
    const std::optional<BankName> bank = lookUpBankName(number);
    return bank ? lookUpBankAccount(*bank, number) : std::nullopt;
}

// ---- comparison and text form --------------------------------------------------

bool operator==(const BankLedgers &a, const BankLedgers &b)
{
    return a.banks() == b.banks() && a.ledgers() == b.ledgers();
}

std::ostream &operator<<(std::ostream &out, const BankLedgers &ledgers)
{
    return out << "Banks (" << ledgers.banks() << "), General Ledger (" << ledgers.ledgers() << ')';
}

} // namespace kiv::navigation::internal
