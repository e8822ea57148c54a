// SPDX-License-Identifier: GPL-3.0-or-later
//
// Stands between the Navigator and the domain: the calls below are counted, and
// one of them can be made to fail. The definitions of a program go before those
// of its libraries, so no library has to know of it.
#include "support/fault.h"

#include "accounting/general_ledger.h"
#include "banking/bank_map.h"
#include "surveying/completed_surveys.h"
#include "tagging/budget_tag_manager.h"

#include <dlfcn.h>

#include <bit>
#include <unordered_map>

using kiv::test::fault;

namespace {

/// The name that the linker knows a member function by, and the library's own
/// definition of it.
struct Original {
    const char *name;
    void *address;
};

Original originalOf(void *here)
{
    static std::unordered_map<void *, Original> known;
    Original &original = known[here];
    if (!original.name) {
        Dl_info info;
        if (!::dladdr(here, &info) || !info.dli_sname)
            qFatal("A call that stands between has no name.");
        original = {info.dli_sname, ::dlsym(RTLD_NEXT, info.dli_sname)};
        if (!original.address)
            qFatal("No library has %s.", info.dli_sname);
    }
    return original;
}

/// Counts a call, fails when it has to, or else makes it.
template <typename Method, typename Self, typename... Arguments>
decltype(auto) pass(Method method, Self *self, Arguments &&...arguments)
{
    // Of a member function that is not virtual, the first half is its address.
    auto halves = std::bit_cast<std::array<void *, 2>>(method);
    const Original original = originalOf(halves[0]);
    fault.pass(original.name);
    halves[0] = original.address;
    return (self->*std::bit_cast<Method>(halves))(std::forward<Arguments>(arguments)...);
}

} // namespace

// clang-format off
namespace kiv::accounting {

using Ledger = GeneralLedger;
using Posted = TransactionNumber;
using Generator = SequentialAccountNumberGenerator;

// The pointer to a virtual function does not tell where it is.
const AccountNumber &Generator::operator++()
{
    constexpr const char *name = "_ZN3kiv10accounting32SequentialAccountNumberGeneratorppEv";
    fault.pass(name);
    static auto *const step = reinterpret_cast<const AccountNumber &(*)(Generator *)>(::dlsym(RTLD_NEXT, name));
    return step(this);
}

std::optional<Posted> Ledger::add(const Account &a, AccountNumberGenerator &g, QDate d) { return pass(&Ledger::add, this, a, g, d); }
void Ledger::remove(AccountNumber n) { return pass(qOverload<AccountNumber>(&Ledger::remove), this, n); }
void Ledger::open(const AccountCode &c) { return pass(&Ledger::open, this, c); }
void Ledger::close(AccountNumber n) { return pass(&Ledger::close, this, n); }
void Ledger::recode(const AccountCode &a, const AccountCode &b) { return pass(&Ledger::recode, this, a, b); }
void Ledger::convertTo(AccountNumber n, const numira::Currency &c, AccountNumberGenerator &g) { return pass(&Ledger::convertTo, this, n, c, g); }
Posted Ledger::post(const Transaction &t) { return pass(&Ledger::post, this, t); }
void Ledger::repost(Posted n, const Transaction &t) { return pass(&Ledger::repost, this, n, t); }
void Ledger::remove(Posted n) { return pass(qOverload<Posted>(&Ledger::remove), this, n); }
void Ledger::reconcile(Posted n) { return pass(qOverload<Posted>(&Ledger::reconcile), this, n); }
void Ledger::reconcile(const std::set<Posted> &n) { return pass(qOverload<const std::set<Posted> &>(&Ledger::reconcile), this, n); }
void Ledger::reconcile(Posted n, AccountNumber a) { return pass(qOverload<Posted, AccountNumber>(&Ledger::reconcile), this, n, a); }
void Ledger::unreconcile(Posted n) { return pass(&Ledger::unreconcile, this, n); }
void Ledger::clear(Posted n) { return pass(qOverload<Posted>(&Ledger::clear), this, n); }
void Ledger::clear(Posted n, AccountNumber a) { return pass(qOverload<Posted, AccountNumber>(&Ledger::clear), this, n, a); }
Posted Ledger::refund(Posted n, const numira::Money &m, QDate d) { return pass(&Ledger::refund, this, n, m, d); }

std::set<AccountCode> Ledger::accountCodes() const { return pass(&Ledger::accountCodes, this); }
std::set<Account> Ledger::accounts() const { return pass(&Ledger::accounts, this); }
LedgerAccount Ledger::ledger(AccountNumber n) const { return pass(qOverload<AccountNumber>(&Ledger::ledger), this, n); }
LedgerAccount Ledger::ledger(const AccountCode &c) const { return pass(qOverload<const AccountCode &>(&Ledger::ledger), this, c); }
AccountCode Ledger::accountCode(AccountNumber n) const { return pass(&Ledger::accountCode, this, n); }
std::optional<Transaction> Ledger::openingTransaction(AccountNumber n) const { return pass(&Ledger::openingTransaction, this, n); }
std::set<AccountNumber> Ledger::lookUpChildren(AccountNumber n, OpenStates s) const { return pass(&Ledger::lookUpChildren, this, n, s); }
std::optional<Transaction> Ledger::lookUpTransaction(Posted n) const { return pass(&Ledger::lookUpTransaction, this, n); }
std::vector<Transaction> Ledger::transactions() const { return pass(&Ledger::transactions, this); }
numira::Money Ledger::refundable(Posted n) const { return pass(&Ledger::refundable, this, n); }

} // namespace kiv::accounting

