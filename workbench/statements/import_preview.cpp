// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/statements/import_preview.h"

#include "workbench/internal/faults.h"
#include "workbench/internal/preview_parts.h"

#include "foundation/presentation.h"
#include "interchange/duplicates.h"

#include <QtCore/QObject>

#include <algorithm>
#include <numeric>

namespace kiv::workbench {

using accounting::AccountNumber;
using accounting::TransactionStatuses;
using foundation::presentationText;
using State = ImportRow::State;

namespace {

interchange::Statement identified(interchange::Statement statement, const StatementBooks &books)
{
    for (const interchange::StatementEntry &entry : statement.entries) {
        if (entry.amount.code() != books.currency)
            throw internal::otherCurrency(entry.place, entry.amount.code(), books.currency);
    }
    giveIdentifiers(statement.entries);
    return statement;
}

std::vector<ImportRow> rowsOf(const interchange::Statement &statement)
{
    std::vector<ImportRow> rows;
    rows.reserve(statement.entries.size());
    for (const interchange::StatementEntry &entry : statement.entries)
        rows.push_back({entry, State::New, {}});
    return rows;
}

} // namespace

internal::PreviewParts::PreviewParts(interchange::Statement statement, StatementBooks books,
                                     ImportChoices choices)
    : m_statement(identified(std::move(statement), books)),
      m_books(std::move(books)),
      m_choices(std::move(choices)),
      m_rows(rowsOf(m_statement)),
      m_matcher(m_books, m_statement.entries),
      m_others(m_books, m_choices),
      m_payments(m_books),
      m_notices(m_statement.notices),
      m_isFixed(m_rows.size(), false)
{
    if (m_statement.pending > 0)
        m_notices += QObject::tr("Entries that the bank has not booked yet are skipped.");
    leaveOut();
    if (!m_choices.postsKnown)
        findMatches();
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        if (m_rows[row].state == State::New)
            chooseOther(row);
        if (m_rows[row].state == State::New && !m_choices.postsKnown)
            doubtChanged(row);
    }
    findPayments();
    doubtOld();
    m_notices.removeDuplicates();
}

/// What moves no money, and what the bank tells twice in one file.
void internal::PreviewParts::leaveOut()
{
    std::multimap<QString, const interchange::StatementEntry *> told;
    for (std::size_t at = 0; at < m_rows.size(); ++at) {
        ImportRow &row = m_rows[at];
        const interchange::StatementEntry &entry = row.entry;
        const auto [first, last] = told.equal_range(entry.bankId);
        const bool isTwice = std::any_of(first, last, [&entry](const auto &one) {
            return one.second->amount == entry.amount &&
                   std::abs(one.second->date.daysTo(entry.date)) <= interchange::sameIdDaysMax;
        });
        if (entry.amount.isZero())
            row.reason = QObject::tr("Entries with amount zero are skipped.");
        else if (m_others.isOwn(entry))
            row.reason =
                QObject::tr("Entries from '%1' to itself are skipped, such as an opening balance.")
                    .arg(m_others.index().plainPath(m_books.account.number()));
        else if (isTwice)
            row.reason = QObject::tr("The file has it twice.");
        told.emplace(entry.bankId, &m_statement.entries[at]);
        if (row.reason.isEmpty())
            continue;
        row.state = State::LeftOut;
        row.isTicked = false;
        m_isFixed[at] = true;
        m_notices += row.reason;
    }
}

void internal::PreviewParts::findMatches()
{
    const std::vector<std::optional<ImportMatch>> matches = m_matcher.match();
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        if (!matches[row])
            continue;
        if (m_isFixed[row]) {
            for (const std::size_t place : m_matcher.placesOf(*matches[row]))
                m_matcher.lines().giveBack(place);
            continue;
        }
        m_rows[row].meaning = *matches[row];
        m_rows[row].state = changes(m_rows[row], *matches[row]) ? State::Matched : State::Known;
        m_rows[row].reason = reasonOf(m_rows[row], *matches[row]);
        m_rows[row].isDoubtful = matches[row]->isOneOfSeveral;
    }
}

void internal::PreviewParts::findPayments()
{
    std::vector<std::size_t> order(m_rows.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, {}, [this](std::size_t row) { return m_rows[row].entry.date; });
    for (const std::size_t at : order) {
        ImportRow &row = m_rows[at];
        if (row.state != State::New)
            continue;
        const bool isSaid = row.otherBy == OtherSideBy::Rule;
        const bool isLikely = isSaid || row.otherBy == OtherSideBy::Learned;
        const auto found = m_payments.find(row.entry, isLikely ? row.other : std::nullopt, isSaid);
        if (!found)
            continue;
        row.state = State::Payment;
        row.meaning = found->payment;
        row.isDoubtful = found->isDoubtful;
        row.reason = reasonOf(row, found->payment);
    }
}

