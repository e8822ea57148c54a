// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/accounting.h"
#include "support/refusal.h"

#include "accounting/ledger_replay.h"
#include "accounting/number_handout.h"

#include "numira/error.h"
#include "numira/library.h"

#include <QtCore/QFile>

/// A ledger to ask in words, what it tells of itself, and what holds of every ledger.
namespace kiv::test {

using namespace kiv::accounting;

/// The rate from dollars into a currency, as tests set it. Yen have none, for a
/// reason of the converter's own; other currencies without an entry have none
/// in the money library's words.
inline std::map<std::string, numira::FloatingPoint> ratesFromUsd;

inline numira::FloatingPoint rateFromUsd(const numira::Currency &currency)
{
    if (currency == numira::toCurrency("JPY"))
        throw foundation::Error(QStringLiteral("No yen today."));
    const auto found = ratesFromUsd.find(numira::toStdString(currency));
    if (found == ratesFromUsd.end())
        throw numira::ConversionError("no rate");
    return found->second;
}

inline void installRates()
{
    ratesFromUsd = {{"USD", 1}, {"EUR", numira::FloatingPoint("0.5")}};
    numira::setUpLibrary(
        [](const auto &from, const auto &to) { return rateFromUsd(to) / rateFromUsd(from); },
        "en_US", numira::ShouldAllowFallback::Yes);
}

/// A small ledger with one of each, made anew and without any sharing at each
/// call.
struct Book {
    GeneralLedger ledger;
    SequentialAccountNumberGenerator generator;

    Book()
    {
        using enum AccountTypes;
        installRates();
        addAccount(ledger, generator, Asset, {}, "Bank");                         // 1
        addAccount(ledger, generator, Asset, {}, "Checking", no(1), usd("100"));  // 2, 3
        addAccount(ledger, generator, Expense, {}, "Rent");                       // 4
        addAccount(ledger, generator, Income, {}, "Wage");                        // 5
        addAccount(ledger, generator, Liability, {}, "Card");                     // 6
        addAccount(ledger, generator, Expense, {}, "Old");                        // 7
        addAccount(ledger, generator, Asset, {}, "Envelope", no(2));              // 8
        addAccount(ledger, generator, Asset, {}, "Euros", {}, money("EUR", "0")); // 9
        ledger.post(transfer(no(2), no(5), usd("2500"), day("2026-01-02")));      // #2
        ledger.post({day("2026-01-03"), no(4), no(2), usd("800"), QStringLiteral("January")}); // #3
        ledger.refund(txn(3), usd("100"), day("2026-01-04"));                                  // #4
        ledger.reconcile(ledger.post(transfer(no(4), no(6), usd("50"))), no(6));               // #5
        ledger.post(transfer(no(7), no(2), usd("10")));                                        // #6
        ledger.post(transfer(no(9), no(2), usd("10")));                                        // #7
        ledger.close(no(7));
    }
};

/// The number that the next account would get.
inline AccountNumber nextAccountNumber(Book &book)
{
    return NumberHandout(book.generator, book.ledger).number();
}

/// The words of a request, as ledger_cases.txt explains them.
class Words {
public:
    explicit Words(const QString &text) : m_words(text.split(u' ')) {}

