// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/search/transaction_filter.h"

#include "workbench/entry/description.h"
#include "workbench/entry/folded.h"
#include "workbench/entry/similar.h"
#include "workbench/internal/faults.h"
#include "workbench/search/spans.h"

#include <unordered_map>

namespace kiv::workbench {

using accounting::Account;
using accounting::AccountNumber;
using accounting::Transaction;
using accounting::TransactionStatuses;

namespace {

/// A part, ready to be compared.
struct Check {
    FilterKind kind = FilterKind::Words;
    bool isExcluded = false;
    QString word; ///< folded
    DaySpan days;
    AmountSpan amounts;
    TransactionStatuses mark = TransactionStatuses::None;
};

/// What is known of an account before the search.
struct AccountRow {
    std::vector<bool> fits; ///< for each check, whether the account fits
    bool isNamed = false;   ///< by a part that is not excluded
};

TransactionStatuses markOf(const QString &word)
{
    if (word == u"reconciled")
        return TransactionStatuses::Reconciled;
    return word == u"cleared" ? TransactionStatuses::Cleared : TransactionStatuses::None;
}

Check checkOf(const FilterPart &part, QDate today)
{
    Check check{part.kind, part.isExcluded, folded(part.value), {}, {}, markOf(part.value)};
    if (part.kind == FilterKind::Days) {
        const auto days = daySpan(part.value, today);
        if (!days)
            throw internal::notADayFilter(part.value);
        check.days = *days;
    } else if (part.kind == FilterKind::Amount) {
        const auto amounts = amountSpan(part.value);
        if (!amounts)
            throw internal::notAnAmountFilter(part.value);
        check.amounts = *amounts;
    }
    return check;
}

/// The accounts with this name, path or number, or else those with it in their names.
std::set<AccountNumber> accountsNamed(const FilterPart &part, const AccountIndex &index)
{
    const QString wanted = folded(part.value);
    std::set<AccountNumber> exact;
    std::set<AccountNumber> holding;
    QStringList known;
    for (const Account &account : index.accounts()) {
        if (part.kind == FilterKind::Item && !isItemAccount(account))
            continue;
        const AccountNumber number = account.code().number();
        const QString plain = plainNameOf(account);
        known += plain;
        for (const QString &name : {plain, account.code().name(), index.plainPath(number),
                                    index.path(number), accounting::presentationText(number)}) {
            if (folded(name) == wanted)
                exact.insert(number);
        }
        if (folded(plain).contains(wanted))
            holding.insert(number);
    }
    if (exact.empty() && holding.empty()) {
        throw part.kind == FilterKind::Item
            ? internal::noSuchItem(part.value, similarTo(part.value, known))
            : internal::noSuchAccount(part.value, similarTo(part.value, known));
    }
    return exact.empty() ? holding : exact;
}

/// The texts of a transaction, folded when first asked for.
class Texts {
public:
    explicit Texts(const Transaction &transaction)
    {
        if (const auto &description = transaction.description())
            m_told = Description::withoutIds(*description);
    }

    [[nodiscard]] bool hold(const QString &word)
    {
        if (!m_folded)
            m_folded = folded(m_told);
        return m_folded->contains(word);
    }
    [[nodiscard]] bool payeeHolds(const QString &word) const
    {
        return folded(m_told.first(std::max<qsizetype>(m_told.indexOf(u'|'), 0))).contains(word);
    }

private:
    QStringView m_told; ///< payee and reason
    std::optional<QString> m_folded;
};

} // namespace

struct TransactionFilter::Prepared {
    std::vector<Check> checks;
    std::unordered_map<std::uint32_t, AccountRow> accounts;
    bool namesAccounts = false;