/// What was imported before may have another amount now.
void internal::PreviewParts::doubtChanged(std::size_t at)
{
    if (const auto number = m_matcher.changedLine(at)) {
        m_rows[at].isDoubtful = true;
        m_rows[at].reason = QObject::tr("Transaction %1 has its identifier, but another amount.")
                                .arg(presentationText(*number));
    }
}

/// The first balance may hold what is older.
void internal::PreviewParts::doubtOld()
{
    if (!m_books.opening)
        return;
    const auto opening =
        std::ranges::find(m_books.posted, m_books.opening, &accounting::Transaction::number);
    if (opening == m_books.posted.end())
        return;
    for (ImportRow &row : m_rows) {
        if ((row.state == State::New || row.state == State::Payment) &&
            row.entry.date < opening->occurredOn()) {
            row.isDoubtful = true;
            const QString sentence =
                QObject::tr("Some entries are older than the opening balance of %1, which may "
                            "already include them.")
                    .arg(presentationText(opening->occurredOn()));
            m_notices += sentence;
        }
    }
}

void internal::PreviewParts::setOther(ImportRow &row,
                                      const internal::OtherSides::Choice &choice) const
{
    row.otherBy = choice.by;
    row.other = choice.account;
    row.opens = choice.opens;
    row.reason = choice.reason;
    row.isDoubtful = choice.isDoubtful;
}

void internal::PreviewParts::chooseOther(std::size_t at)
{
    setOther(m_rows[at], m_others.choose(m_rows[at].entry));
}

bool internal::PreviewParts::changes(const ImportRow &row, const ImportMatch &match) const
{
    return std::ranges::any_of(m_matcher.placesOf(match), [&](std::size_t place) {
        const internal::LedgerLine &line = m_matcher.lines().at(place);
        return line.own == TransactionStatuses::None || named(row, line);
    });
}

QString internal::PreviewParts::reasonOf(const ImportRow &row, const ImportMeaning &meaning) const
{
    if (const auto *payment = std::get_if<ImportPayment>(&meaning)) {
        const bool isSame = payment->expected == row.entry.amount.abs();
        return (isSame ? QObject::tr("%1 is due on %2 for %3.")
                       : QObject::tr("%1 is due on %2, but for %3."))
            .arg(payment->id.source.name(), presentationText(payment->id.dueOn),
                 presentationText(payment->expected));
    }
    const auto &match = std::get<ImportMatch>(meaning);
    const auto lines = static_cast<int>(match.numbers.size());
    const QString day = presentationText(match.day);
    switch (match.grounds) {
    case MatchGrounds::Identifier:
        return QObject::tr("It was imported before.");
    case MatchGrounds::Told:
        return QObject::tr("Another file of the account had it already.");
    default:
        break;
    }
    if (lines > 1)
        return QObject::tr("Entered on %1 in %n parts, which add up to it.", nullptr, lines)
            .arg(day);
    const internal::LedgerLine &line = m_matcher.lines().at(m_matcher.placesOf(match).front());
    if (m_matcher.lines().isToldByOther(line)) {
        const AccountNumber debit = line.transaction->debiting().number();
        const AccountNumber other =
            debit == m_books.account.number() ? line.transaction->crediting().number() : debit;
        return QObject::tr("The statement of %1 has it on %2.")
            .arg(m_others.index().plainName(other), day);
    }
    return match.isOneOfSeveral
               ? QObject::tr("Entered on %1 for the same amount; another entry fits as well.")
                     .arg(day)
               : QObject::tr("Entered on %1 for the same amount.").arg(day);
}

void internal::PreviewParts::mean(std::size_t at, const ImportMeaning &meaning)
{
    if (m_isFixed.at(at))
        return;
    if (const auto *match = std::get_if<ImportMatch>(&meaning)) {
        for (std::size_t other = 0; other < m_rows.size(); ++other) {
            const auto *taken =
                m_rows[other].meaning ? std::get_if<ImportMatch>(&*m_rows[other].meaning) : nullptr;
            const bool isTaken = taken && std::ranges::any_of(taken->numbers, [&](auto number) {
                                     return std::ranges::count(match->numbers, number) > 0;
                                 });
            if (other != at && isTaken)
                part(other);
        }
    }
    part(at);
    ImportRow &row = m_rows[at];
    row.meaning = meaning;
    if (auto *match = std::get_if<ImportMatch>(&*row.meaning)) {
        match->isOneOfSeveral = false;
        for (const std::size_t place : m_matcher.placesOf(*match))
            m_matcher.lines().take(place);
        row.state = changes(row, *match) ? State::Matched : State::Known;
    } else {
        row.state = State::Payment;
    }
    row.reason = reasonOf(row, *row.meaning);
    row.isDoubtful = false;
}

