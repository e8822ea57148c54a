// SPDX-License-Identifier: GPL-3.0-or-later
// What a preview shows is done.
#include "workbench/entry/description.h"
#include "workbench/internal/faults.h"
#include "workbench/internal/preview_parts.h"
#include "workbench/requests/budget_view.h"
#include "workbench/requests/due_items.h"
#include "workbench/requests/transactions.h"
#include "workbench/statements/import_preview.h"

#include "foundation/presentation.h"
#include "interchange/draft.h"

#include <algorithm>
#include <numeric>

namespace kiv::workbench {

using accounting::AccountCode;
using accounting::AccountNumber;
using accounting::Transaction;
using accounting::TransactionNumber;
using accounting::TransactionStatuses;
using internal::LedgerLine;
using navigation::Navigator;
using State = ImportRow::State;

namespace {

/// The mark of a transaction that was seen at the bank on one side.
Transaction seenOn(const Transaction &transaction, AccountNumber account)
{
    using enum TransactionStatuses;
    return transaction.debiting().number() == account ? transaction.withStatuses(Cleared, None)
                                                      : transaction.withStatuses(None, Cleared);
}

std::optional<QString> descriptionOf(const interchange::StatementEntry &entry)
{
    return Description{entry.payee, entry.text, {entry.bankId}}.text();
}

/// Does what the rows of a preview say.
class Poster {
public:
    Poster(const internal::PreviewParts &parts, Requests &requests)
        : m_parts(parts), m_requests(requests), m_account(parts.m_books.account)
    {
    }

    ImportPreview::Done run()
    {
        openAccounts();
        // Each payment moves its item on to the next date.
        for (const std::size_t row : paymentsByDay())
            at(row, [&](const ImportRow &paid) { pay(paid); });
        for (std::size_t row = 0; row < m_parts.m_rows.size(); ++row) {
            if (!m_parts.m_rows[row].isTicked)
                continue;
            at(row, [&](const ImportRow &taken) {
                if (taken.state == State::New)
                    postNew(row);
                else if (taken.state == State::Matched)
                    recognise(taken);
            });
        }
        return std::move(m_done);
    }

private:
    template <typename Work>
    void at(std::size_t row, Work &&work)
    {
        const ImportRow &taken = m_parts.m_rows[row];
        try {
            work(taken);
        } catch (const Refusal &refusal) {
            throw interchange::ImportError(taken.entry.place, refusal.message());
        }
    }

    [[nodiscard]] std::vector<std::size_t> paymentsByDay() const
    {
        std::vector<std::size_t> rows;
        for (std::size_t row = 0; row < m_parts.m_rows.size(); ++row) {
            if (m_parts.m_rows[row].isTicked && m_parts.m_rows[row].state == State::Payment)
                rows.push_back(row);
        }
        std::ranges::stable_sort(
            rows, {}, [this](std::size_t row) { return m_parts.m_rows[row].entry.date; });
        return rows;
    }

    void openAccounts()
    {
        interchange::Draft draft;
        std::vector<std::size_t> rows;
        for (std::size_t row = 0; row < m_parts.m_rows.size(); ++row) {
            const ImportRow &opening = m_parts.m_rows[row];
            if (!opening.isTicked || opening.state != State::New || opening.other)
                continue;
            if (opening.opens.isEmpty())
                throw internal::noOtherSide(ruleText(opening.entry), opening.entry.date);
            draft.accounts.push_back({opening.entry.amount.isNegative()
                                          ? accounting::AccountTypes::Expense
                                          : accounting::AccountTypes::Income,
                                      opening.opens, m_parts.m_books.currency});
            rows.push_back(row);
        }
        interchange::AccountPlan plan = interchange::planAccounts(draft, m_parts.m_books.accounts);
        for (const accounting::Account &account : plan.missing)
            m_requests.change(accountOutcome, &Navigator::onAddedAct, account);
        m_done.opened = std::move(plan.missing);
        for (std::size_t at = 0; at < rows.size(); ++at)
            m_opened.emplace(rows[at], plan.codes[at]);
    }

    void postNew(std::size_t row)
    {
        const ImportRow &taken = m_parts.m_rows[row];
        const auto opened = m_opened.find(row);
        const AccountCode other = opened != m_opened.end()
                                      ? opened->second
                                      : m_parts.m_others.index().find(*taken.other)->code();
        const bool isIn = taken.entry.amount.isPositive();
        const Transaction transaction(taken.entry.date, isIn ? m_account : other,
                                      isIn ? other : m_account, taken.entry.amount.abs(),
                                      descriptionOf(taken.entry));
        m_done.posted.push_back(post(m_requests, seenOn(transaction, m_account.number())));
    }

