// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigator_requests.h"

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>

namespace kiv::test {

using namespace accounting;
using namespace banking;
using namespace budgeting;
using navigation::ConfigurationData;
using namespace numira;

namespace {

/// The values that arguments stand for.
struct Read {
    using Text = const QString &;

    static QStringList parts(const char *pattern, Text text)
    {
        const auto whole = QRegularExpression::anchoredPattern(QString::fromLatin1(pattern));
        const auto match = QRegularExpression(whole).match(text);
        if (!match.hasMatch())
            qFatal("'%s' does not fit '%s'", qPrintable(text), pattern);
        QStringList captured;
        for (int group = 0; group < 8; ++group)
            captured.append(match.captured(group));
        return captured;
    }
    static QStringList list(Text text, QChar between)
    {
        return text.split(between, Qt::SkipEmptyParts);
    }
    /// The value of this place in the list, or of this number.
    template <typename Enum>
    static Enum named(const char *names, Text text)
    {
        const auto place = QString::fromLatin1(names).split(u',').indexOf(text);
        return Enum(place < 0 ? text.toInt() : int(place));
    }
    template <typename One>
    static std::set<One> set(Text text, One (*one)(Text))
    {
        std::set<One> all;
        for (const QString &word : list(text, u' '))
            all.insert(one(word));
        return all;
    }

    static bool flag(Text text) { return text == u"true"; }
    static QString string(Text text) { return text; }
    static QDate date(Text text) { return QDate::fromString(text, Qt::ISODate); }
    static navigation::GuiElementIdentifier view(Text) { return element(); }
    static navigation::AllowSubAccounts subAccounts(Text text)
    {
        return navigation::AllowSubAccounts(flag(text));
    }
    static navigation::CurrencyDisplayOptions display(Text text)
    {
        return navigation::CurrencyDisplayOptions(text.toInt());
    }
    static navigation::BudgetWizardTemplates household(Text text)
    {
        return named<navigation::BudgetWizardTemplates>("none,child,teenager,single", text);
    }

    static Currency currency(Text text) { return numira::toCurrency(text.toStdString()); }
    static std::set<Currency> currencies(Text text) { return set(text, &currency); }
    /// "10.50", or "10.50 EUR"; nothing is no dollar.
    static Money money(Text text)
    {
        const QStringList found = parts("([\\d.]*) ?(\\w*)", text);
        return test::money(found[2].isEmpty() ? "USD" : qPrintable(found[2]),
                           found[1].isEmpty() ? "0" : qPrintable(found[1]));
    }
    static AccountNumber account(Text text) { return no(text.toUInt()); }
    /// "4 Savings under 1".
    static AccountCode code(Text text)
    {
        const QStringList found = parts("(\\d+) ?(.*?)( under (\\d+))?", text);
        return {account(found[1]), found[2],
                found[4].isEmpty() ? std::nullopt : std::optional(account(found[4]))};
    }
    /// "20 Vault: 1.50", an asset.
    static accounting::Account newAccount(Text text)
    {
        const QStringList found = parts("(.*): (.*)", text);
        return {accounting::AccountTypes::Asset, code(found[1]), money(found[2]), false};
    }
    static TransactionNumber number(Text text) { return txn(text.toUShort()); }
    static std::set<TransactionNumber> numbers(Text text) { return set(text, &number); }
    /// "8 from 1: 12.34 #40": debit, credit, amount, and a number if it has one.
    static accounting::Transaction transaction(Text text)
    {
        const QStringList found = parts("(\\d+) from (\\d+): ([^#]*?)( #(\\d+))?", text);
        const auto transaction = transfer(account(found[1]), account(found[2]), money(found[3]));
        return found[5].isEmpty() ? transaction : transaction.withNumber(number(found[5]));
    }

    static banking::BankName bank(Text text) { return banking::BankName(text); }
    static BankAccountTypes kind(Text text)
    {
        return named<BankAccountTypes>("unknown,checking,savings,card,loan,goal,credit,market,cash",
                                       text);
    }
    /// "First 1 checking".
    static BankAccount bankAccount(Text text)
    {
        const QStringList found = parts("(.*) (\\d+) (\\w+)", text);
        return {bank(found[1]), {account(found[2]), kind(found[3])}};
    }
    static std::optional<BankAccount> optionalAccount(Text text)
    {
        return text.isEmpty() ? std::nullopt : std::optional(bankAccount(text));
    }
    /// "First: 1 checking + 4 savings", and "closed" behind a name.
    static banking::Bank wholeBank(Text text)
    {
        const QStringList found = parts("(\\S*?)( closed)?(: (.*))?", text);
        banking::Bank::Accounts accounts;
        for (const QString &one : list(found[4], u'+')) {
            const auto account = bankAccount(QStringLiteral("- ") + one.trimmed()).account;
            accounts.emplace(account.number, account.type);
        }
        return {bank(found[1]), accounts, !found[2].isEmpty()};
    }