namespace kiv::banking {

using accounting::AccountNumber;

bool BankMap::hasBank(const BankName &n) const { return pass(&BankMap::hasBank, this, n); }
std::set<BankName> BankMap::names() const { return pass(&BankMap::names, this); }
const Bank &BankMap::bank(const BankName &n) const { return pass(&BankMap::bank, this, n); }
std::optional<BankName> BankMap::find(AccountNumber n) const { return pass(qOverload<AccountNumber>(&BankMap::find), this, n); }
void BankMap::add(const Bank &b) { return pass(qOverload<const Bank &>(&BankMap::add), this, b); }
void BankMap::add(const BankName &b, AccountNumber n, BankAccountTypes t) { return pass(qOverload<const BankName &, AccountNumber, BankAccountTypes>(&BankMap::add), this, b, n, t); }
void BankMap::remove(const BankName &b) { return pass(qOverload<const BankName &>(&BankMap::remove), this, b); }
void BankMap::remove(const BankName &b, AccountNumber n) { return pass(qOverload<const BankName &, AccountNumber>(&BankMap::remove), this, b, n); }
void BankMap::update(const Bank &b) { return pass(&BankMap::update, this, b); }
void BankMap::rename(const BankName &a, const BankName &b) { return pass(&BankMap::rename, this, a, b); }
void BankMap::open(const BankName &b) { return pass(&BankMap::open, this, b); }
void BankMap::close(const BankName &b) { return pass(&BankMap::close, this, b); }

} // namespace kiv::banking

namespace kiv::surveying {

using Surveys = CompletedSurveys;

std::optional<CompletedSurvey> Surveys::lookUpSurvey(const banking::BankAccount &a) const { return pass(qOverload<const banking::BankAccount &>(&Surveys::lookUpSurvey), this, a); }
std::optional<CompletedSurvey> Surveys::lookUpSurvey(const banking::BankName &b, accounting::AccountNumber n) const { return pass(qOverload<const banking::BankName &, accounting::AccountNumber>(&Surveys::lookUpSurvey), this, b, n); }
void Surveys::upsert(CompletedSurvey s) { return pass(&Surveys::upsert, this, s); }
void Surveys::renamedBank(const banking::BankName &a, const banking::BankName &b) { return pass(&Surveys::renamedBank, this, a, b); }
void Surveys::renamedAccount(const banking::BankName &b, accounting::AccountNumber from, accounting::AccountNumber to) { return pass(&Surveys::renamedAccount, this, b, from, to); }
void Surveys::renamedItem(const budgeting::BudgetItemIdentifier &i, const budgeting::BudgetSource &s) { return pass(&Surveys::renamedItem, this, i, s); }

} // namespace kiv::surveying

namespace kiv::tagging {

using Tagger = BudgetTagManager;

bool BudgetItemTags::contains(const budgeting::BudgetItemIdentifier &i) const { return pass(&BudgetItemTags::contains, this, i); }
Tags BudgetItemTags::tags(const budgeting::BudgetItemIdentifier &i) const { return pass(&BudgetItemTags::tags, this, i); }
void Tagger::changeAssociation(const BudgetItemTags::ItemTags &t) { return pass(&Tagger::changeAssociation, this, t); }
void Tagger::renameAssociation(const budgeting::BudgetItemIdentifier &i, const budgeting::BudgetSource &s) { return pass(&Tagger::renameAssociation, this, i, s); }
void Tagger::removeAssociation(const budgeting::BudgetItemIdentifier &i) { return pass(&Tagger::removeAssociation, this, i); }

} // namespace kiv::tagging
// clang-format on