    void pay(const ImportRow &row)
    {
        const auto &payment = std::get<ImportPayment>(*row.meaning);
        if (!m_budget)
            m_budget.emplace(m_requests);
        const auto item =
            std::ranges::find(m_parts.m_books.items, payment.id.item(), &PayableItem::id);
        auto [due, isFirst] = m_next.emplace(payment.id.item(), item->next);
        const PostedItem posted =
            payDue(m_requests, m_budget->budget(),
                   {{payment.id.type, payment.id.source, due->second}, row.entry.amount.abs()},
                   m_account, row.entry.date);
        due->second = budgeting::nextOccurrence(item->period, due->second, item->dayOfMonth);
        const Transaction present = m_requests.transaction(posted.number);
        Description said = Description::of(present.description());
        const Description told{row.entry.payee, row.entry.text, {row.entry.bankId}};
        said.payee = told.payee.isEmpty() ? said.payee : told.payee;
        said.reason = told.reason.isEmpty() ? said.reason : told.reason;
        said.bankIds = told.bankIds;
        describe(present, said.text());
        clear(posted.number);
        m_done.posted.push_back(posted.number);
    }

    void recognise(const ImportRow &row)
    {
        const auto &match = std::get<ImportMatch>(*row.meaning);
        for (const std::size_t place : m_parts.m_matcher.placesOf(match)) {
            const LedgerLine &line = m_parts.m_matcher.lines().at(place);
            if (const auto text = m_parts.named(row, line))
                describe(*line.transaction, text);
            if (line.own == TransactionStatuses::None)
                clear(line.number());
            m_done.recognised.push_back(line.number());
        }
    }

    void describe(const Transaction &present, const std::optional<QString> &text)
    {
        m_requests.change(transactionOutcome, &Navigator::onUpdatedTransaction, *present.number(),
                          Transaction(present.occurredOn(), present.debiting(), present.crediting(),
                                      present.amount(), text));
    }

    void clear(TransactionNumber number)
    {
        m_requests.change(transactionOutcome, &Navigator::markCleared, number,
                          std::optional(m_account.number()));
    }

    const internal::PreviewParts &m_parts;
    Requests &m_requests;
    const AccountCode &m_account;
    ImportPreview::Done m_done;
    std::map<std::size_t, AccountCode> m_opened; ///< by row
    std::map<budgeting::BudgetItemIdentifier, QDate> m_next;
    std::optional<BudgetView> m_budget;
};

} // namespace

std::optional<QString> internal::PreviewParts::named(const ImportRow &row,
                                                     const LedgerLine &line) const
{
    if (!m_matcher.lines().canBeNamed(line) || line.toldAs == row.entry.bankId)
        return std::nullopt;
    Description said = Description::of(line.transaction->description());
    if (line.toldAs.isEmpty()) {
        // The debited side's identifier stands first.
        const bool isDebit = line.transaction->debiting().number() == m_books.account.number();
        said.bankIds.insert(isDebit ? 0 : said.bankIds.size(), row.entry.bankId);
    } else if (isMadeUp(line.toldAs) && !isMadeUp(row.entry.bankId)) {
        std::ranges::replace(said.bankIds, line.toldAs, row.entry.bankId);
    } else {
        return std::nullopt;
    }
    return said.text();
}

std::map<TransactionNumber, QString> internal::PreviewParts::unnamed() const
{
    std::map<TransactionNumber, QString> all;
    for (const ImportRow &row : m_rows) {
        const auto *match = row.meaning ? std::get_if<ImportMatch>(&*row.meaning) : nullptr;
        if (!match || !row.isTicked)
            continue;
        for (const std::size_t place : m_matcher.placesOf(*match)) {
            const LedgerLine &line = m_matcher.lines().at(place);
            if (line.toldAs.isEmpty() && !m_matcher.lines().canBeNamed(line))
                all.emplace(line.number(), row.entry.bankId);
        }
    }
    return all;
}

ImportPreview::Done ImportPreview::post(Requests &requests) const
{
    Done done = Poster(*m_parts, requests).run();
    done.counts = counts();
    return done;
}

} // namespace kiv::workbench
