// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/camt_entry.h"

#include "interchange/internal/faults.h"
#include "interchange/internal/statement_faults.h"
#include "interchange/internal/statement_parts.h"
#include "interchange/written_values.h"

#include <algorithm>

namespace kiv::interchange::internal {

namespace {

/// Longer lists of a batch's payees are cut.
constexpr qsizetype namesMax = 200;

QString withoutRepeats(QStringList texts)
{
    texts.removeAll(QString());
    texts.removeDuplicates();
    return texts.join(u' ');
}

std::vector<const Element *> detailsOf(const Element &entry)
{
    std::vector<const Element *> details;
    for (const Element &list : entry.children) {
        for (const Element &payment : list.children) {
            if (list.tag == u"NtryDtls" && payment.tag == u"TxDtls")
                details.push_back(&payment);
        }
    }
    return details;
}

/// The other side of a payment. A reversal keeps the parties of the payment that it undoes.
QString payeeOf(const Element &payment, bool cameFromDebtor)
{
    for (const char *party :
         {cameFromDebtor ? "Dbtr" : "Cdtr", cameFromDebtor ? "UltmtDbtr" : "UltmtCdtr"}) {
        for (const QString &name : {payment.text({"RltdPties", party, "Nm"}),
                                    payment.text({"RltdPties", party, "Pty", "Nm"})}) {
            if (!name.isEmpty())
                return name;
        }
    }
    return {};
}

/// What the payer wrote; else references, else what the bank says.
QString textOf(const Element &payment)
{
    QStringList written;
    QStringList references;
    for (const Element &information : payment.children) {
        for (const Element &text : information.children) {
            if (information.tag == u"RmtInf" && text.tag == u"Ustrd")
                written += text.value;
            else if (information.tag == u"RmtInf")
                references += {text.text({"CdtrRefInf", "Ref"}), text.text("AddtlRmtInf")};
        }
    }
    for (const QStringList &texts : {written, references}) {
        if (const QString text = withoutRepeats(texts); !text.isEmpty())
            return text;
    }
    return payment.text("AddtlTxInf");
}

/// The payees of a batch.
QString namesOf(const std::vector<const Element *> &details, bool cameFromDebtor)
{
    QStringList names;
    qsizetype length = 0;
    for (const Element *payment : details) {
        const QString name = payeeOf(*payment, cameFromDebtor);
        if (name.isEmpty() || names.contains(name))
            continue;
        length += name.size() + 2;
        if (length > namesMax) {
            names += QStringLiteral("…");
            break;
        }
        names += name;
    }
    return names.join(QStringLiteral(", "));
}

/// What the bank itself calls the entry. A payer's reference (EndToEndId) is often the same
/// each time.
QString idOf(const Element &entry, const std::vector<const Element *> &details)
{
    QStringList references{entry.text("AcctSvcrRef")};
    if (details.size() == 1)
        references +=
            {details[0]->text({"Refs", "AcctSvcrRef"}), details[0]->text({"Refs", "TxId"})};
    const auto found = std::ranges::find_if(references, &identifies);
    return found == references.end() ? QString() : *found;
}

} // namespace

numira::Currency currencyOf(const QString &code, const Place &place)
{
    const auto currency = readCurrency(code, numira::Currency());
    if (!currency || code.size() != 3)
        throw faults::notACurrency(place, code);
    return *currency;
}

numira::Currency currencyOf(const Element &amount)
{
    return currencyOf(amount.text("Ccy"), amount.place);
}

bool isBooked(const Element &entry)
{
    const Element *status = entry.child("Sts");
    const QString word = !status                    ? QString()
                         : status->children.empty() ? status->value
                                                    : status->text("Cd");
    if (word == u"BOOK")
        return true;
    if (word == u"PDNG" || word == u"INFO" || word == u"FUTR")
        return false;
    throw faults::missingValue(entry.place, QStringLiteral("Sts"));
}

numira::Money signedAmount(const Element &element, const numira::Currency &currency)
{
    const Element *amount = element.child("Amt");
    if (!amount || amount->value.isEmpty())
        throw faults::missingValue(element.place, QStringLiteral("Amt"));
    requireCurrency(currencyOf(*amount), currency, amount->place);
    // Neither signs nor groups of digits are allowed.
    if (!std::ranges::all_of(amount->value, [](QChar c) { return c == u'.' || c.isDigit(); }))
        throw faults::notANumber(amount->place, amount->value);
    const numira::Money money =
        statementAmount(amount->value, currency, DecimalMark::Point, amount->place);
    const QString direction = element.text("CdtDbtInd");
    if (direction != u"CRDT" && direction != u"DBIT")
        throw faults::missingValue(element.place, QStringLiteral("CdtDbtInd"));
    return direction == u"DBIT" ? -money : money;
}

QDate dayOf(const Element &element, const char *tag)
{
    const Element *date = element.child(tag);
    const QString text = !date                        ? QString()
                         : date->text("Dt").isEmpty() ? date->text("DtTm")
                                                      : date->text("Dt");
    if (text.isEmpty())
        return {};
    const auto day = DateFormat().read(QStringView(text).left(10));
    if (!day)
        throw faults::notADate(date->place, text, DateFormat().text());
    return *day;
}

StatementEntry entryOf(const Element &entry, const numira::Currency &currency)
{
    StatementEntry made{entry.place, dayOf(entry, "BookgDt"), signedAmount(entry, currency)};
    made.valueDate = dayOf(entry, "ValDt");
    if (!made.date.isValid())
        made.date = made.valueDate;
    if (!made.date.isValid())
        throw faults::missingDate(entry.place);
    const auto details = detailsOf(entry);
    const QString reversal = entry.text("RvslInd");
    const bool isReversal = reversal == u"true" || reversal == u"1";
    const bool cameFromDebtor = (entry.text("CdtDbtInd") == u"CRDT") != isReversal;
    if (details.size() == 1) {
        made.payee = payeeOf(*details[0], cameFromDebtor);
        made.text = textOf(*details[0]);
    }
    if (made.text.isEmpty())
        made.text = entry.text("AddtlNtryInf");
    if (made.text.isEmpty() && details.size() > 1)
        made.text = namesOf(details, cameFromDebtor);
    made.bankId = idOf(entry, details);
    return made;
}

} // namespace kiv::interchange::internal