    static BudgetItemTypes type(Text text)
    {
        return named<BudgetItemTypes>("none,bill,debt,goal,nontrack,wage", text);
    }
    /// With "_" for blanks.
    static budgeting::BudgetSource source(Text text)
    {
        return budgeting::BudgetSource(QString(text).replace(u'_', u' '));
    }
    /// "bill Rent".
    static BudgetItemIdentifier item(Text text)
    {
        return {type(text.section(u' ', 0, 0)), source(text.section(u' ', 1))};
    }
    static tagging::BudgetItemTags::ItemTags tags(Text text)
    {
        return tagging::BudgetItemTags::ItemTags(item(text));
    }
    /// "bill Rent", on the last of January.
    static budgeting::BudgetItemDueIdentifier due(Text text)
    {
        const BudgetItemIdentifier one = item(text);
        return {one.type, one.source, day("2026-01-31")};
    }
    /// "bill Rent 10.005".
    static budgeting::BudgetItemAmountDue amountDue(Text text)
    {
        return {due(text.section(u' ', 0, 1)), money(text.section(u' ', 2))};
    }
    /// "bill Rent 11 EUR"; without an amount it is ten dollars.
    static std::shared_ptr<BudgetedMoney> wholeItem(Text text)
    {
        const QString amount = text.section(u' ', 2);
        const BudgetItemIdentifier id = item(text.section(u' ', 0, 1));
        return budgeting::visitItemClass(
            id.type, [] { return std::logic_error("no kind"); },
            [&]<typename Item>(std::type_identity<Item>) -> std::shared_ptr<BudgetedMoney> {
                return std::make_shared<Item>(
                    test::item<Item>(qUtf8Printable(id.source.name()),
                                     amount.isEmpty() ? usd("10") : money(amount)));
            });
    }

