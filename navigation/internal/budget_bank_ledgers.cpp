// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigation/internal/budget_bank_ledgers.h"

#include "navigation/internal/faults.h"

#include "budgeting/item_account.h"
#include "foundation/streams.h"

namespace kiv::navigation::internal {

using foundation::observe;

BudgetBankLedgers::BudgetBankLedgers()
    : BudgetBankLedgers({}, {}, {}, {},
                        std::make_unique<accounting::SequentialAccountNumberGenerator>(
                            accounting::AccountNumber()))
{
}

BudgetBankLedgers::BudgetBankLedgers(accounting::GeneralLedger ledger, budgeting::Budget budget,
                                     BudgetAccountCodes codes, banking::BankMap banks,
                                     std::unique_ptr<accounting::AccountNumberGenerator> generator)
    : m_generalLedger(std::move(ledger)),
      m_budget(std::move(budget)),
      m_banks(std::move(banks)),
      m_generator(std::move(generator)),
      m_budgetLedgers(observe(m_budget), observe(m_generalLedger), std::move(codes)),
      m_bankLedgers(observe(m_banks), observe(m_generalLedger))
{
    const std::set<AccountCode> accountCodes = m_generalLedger.accountCodes();
    for (const auto &[type, sources] : m_budget.sources()) {
        for (const BudgetSource &source : sources) {
            for (const AccountCode &code : accountCodes) {
                if (code.name() == source.name())
                    throw faults::foundAccountNamedAsItem(code);
            }
        }
    }
}

BudgetBankLedgers::BudgetBankLedgers(const BudgetBankLedgers &other)
    : m_generalLedger(other.m_generalLedger),
      m_budget(other.m_budget),
      m_banks(other.m_banks),
      m_generator(other.m_generator->clone()),
      m_budgetLedgers(BudgetLedgers::Unchecked{}, observe(m_budget), observe(m_generalLedger),
                      other.m_budgetLedgers.m_codes),
      m_bankLedgers(BankLedgers::Unchecked{}, observe(m_banks), observe(m_generalLedger)),
      m_surveys(other.m_surveys)
{
}

BudgetBankLedgers::BudgetBankLedgers(BudgetBankLedgers &&other) noexcept
    : m_generalLedger(std::move(other.m_generalLedger)),
      m_budget(std::move(other.m_budget)),
      m_banks(std::move(other.m_banks)),
      m_generator(std::move(other.m_generator)),
      m_budgetLedgers(BudgetLedgers::Unchecked{}, observe(m_budget), observe(m_generalLedger),
                      std::move(other.m_budgetLedgers.m_codes)),
      m_bankLedgers(BankLedgers::Unchecked{}, observe(m_banks), observe(m_generalLedger)),
      m_surveys(std::move(other.m_surveys))
{
}

BudgetBankLedgers &BudgetBankLedgers::operator=(BudgetBankLedgers &&other) noexcept
{
    // Both ledgers already observe this object's own members.
    m_generalLedger = std::move(other.m_generalLedger);
    m_budget = std::move(other.m_budget);
    m_banks = std::move(other.m_banks);
    m_generator = std::move(other.m_generator);
    m_budgetLedgers.m_codes = std::move(other.m_budgetLedgers.m_codes);
    m_surveys = std::move(other.m_surveys);
    return *this;
}

BudgetBankLedgers::~BudgetBankLedgers() = default;

void BudgetBankLedgers::setManaged(accounting::GeneralLedger ledger, budgeting::Budget budget,
                                   BudgetAccountCodes codes, banking::BankMap banks,
                                   surveying::CompletedSurveys surveys)
{
    // The new parts are checked first, so that a refusal needs no undo.
    auto generator = std::make_unique<accounting::SequentialAccountNumberGenerator>(
        m_generator->seedFrom(ledger.accounts()));
    BudgetLedgers checked(observe(budget), observe(ledger), std::move(codes));
    const BankLedgers checkedBanks(observe(banks), observe(ledger));

    m_generalLedger = std::move(ledger);
    m_budget = std::move(budget);
    m_banks = std::move(banks);
    m_generator = std::move(generator);
    m_budgetLedgers.m_codes = std::move(checked.m_codes);
    m_surveys = std::move(surveys);
}

void BudgetBankLedgers::reset()
{
    setManaged({}, {}, {}, {}, {});
}

void BudgetBankLedgers::setAccountNumberGenerator(
    std::unique_ptr<accounting::AccountNumberGenerator> generator)
{
    m_generator = std::move(generator);
}

std::set<banking::BankName> BudgetBankLedgers::bankNames() const
{
    return m_banks.names();
}

bool BudgetBankLedgers::isEmpty() const noexcept
{
    return m_budget.isEmpty() && m_generalLedger.isEmpty() && m_banks.isEmpty() &&
           m_surveys.isEmpty();
}

// ---- names ---------------------------------------------------------------------

void BudgetBankLedgers::verifyBudgetSourceName(const BudgetSource &source) const
{
    if (m_generalLedger.hasLedgerNamed(source.name()))
        throw faults::itemNamedAsAccount(source);
}

void BudgetBankLedgers::verifyAccountCodeName(const AccountCode &code) const
{
    const BudgetSource source(code.name());
    const bool isItem = budgeting::anyItemClass(
        [&]<typename T>(std::type_identity<T>) { return m_budget.items<T>().contains(source); });
    if (isItem)
        throw faults::accountNamedAsItem(code);
}

void BudgetBankLedgers::verifyNewItemName(const BudgetSource &source) const
{
    verifyBudgetSourceName(source);
    verifyAccountCodeName(AccountCode(budgeting::itemAccountName(source), std::nullopt));
}

// ---- comparison and text form --------------------------------------------------

bool operator==(const BudgetBankLedgers &a, const BudgetBankLedgers &b)
{
    // Besides what they observe, the two ledgers hold only the map from items to
    // accounts.
    return a.m_banks == b.m_banks && a.m_budget == b.m_budget &&
           a.m_generalLedger == b.m_generalLedger &&
           a.m_budgetLedgers.budgetAccountCodes() == b.m_budgetLedgers.budgetAccountCodes();
}

std::ostream &operator<<(std::ostream &out, const BudgetBankLedgers &ledgers)
{
    out << "Banks (" << ledgers.banks() << "), Budget (" << ledgers.budget() << "), Ledgers ("
        << ledgers.generalLedger() << "), Budget Account Currency ("
        << ledgers.budgetLedgers().budgetAccountCodes() << "), Bank Account Types (";
    const char *betweenBanks = "";
    for (const auto &[name, types] : ledgers.bankLedgers().bankAccountTypes()) {
        out << betweenBanks << name << " => ";
        betweenBanks = ", ";
        const char *betweenAccounts = "";
        for (const auto &[number, type] : types) {
            out << betweenAccounts << number << "=>" << type;
            betweenAccounts = ", ";
        }
    }
    return out << ')';
}

} // namespace kiv::navigation::internal