    [[nodiscard]] bool isEmpty() const { return m_words.isEmpty(); }
    [[nodiscard]] bool isTransactionNext() const { return m_words.value(0).startsWith(u'#'); }
    QString next() { return m_words.isEmpty() ? QString() : m_words.takeFirst(); }
    std::uint32_t number() { return next().remove(u'#').toUInt(); }
    AccountNumber account() { return no(number()); }
    TransactionNumber transaction() { return txn(static_cast<std::uint16_t>(number())); }
    numira::Currency currency() { return numira::toCurrency(next().toStdString()); }
    numira::Money amount()
    {
        const QString word = next();
        const qsizetype code = word.back().isLetter() ? 3 : 0;
        return {numira::toCurrency(code > 0 ? word.right(code).toStdString() : "USD"),
                numira::Decimal(1).times(word.chopped(code).toStdString())};
    }
    AccountTypes type()
    {
        const QString word = next();
        int type = 0;
        while (toQString(static_cast<AccountTypes>(type)) != word)
            ++type;
        return static_cast<AccountTypes>(type);
    }
    [[nodiscard]] bool has(const char *word) const { return m_words.contains(QLatin1String(word)); }
    /// The word behind this one.
    [[nodiscard]] std::optional<QString> behind(const char *word) const
    {
        if (!has(word))
            return std::nullopt;
        return m_words.value(m_words.indexOf(QLatin1String(word)) + 1);
    }
    [[nodiscard]] AccountCode code(AccountNumber number, const QString &name) const
    {
        const auto parent = behind("under");
        return {number, behind("named").value_or(name),
                parent ? std::optional(no(parent->toUInt())) : std::nullopt};
    }
    [[nodiscard]] QDate day(const QString &usual) const
    {
        return QDate::fromString(behind("on").value_or(usual), Qt::ISODate);
    }
    /// A transaction, whose number the ledger does not take.
    Transaction entry(AccountNumber debit)
    {
        const AccountNumber credit = account();
        const numira::Money entered = amount();
        const auto status =
            has("cleared") ? TransactionStatuses::Cleared : TransactionStatuses::None;
        return {day(u"2026-01-15"_qs), debit, credit, entered, behind("for"), txn(500), status};
    }

private:
    QStringList m_words;
};

inline void addAccount(Book &book, Words words)
{
    const QString first = words.next();
    std::optional<NumberHandout> handout;
    if (first == u"next"_qs)
        handout.emplace(book.generator, book.ledger);
    const AccountNumber number = handout ? handout->number() : no(first.toUInt());
    const AccountTypes type = words.type();
    const numira::Money opening = words.amount();
    book.ledger.add({type, words.code(number, u"New%1"_qs), opening, words.has("closed")},
                    book.generator, words.day(u"2026-01-05"_qs));
    if (handout)
        handout->keep();
}

/// Makes one request. Throws what the ledger throws.
inline void requestOne(Book &book, Words words)
{
    GeneralLedger &ledger = book.ledger;
    const QString verb = words.next();
    if (verb == u"add"_qs)
        return addAccount(book, words);
    if (verb == u"no-rates"_qs)
        return ratesFromUsd.clear();
    if (verb == u"rate"_qs) {
        const std::string currency = words.next().toStdString();
        ratesFromUsd[currency] = numira::FloatingPoint(words.next().toStdString());
        return;
    }
    if (verb == u"chain"_qs) {
        for (int number = 101; number <= 199; ++number)
            addAccount(book, Words(u"%1 asset 0"_qs.arg(number) +
                                   (number > 101 ? u" under %1"_qs.arg(number - 1) : QString())));
        return;
    }
    const bool isTransaction = words.isTransactionNext();
    const std::uint32_t first = words.number();
    const AccountNumber account = no(first);
    const TransactionNumber number = txn(static_cast<std::uint16_t>(first));
    const bool areMore = words.isTransactionNext();
    if (verb == u"recode"_qs)
        ledger.recode({account, {}}, words.code(words.account(), u"Moved%2"_qs));
    else if (verb == u"convert"_qs)
        ledger.convertTo(account, words.currency(), book.generator);
    else if (verb == u"open"_qs)
        ledger.open({account, {}});
    else if (verb == u"close"_qs)
        ledger.close(account);
    else if (verb == u"remove"_qs)
        isTransaction ? ledger.remove(number) : ledger.remove(account);
    else if (verb == u"post"_qs)
        ledger.post(words.entry(account));
    else if (verb == u"repost"_qs)
        ledger.repost(number, words.entry(words.account()));
    else if (verb == u"refund"_qs)
        ledger.refund(number, words.amount(), day("2026-02-01"));
    else if (verb == u"clear"_qs)
        words.isEmpty() ? ledger.clear(number) : ledger.clear(number, words.account());
    else if (verb == u"unreconcile"_qs)
        ledger.unreconcile(number);
    else if (verb == u"reconcile"_qs && areMore)
        ledger.reconcile(std::set{number, words.transaction()});
    else if (verb == u"reconcile"_qs)
        words.isEmpty() ? ledger.reconcile(number) : ledger.reconcile(number, words.account());
    else
        throw std::invalid_argument("No such request: " + verb.toStdString());
}

/// Makes requests that stand behind each other with "; ".
inline void request(Book &book, const QString &text)
{
    for (const QString &one : text.split(u"; "_qs, Qt::SkipEmptyParts))
        requestOne(book, Words(one));
}

/// A line of ledger_cases.txt: what was asked before, the request, and its answer.
struct Row {
    QString text;
    QString before;
    QString request;
    QString answer;
};

/// The rows behind the line that begins so.
inline std::vector<Row> rows(const char *section)
{
    QFile file(QStringLiteral(KIV_LEDGER_CASES));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("The cases cannot be read.");
    std::vector<Row> all;
    bool isInside = false;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        const QStringList fields = line.split(u'|');
        if (line.startsWith(u"=="_qs))
            isInside = line.startsWith(QLatin1String(section));
        else if (isInside && !line.isEmpty() && !line.startsWith(u'#'))
            all.push_back(
                {line, fields.at(0).trimmed(), fields.at(1).trimmed(), fields.at(2).trimmed()});
    }
    if (all.empty())
        qFatal("There are no such cases.");
    return all;
}