    /// "bill Rent +1 & bill Tax -2", or the same with numbers of accounts.
    template <typename Key>
    static surveying::IndexedIncreaseDecreases<Key> changes(Text text, Key (*key)(Text))
    {
        std::map<Key, Money> increases;
        std::map<Key, Money> decreases;
        for (const QString &one : list(text, u'&')) {
            const QStringList found = parts(" ?(.*) ([+-])(\\S+) ?", one);
            (found[2] == u"+" ? increases : decreases).emplace(key(found[1]), money(found[3]));
        }
        return {increases, decreases};
    }
    static surveying::IndexedIncreaseDecreases<BudgetItemIdentifier> itemChanges(Text text)
    {
        return changes(text, &item);
    }
    static surveying::IndexedIncreaseDecreases<AccountNumber> accountChanges(Text text)
    {
        return changes(text, &account);
    }
    /// "goal Trip 7".
    static surveying::Distribution distribution(Text text)
    {
        if (text.isEmpty())
            return {};
        return {{item(text.section(u' ', 0, 1)),
                 {money(text.section(u' ', 2)), day("2026-01-31"), usd("100")}}};
    }
    /// "2": euros for a dollar.
    static conversion::ConversionMap rates(Text text)
    {
        if (text.isEmpty())
            return {};
        return {currency(QStringLiteral("USD")),
                QDateTime::currentDateTimeUtc(),
                {{currency(QStringLiteral("EUR")), numira::FloatingPoint(text.toStdString())}}};
    }
    /// "hours 30 usable USD+EUR": what differs from what is set at first.
    static ConfigurationData configuration(Text text)
    {
        const auto word = [&, words = text.split(u' ')](const char *name, const char *usual) {
            const auto place = words.indexOf(QString::fromLatin1(name));
            return place < 0 ? QString::fromLatin1(usual) : words.value(place + 1);
        };
        return {std::chrono::hours(word("hours", "40").toInt()),
                std::chrono::days(5),
                currency(QStringLiteral("USD")),
                display(word("display", "1")),
                currencies(word("usable", "EUR+USD").replace(u'+', u' ')),
                foundation::Percentage(word("window", "2.75").toDouble(), 6),
                std::chrono::days(14),
                {tagging::Tag(QStringLiteral("home"))}};
    }
};

using Value = std::shared_ptr<void>;
using Reader = std::function<Value(const QString &)>;

template <typename... Types>
std::map<int, Reader> readersOf(Types (*...read)(const QString &))
{
    return {{QMetaType::fromType<Types>().id(),
             [read](const QString &text) { return std::make_shared<Types>(read(text)); }}...,
            {QMetaType::fromType<BudgetedMoney>().id(), &Read::wholeItem}};
}

Value read(const QMetaType &type, const QString &text)
{
    static const std::map<int, Reader> readers =
        readersOf(&Read::flag, &Read::string, &Read::date, &Read::view, &Read::subAccounts,
                  &Read::display, &Read::household, &Read::currency, &Read::currencies,
                  &Read::money, &Read::account, &Read::code, &Read::newAccount, &Read::number,
                  &Read::numbers, &Read::transaction, &Read::bank, &Read::kind, &Read::bankAccount,
                  &Read::optionalAccount, &Read::wholeBank, &Read::type, &Read::source, &Read::item,
                  &Read::tags, &Read::due, &Read::amountDue, &Read::itemChanges,
                  &Read::accountChanges, &Read::distribution, &Read::rates, &Read::configuration);
    return readers.at(type.id())(text);
}

/// The slot with its arguments: "BankRenamed(First, Prime)".
Request slotOf(const QString &text)
{
    const QStringList found = Read::parts("(\\w+)(\\((.*)\\))?", text);
    if (found[1] == u"clear")
        return [](Navigator &n) { n.clear(); };
    QStringList arguments = found[3].split(QStringLiteral(", "));
    if (found[1] == u"Added" || found[1] == u"Updated") {
        // The item, and if they are not the item's own: the bank account, tags and kind.
        const QString item = arguments[0].section(u' ', 0, 1);
        const QString tags = arguments.value(2, item);
        arguments = {arguments.value(3, item.section(u' ', 0, 0)), arguments[0], arguments.value(1),
                     tags};
    }
    const QMetaObject &meta = Navigator::staticMetaObject;
    for (int index = meta.methodOffset(); index < meta.methodCount(); ++index) {
        const QMetaMethod method = meta.method(index);
        if (method.name() != "on" + found[1].toLatin1() && method.name() != found[1].toLatin1())
            continue;
        std::vector<Value> values;
        for (int i = 0; i < method.parameterCount(); ++i) {
            const bool isView = method.parameterTypeName(i).endsWith("GuiElementIdentifier");
            values.push_back(read(method.parameterMetaType(i), isView || arguments.isEmpty()
                                                                   ? QString()
                                                                   : arguments.takeFirst()));
        }
        std::vector<void *> pointers{nullptr};
        for (const Value &value : values)
            pointers.push_back(value.get());
        return [index, values, pointers](Navigator &n) mutable {
            n.qt_metacall(QMetaObject::InvokeMetaMethod, index, pointers.data());
        };
    }
    qFatal("No slot is called '%s'", qPrintable(found[1]));
}

} // namespace

Request requestOf(const QString &text)
{
    std::vector<Request> requests;
    for (const QString &one : text.split(QStringLiteral("; "), Qt::SkipEmptyParts))
        requests.push_back(slotOf(one));
    return [requests](Navigator &n) {
        for (const Request &request : requests)
            request(n);
    };
}

const std::vector<Situation> &situations()
{
    static const std::vector<Situation> all = [] {
        QFile file(QFINDTESTDATA("navigator_requests.txt"));
        if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
            qFatal("There is no navigator_requests.txt.");
        std::vector<Situation> read;
        QByteArray topic;
        // What is too long for a line goes on in the next.
        for (const QByteArray &line : file.readAll().replace("\n    ", " ").split('\n')) {
            const QString row = QString::fromUtf8(line);
            const QStringList cells = row.split(QStringLiteral(" | "));
            if (row.startsWith(u'#'))
                topic = row.mid(2).toUtf8() + ": ";
            else if (!row.isEmpty())
                read.push_back({topic + cells[0].toUtf8(), cells.value(1),
                                cells.value(2).split(QStringLiteral(" / "), Qt::SkipEmptyParts)});
        }
        return read;
    }();
    return all;
}

Rows allRequests()
{
    Rows all;
    for (const Situation &one : situations())
        all.push_back({one.name, requestOf(one.request)});
    return all;
}

} // namespace kiv::test