void internal::PreviewParts::part(std::size_t at)
{
    ImportRow &row = m_rows.at(at);
    if (m_isFixed[at])
        return;
    if (row.meaning) {
        if (const auto *match = std::get_if<ImportMatch>(&*row.meaning)) {
            for (const std::size_t place : m_matcher.placesOf(*match))
                m_matcher.lines().giveBack(place);
        }
        row.meaning.reset();
        chooseOther(at);
    }
    row.state = State::New;
}

void internal::PreviewParts::remember(std::size_t at)
{
    const ImportRow &row = m_rows[at];
    const QString key = payeeKey(row.entry.payee, row.entry.text);
    if (key.isEmpty() || !row.other)
        return;
    for (std::size_t other = 0; other < m_rows.size(); ++other) {
        ImportRow &same = m_rows[other];
        if (other == at || same.state != State::New || same.otherBy == OtherSideBy::User ||
            same.otherBy == OtherSideBy::Rule || payeeKey(same.entry.payee, same.entry.text) != key)
            continue;
        setOther(same, {OtherSideBy::Learned, row.other, QObject::tr("As you said before.")});
    }
}

ImportPreview::ImportPreview(interchange::Statement statement, StatementBooks books,
                             Choices choices)
    : m_parts(std::make_unique<internal::PreviewParts>(std::move(statement), std::move(books),
                                                       std::move(choices)))
{
}

ImportPreview::~ImportPreview() = default;
ImportPreview::ImportPreview(ImportPreview &&) noexcept = default;
ImportPreview &ImportPreview::operator=(ImportPreview &&) noexcept = default;

const std::vector<ImportRow> &ImportPreview::rows() const noexcept
{
    return m_parts->m_rows;
}

const accounting::AccountCode &ImportPreview::account() const noexcept
{
    return m_parts->m_books.account;
}

const QStringList &ImportPreview::notices() const noexcept
{
    return m_parts->m_notices;
}

ImportCounts ImportPreview::counts() const
{
    ImportCounts counts;
    for (const ImportRow &row : rows()) {
        if (!row.isTicked || row.state == State::LeftOut) {
            ++counts.leftOut;
            continue;
        }
        counts.doubtful += row.isDoubtful ? 1 : 0;
        if (row.state == State::Known)
            ++counts.known;
        else if (row.state == State::Matched)
            ++counts.matched;
        else
            ++counts.added;
        if (row.state == State::New && !row.other && row.opens.isEmpty())
            ++counts.open;
    }
    return counts;
}

std::vector<ImportMeaning> ImportPreview::alternatives(std::size_t row) const
{
    std::vector<ImportMeaning> all;
    if (m_parts->isOfFile(row))
        return all;
    for (ImportMatch &match : m_parts->m_matcher.candidates(row))
        all.emplace_back(std::move(match));
    for (ImportPayment &payment : m_parts->m_payments.candidates(rows()[row].entry))
        all.emplace_back(std::move(payment));
    std::erase(all, rows()[row].meaning.value_or(ImportMatch()));
    return all;
}

QString ImportPreview::reasonOf(std::size_t row, const ImportMeaning &meaning) const
{
    return m_parts->reasonOf(rows().at(row), meaning);
}

std::vector<AccountNumber> ImportPreview::possibleOthers() const
{
    const std::set<AccountNumber> &possible = m_parts->m_others.possible();
    return {possible.begin(), possible.end()};
}

void ImportPreview::mean(std::size_t row, const ImportMeaning &meaning)
{
    m_parts->mean(row, meaning);
}

void ImportPreview::part(std::size_t row)
{
    m_parts->part(row);
}

void ImportPreview::setOther(std::size_t row, AccountNumber account)
{
    m_parts->part(row);
    if (m_parts->isOfFile(row))
        return;
    ImportRow &changed = m_parts->m_rows[row];
    m_parts->setOther(changed, {OtherSideBy::User, account, QString()});
    if (changed.isRemembered)
        m_parts->remember(row);
}

void ImportPreview::setTicked(std::size_t row, bool isTicked)
{
    if (!m_parts->isOfFile(row))
        m_parts->m_rows[row].isTicked = isTicked;
}

void ImportPreview::setRemembered(std::size_t row, bool isRemembered)
{
    if (m_parts->isOfFile(row))
        return;
    m_parts->m_rows[row].isRemembered = isRemembered;
    if (isRemembered)
        m_parts->remember(row);
}

ImportMemory ImportPreview::memory() const
{
    ImportMemory memory = m_parts->m_choices.memory;
    for (const ImportRow &row : rows()) {
        const QString key = row.isRemembered && row.isTicked && row.other
                                ? payeeKey(row.entry.payee, row.entry.text)
                                : QString();
        if (!key.isEmpty())
            memory.learn(key, *row.other);
    }
    for (const auto &[number, bankId] : m_parts->unnamed())
        memory.accounts[account().number()].told[number] = bankId;
    if (const QString &number = m_parts->m_statement.account; !number.isEmpty())
        memory.accounts[account().number()].bankNumber = number;
    return memory;
}

} // namespace kiv::workbench