    void add(std::size_t at, const FilterPart &part, const AccountIndex &index);
    [[nodiscard]] const AccountRow *row(AccountNumber number) const;
    [[nodiscard]] TransactionStatuses mark(const Transaction &transaction, const AccountRow *debit,
                                           const AccountRow *credit) const;
};

/// Notes which accounts fit the part.
void TransactionFilter::Prepared::add(std::size_t at, const FilterPart &part,
                                      const AccountIndex &index)
{
    if (part.kind == FilterKind::Words) {
        for (const Account &account : index.accounts()) {
            if (folded(plainNameOf(account)).contains(checks[at].word))
                accounts[account.code().number().integer()].fits[at] = true;
        }
    } else if (part.kind == FilterKind::Account || part.kind == FilterKind::Item) {
        for (const AccountNumber number : accountsNamed(part, index)) {
            AccountRow &row = accounts[number.integer()];
            row.fits[at] = true;
            if (part.kind == FilterKind::Account && !part.isExcluded) {
                row.isNamed = true;
                namesAccounts = true;
            }
        }
    }
}

const AccountRow *TransactionFilter::Prepared::row(AccountNumber number) const
{
    const auto found = accounts.find(number.integer());
    return found == accounts.end() ? nullptr : &found->second;
}

TransactionStatuses TransactionFilter::Prepared::mark(const Transaction &transaction,
                                                      const AccountRow *debit,
                                                      const AccountRow *credit) const
{
    auto highest = TransactionStatuses::None;
    if (!namesAccounts || (debit && debit->isNamed))
        highest = std::max(highest, transaction.debitStatus());
    if (!namesAccounts || (credit && credit->isNamed))
        highest = std::max(highest, transaction.creditStatus());
    return highest;
}

TransactionFilter::TransactionFilter(const QString &text, const AccountIndex &index, QDate today)
    : TransactionFilter(filterParts(text), index, today)
{
}

TransactionFilter::TransactionFilter(std::vector<FilterPart> parts, const AccountIndex &index,
                                     QDate today)
    : m_parts(std::move(parts))
{
    // Texts last, since they take longest to compare.
    std::vector<FilterPart> ordered = m_parts;
    std::ranges::stable_sort(ordered, std::greater(), [](const FilterPart &part) {
        return part.kind != FilterKind::Words && part.kind != FilterKind::Payee;
    });
    auto prepared = std::make_unique<Prepared>();
    for (const FilterPart &part : ordered)
        prepared->checks.push_back(checkOf(part, today));
    for (const Account &account : index.accounts())
        prepared->accounts[account.code().number().integer()].fits.resize(ordered.size());
    for (std::size_t at = 0; at < ordered.size(); ++at)
        prepared->add(at, ordered[at], index);
    m_prepared = std::move(prepared);
}

TransactionFilter::~TransactionFilter() = default;
TransactionFilter::TransactionFilter(TransactionFilter &&) noexcept = default;
TransactionFilter &TransactionFilter::operator=(TransactionFilter &&) noexcept = default;

bool TransactionFilter::matches(const Transaction &transaction) const
{
    const AccountRow *debit = m_prepared->row(transaction.debiting().number());
    const AccountRow *credit = m_prepared->row(transaction.crediting().number());
    Texts texts(transaction);
    const auto holds = [&](const Check &check, std::size_t at) {
        switch (check.kind) {
        case FilterKind::Amount:
            return check.amounts.holds(transaction.amount());
        case FilterKind::Days:
            return check.days.holds(transaction.occurredOn());
        case FilterKind::Mark:
            return m_prepared->mark(transaction, debit, credit) == check.mark;
        case FilterKind::Payee:
            return texts.payeeHolds(check.word);
        case FilterKind::Words:
        case FilterKind::Account:
        case FilterKind::Item:
            break;
        }
        return (debit && debit->fits[at]) || (credit && credit->fits[at]) ||
               (check.kind == FilterKind::Words && texts.hold(check.word));
    };
    for (std::size_t at = 0; at < m_prepared->checks.size(); ++at) {
        const Check &check = m_prepared->checks[at];
        if (holds(check, at) == check.isExcluded)
            return false;
    }
    return true;
}

} // namespace kiv::workbench
