// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/statement_plan.h"

#include "interchange/account_paths.h"
#include "interchange/duplicates.h"
#include "interchange/internal/statement_faults.h"

#include "foundation/presentation.h"

#include <QtCore/QObject>

namespace kiv::interchange {

using accounting::AccountCode;
using accounting::Transaction;
using Kinds = StatementNotice::Kinds;

namespace {

/// "payee | text", as transactions have it. A bar in the payee becomes a slash; a text with one
/// gets a bar before it, so that none of it is read as a payee.
QString described(const StatementEntry &entry)
{
    const QString payee = QString(entry.payee).replace(u'|', u'/').trimmed();
    if (payee.isEmpty() && !entry.text.contains(u'|'))
        return entry.text;
    return QStringLiteral("%1 | %2").arg(payee, entry.text).trimmed();
}

class Planner {
public:
    Planner(const StatementBooks &books, const StatementChoices &choices)
        : m_books(books), m_choices(choices), m_paths(accountPaths(books.accounts))
    {
        for (const accounting::Account &account : books.accounts) {
            m_names.insert(account.code().name());
            m_names.insert(m_paths.at(account.code().number()));
        }
    }

    /// Adds the entry to the plan. An entry that moves no money becomes a notice.
    void add(StatementEntry entry)
    {
        if (entry.amount.code() != m_books.currency)
            throw faults::otherCurrency(entry.place, foundation::toQString(entry.amount.code()),
                                        foundation::toQString(m_books.currency));
        if (entry.amount.isZero()) {
            m_plan.notices.push_back({Kinds::Nothing, entry.place,
                                      QObject::tr("Entries with amount zero are skipped.")});
            return;
        }
        PlannedEntry planned{std::move(entry), {}};
        const AccountCode other = chooseOther(planned);
        // Other programs write opening balances this way.
        if (planned.entry.isTransfer && other == m_books.account) {
            m_plan.notices.push_back(
                {Kinds::ToItself, planned.entry.place,
                 QObject::tr("Entries from '%1' to itself are skipped, such as an opening balance.")
                     .arg(pathOf(other))});
            return;
        }
        planned.transaction = transactionOf(planned.entry, other);
        if (m_books.openedOn && planned.entry.date < *m_books.openedOn)
            planned.notices.push_back({Kinds::BeforeOpening, planned.entry.place,
                                       QObject::tr("Some entries are older than the opening "
                                                   "balance of %1, which may already include them.")
                                           .arg(foundation::presentationText(*m_books.openedOn))});
        m_plan.entries.push_back(std::move(planned));
    }

    void findDuplicates()
    {
        Duplicates duplicates(m_books.posted, m_books.account.number(), m_books.kept);
        for (PlannedEntry &planned : m_plan.entries)
            planned.isDuplicate = duplicates.take(planned.transaction);
        for (PlannedEntry &planned : m_plan.entries) {
            if (!planned.isDuplicate && duplicates.takeTransfer(planned.transaction))
                planned.notices.push_back({Kinds::MaybeTransfer, planned.entry.place,
                                           QObject::tr("Line %1 may be a transfer that the other "
                                                       "account's statement already posted.")
                                               .arg(planned.entry.place.line)});
        }
    }

    StatementPlan m_plan;

private:
    [[nodiscard]] AccountCode chooseOther(PlannedEntry &planned)
    {
        const StatementEntry &entry = planned.entry;
        for (const AccountRule &rule : m_choices.rules) {
            if (entry.payee.contains(rule.contains, Qt::CaseInsensitive) ||
                entry.text.contains(rule.contains, Qt::CaseInsensitive)) {
                planned.chosenBy = ChosenBy::Rule;
                return find(rule.account);
            }
        }
        if (!entry.category.isEmpty() && m_names.contains(entry.category)) {
            planned.chosenBy = ChosenBy::Category;
            return find(entry.category);
        }
        if (!m_choices.otherwise)
            return {};
        planned.chosenBy = ChosenBy::Default;
        AccountCode other = find(*m_choices.otherwise);
        if (entry.isTransfer)
            planned.notices.push_back(
                {Kinds::OtherAccount, entry.place,
                 QObject::tr("There is no account '%1'; its transfers are posted to '%2'.")
                     .arg(entry.category, pathOf(other))});
        return other;
    }

    /// Each account is looked for once; most entries need the same few.
    [[nodiscard]] const AccountCode &find(const QString &name)
    {
        const auto found = m_found.find(name);
        return found != m_found.end() ? found->second
                                      : m_found.emplace(name, m_choices.find(name)).first->second;
    }

    [[nodiscard]] Transaction transactionOf(const StatementEntry &entry,
                                            const AccountCode &other) const
    {
        const bool isIn = entry.amount.isPositive();
        const QString text = withBankId(described(entry), entry.bankId);
        return {entry.date, isIn ? m_books.account : other, isIn ? other : m_books.account,
                entry.amount.abs(), text.isEmpty() ? std::nullopt : std::optional(text)};
    }

    [[nodiscard]] QString pathOf(const AccountCode &code) const
    {
        return m_paths.at(code.number());
    }

    const StatementBooks &m_books;
    const StatementChoices &m_choices;
    std::map<accounting::AccountNumber, QString> m_paths;
    std::set<QString> m_names; ///< of accounts, and their paths
    std::map<QString, AccountCode> m_found;
};

} // namespace

StatementPlan planStatement(Statement statement, const StatementBooks &books,
                            const StatementChoices &choices)
{
    forgetSharedIds(statement.entries);
    Planner planner(books, choices);
    if (statement.pending > 0)
        planner.m_plan.notices.push_back(
            {Kinds::Pending,
             {},
             QObject::tr("Entries that the bank has not booked yet are skipped.")});
    for (const QString &notice : statement.notices)
        planner.m_plan.notices.push_back({Kinds::OfTheFile, {}, notice});
    for (StatementEntry &entry : statement.entries)
        planner.add(std::move(entry));
    planner.findDuplicates();
    return std::move(planner.m_plan);
}

} // namespace kiv::interchange
