// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/camt_reader.h"

#include "interchange/draft.h"
#include "interchange/internal/camt_entry.h"
#include "interchange/internal/camt_tree.h"
#include "interchange/internal/declared_encoding.h"
#include "interchange/internal/faults.h"
#include "interchange/internal/statement_faults.h"
#include "interchange/internal/statement_parts.h"
#include "interchange/text_decoding.h"

namespace kiv::interchange {

namespace {

using internal::CamtTree;
using internal::Element;
using internal::StatementPart;
using internal::ToldBalance;

/// A statement while its elements are read. The account's currency is known with its first
/// entry at the latest.
class StatementTaker {
public:
    StatementTaker(const BankFileOptions &options, internal::EntryCount &count)
        : m_options(options), m_count(count)
    {
    }

    void take(Element element)
    {
        if (element.tag == u"Acct")
            takeAccount(element);
        else if (element.tag == u"Bal")
            addBalance(std::move(element));
        else if (element.tag == u"Ntry")
            takeEntry(element);
        else if (element.tag.endsWith(u"Pgntn"))
            m_part.goesOn = internal::goesOn(element);
    }

    StatementPart finish()
    {
        for (const Element &balance : m_balances) {
            if (m_part.currency == numira::Currency() && balance.child("Amt"))
                m_part.currency = internal::currencyOf(*balance.child("Amt"));
        }
        if (m_part.currency == numira::Currency())
            m_part.currency = m_options.currency;
        m_part.opening = balanceOf(u"OPBD", false);
        if (!m_part.opening)
            m_part.opening = balanceOf(u"PRCD", false);
        m_part.closing = balanceOf(u"CLBD", true);
        return std::move(m_part);
    }

private:
    void takeAccount(const Element &account)
    {
        const QString number = account.text({"Id", "IBAN"});
        m_part.account = number.isEmpty() ? account.text({"Id", "Othr", "Id"}) : number;
        if (const QString code = account.text("Ccy"); !code.isEmpty())
            m_part.currency = internal::currencyOf(code, account.place);
    }

    void addBalance(Element balance)
    {
        if (static_cast<qsizetype>(m_balances.size()) >= transactionsMax)
            throw faults::tooManyTransactions(balance.place, transactionsMax);
        m_balances.push_back(std::move(balance));
    }

    void takeEntry(const Element &entry)
    {
        if (m_part.currency == numira::Currency() && entry.child("Amt"))
            m_part.currency = internal::currencyOf(*entry.child("Amt"));
        if (!internal::isBooked(entry)) {
            ++m_part.pending;
            return;
        }
        m_part.entries.push_back(internal::entryOf(entry, m_part.currency));
        m_count.add(m_part.entries.back());
    }

    /// The first balance of this kind by its day, or the last one. Banks also tell balances in
    /// other currencies.
    [[nodiscard]] std::optional<ToldBalance> balanceOf(QStringView kind, bool isLast) const
    {
        std::optional<ToldBalance> found;
        for (const Element &balance : m_balances) {
            const Element *amount = balance.child("Amt");
            if (balance.text({"Tp", "CdOrPrtry", "Cd"}) != kind || !amount ||
                amount->value.isEmpty() || internal::currencyOf(*amount) != m_part.currency)
                continue;
            const QDate day = internal::dayOf(balance, "Dt");
            if (!found || (isLast ? found->day < day : day < found->day))
                found = {amount->place, internal::signedAmount(balance, m_part.currency), day};
        }
        return found;
    }

    const BankFileOptions &m_options;
    internal::EntryCount &m_count;
    StatementPart m_part;
    std::vector<Element> m_balances;
};

} // namespace

std::vector<Statement> readCamt(const QByteArray &bytes, const QString &file,
                                const BankFileOptions &options)
{
    const QString encoding =
        options.encoding.value_or(internal::declaredEncoding(bytes, qsizetype{200}));
    CamtTree tree(decoded(bytes, file, encoding), file);
    internal::EntryCount count;
    std::vector<StatementPart> parts;
    while (tree.nextStatement()) {
        count.addPart(tree.place());
        StatementTaker taker(options, count);
        while (auto element = tree.nextElement())
            taker.take(std::move(*element));
        parts.push_back(taker.finish());
    }
    if (parts.empty())
        throw tree.isCamt() ? faults::noStatement({file, 0}) : faults::notCamt({file, 0});
    if (tree.goesOn())
        parts.back().goesOn = tree.goesOn();
    return internal::joinedStatements(std::move(parts));
}

} // namespace kiv::interchange