/// What the requests were refused with; empty when they were not.
inline QString refusal(Book &book, const QString &text)
{
    return refusalOf([&] { request(book, text); });
}

/// For each account ("2") and transaction ("#3") all that the ledger answers of it.
using Facts = std::map<QString, QStringList>;

inline QString told(const numira::Money &amount)
{
    return QString::fromStdString(toText(amount) + (amount.code() == numira::toCurrency("USD")
                                                        ? std::string()
                                                        : toStdString(amount.code())));
}

inline Facts facts(const GeneralLedger &ledger)
{
    Facts all;
    const auto known = [](const char *what, const auto &number) {
        return number ? QString::fromLatin1(what) + presentationText(*number) : QString();
    };
    for (const AccountCode &code : ledger.accountCodes()) {
        const LedgerAccount account = ledger.ledger(code);
        all[presentationText(code.number())] = {toQString(account.type()),
                                                code.name(),
                                                known("under ", code.parent()),
                                                told(account.balance()),
                                                account.isClosed() ? u"closed"_qs : QString(),
                                                known("by #", account.openedBy()),
                                                account.holdsOpenings() ? u"openings"_qs
                                                                        : QString()};
    }
    for (const Transaction &entry : ledger.transactions()) {
        const auto side = [](const AccountCode &code, const numira::Money &amount,
                             TransactionStatuses status) {
            return presentationText(code.number()) + u':' + told(amount) +
                   (status == TransactionStatuses::None ? QString() : u' ' + toQString(status));
        };
        const numira::Money left = ledger.refundable(*entry.number());
        all[known("#", entry.number())] = {
            entry.occurredOn().toString(Qt::ISODate),
            told(entry.amount()),
            side(entry.debiting(), entry.debitAmount(), entry.debitStatus()),
            side(entry.crediting(), entry.creditAmount(), entry.creditStatus()),
            known("of #", entry.refundOf()),
            left == entry.amount() ? QString() : u"left "_qs + told(left),
            entry.description() ? u"'%1'"_qs.arg(*entry.description()) : QString()};
    }
    return all;
}

/// The facts that are new or others than before, or "not" there any more; what went is
/// "gone".
inline QString difference(const GeneralLedger &before, const GeneralLedger &after)
{
    const auto old = facts(before);
    const auto now = facts(after);
    QStringList result;
    for (const auto &[name, were] : old) {
        if (!now.contains(name))
            result.append(name + u" gone"_qs);
    }
    for (const auto &[name, are] : now) {
        const auto known = old.find(name);
        QStringList changed;
        for (qsizetype i = 0; i < are.size(); ++i) {
            if (known == old.end() ? !are[i].isEmpty() : are[i] != known->second[i])
                changed.append(are[i].isEmpty() ? u"not "_qs + known->second[i] : are[i]);
        }
        if (!changed.isEmpty())
            result.append(name + u' ' + changed.join(u", "_qs));
    }
    return result.join(u"; "_qs);
}

inline StoredTransaction stored(const Transaction &transaction)
{
    return {transaction.number().value_or(TransactionNumber()),
            transaction.occurredOn(),
            transaction.debiting().number(),
            transaction.crediting().number(),
            transaction.amount(),
            transaction.debitAmount(),
            transaction.creditAmount(),
            transaction.description() ? std::optional<QStringView>(*transaction.description())
                                      : std::nullopt,
            {},
            transaction.debitStatus(),
            transaction.creditStatus(),
            transaction.refundOf()};
}

/// The ledger, built again from what it answers.
inline GeneralLedger rebuilt(const GeneralLedger &ledger)
{
    LedgerReplay replay;
    const std::set<Account> accounts = ledger.accounts();
    std::set<AccountNumber> added;
    while (added.size() < accounts.size()) {
        for (const Account &account : accounts) {
            const auto parent = account.code().parent();
            if (!added.contains(account.code().number()) && (!parent || added.contains(*parent))) {
                replay.addAccount(account.type(), account.code(), account.balance().code(),
                                  ledger.ledger(account.code()).holdsOpenings());
                added.insert(account.code().number());
            }
        }
    }
    StoredTransactions transactions(ledger);
    while (const auto transaction = transactions.next())
        replay.post(*transaction);
    replay.markRefunds();
    for (const Account &account : accounts) {
        const AccountNumber number = account.code().number();
        if (const auto opening = ledger.openingTransaction(number))
            replay.markOpening(number, *opening->number());
        if (account.isClosed())
            replay.close(number);
    }
    return replay.finish();
}

/// Whether what is told of the account follows from the ledger's transactions and the
/// other accounts.
inline bool isTrue(const GeneralLedger &ledger, const Account &account)
{
    const AccountNumber number = account.code().number();
    numira::Money sum(account.balance().code());
    std::vector<Transaction> own;
    for (const Transaction &transaction : ledger.transactions()) {
        const auto found = account.transactions().find(transaction.number().value());
        if (found.has_value() != transaction.involves(number))
            return false;
        if (!found)
            continue;
        own.push_back(transaction);
        const bool isDebited = transaction.debiting() == account.code();
        if (!isDebited && transaction.crediting() != account.code())
            return false;
        if (found->status() != (isDebited ? transaction.debitStatus() : transaction.creditStatus()))
            return false;
        if (isDebited == isDebitNormal(account.type()))
            sum += transaction.amountFor(number);
        else
            sum -= transaction.amountFor(number);
    }
    std::map<OpenStates, std::set<AccountNumber>> children;
    for (const Account &other : ledger.accounts()) {
        if (other.code().parent() == number) {
            children[OpenStates::Either].insert(other.code().number());
            children[other.isClosed() ? OpenStates::Closed : OpenStates::Open].insert(
                other.code().number());
        }
    }
    GeneralLedger copy(ledger);
    try {
        copy.remove(number);
    } catch (const AccountError &) {
    }
    return account.balance() == sum && std::ranges::equal(account.transactions().toSet(), own) &&
           copy.hasLedger(number) != ledger.canRemove(account.code()) &&
           std::ranges::all_of(std::array{OpenStates::Open, OpenStates::Closed, OpenStates::Either},
                               [&](OpenStates states) {
                                   return ledger.lookUpChildren(number, states) == children[states];
                               });
}

/// The account, transaction or "currencies" of which the ledger tells what does not
/// follow from its transactions; nothing when there is none.
inline QString fault(const GeneralLedger &ledger)
{
    std::set<numira::Currency> currencies;
    for (const Account &account : ledger.accounts()) {
        currencies.insert(account.balance().code());
        if (!isTrue(ledger, account))
            return presentationText(account.code());
    }
    for (const Transaction &transaction : ledger.transactions()) {
        const numira::Money &amount = transaction.amount();
        currencies.insert(amount.code());
        numira::Money left = amount;
        for (const Transaction &refund : ledger.transactions()) {
            if (refund.refundOf() == transaction.number())
                left -= refund.amount();
        }
        if (transaction.refundOf())
            left = numira::Money(amount.code());
        if (left < numira::Money(amount.code()) || ledger.refundable(*transaction.number()) != left)
            return u'#' + presentationText(*transaction.number());
    }
    currencies.erase(numira::Currency());
    return currencies == containedCurrencies(ledger) ? QString() : QStringLiteral("currencies");
}

} // namespace kiv::test
