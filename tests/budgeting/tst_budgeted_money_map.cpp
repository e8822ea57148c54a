// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "budgeting/budget.h"

#include "support/budgeting.h"

using namespace kiv::budgeting;
using namespace kiv::test;

namespace {

/// What a request did to a map.
struct Outcome {
    QString refusal;
    QString refusedSource;
    bool isUnchanged = false;
    QString items; ///< "key=source amount", in order
};
using Request = std::function<Outcome()>;

template <typename Item>
QString listed(const BudgetedMoneyMap<Item> &map)
{
    QStringList items;
    for (const auto &[key, item] : map) {
        items += QStringLiteral("%1=%2 %3")
                     .arg(key.name(), item.source().name(),
                          QString::fromStdString(toText(item.amount())));
    }
    return items.join(u", "_qs);
}

/// Runs the request on a map of two items, A with 1 USD and B% with 2 EUR.
template <typename Item>
Request onTwoItems(std::function<void(BudgetedMoneyMap<Item> &)> request)
{
    return [request] {
        std::remove_reference_t<decltype(Budget().items<Item>())> map;
        map.add(item<Item>("B%", money("EUR", "2")));
        map.add(item<Item>("A", usd("1")));
        const auto before = map;
        Outcome outcome;
        try {
            request(map);
        } catch (const BudgetItemError &error) {
            outcome.refusal = error.message();
            outcome.refusedSource = error.source().name();
        }
        outcome.isUnchanged = map == before;
        outcome.items = listed(map);
        return outcome;
    };
}

} // namespace

Q_DECLARE_METATYPE(Request)

class tst_BudgetedMoneyMap : public QObject {
    Q_OBJECT

private slots:
    void requestsAreDoneOrRefused_data()
    {
        QTest::addColumn<Request>("request");
        QTest::addColumn<QString>("items");
        QTest::addColumn<QString>("refusal");
        QTest::addColumn<QString>("refusedSource");
        forEachItemClass([]<typename Item>(std::type_identity<Item>) { addRows<Item>(); });
    }

    void requestsAreDoneOrRefused()
    {
        QFETCH(Request, request);
        QFETCH(QString, items);
        QFETCH(QString, refusal);
        QFETCH(QString, refusedSource);
        const Outcome outcome = request();
        QCOMPARE(outcome.refusal, refusal);
        QCOMPARE(outcome.refusedSource, refusedSource);
        QCOMPARE(outcome.items, items);
        QCOMPARE(outcome.isUnchanged, items == unchanged);
    }

private:
    static inline const QString unchanged = u"A=A 1.00, B%=B% 2.00"_qs;

    template <typename Item>
    static void addRows()
    {
        using Map = BudgetedMoneyMap<Item>;
        const auto row = [](const char *name, std::function<void(Map &)> request, const char *items,
                            const char *refusal = "", const char *refusedSource = "") {
            QTest::addRow("%s: %s", ItemTraits<Item>::word, name)
                << onTwoItems<Item>(std::move(request)) << QString::fromLatin1(items)
                << QString::fromLatin1(refusal) << QString::fromLatin1(refusedSource);
        };
        const QByteArray same = unchanged.toLatin1();

        row(
            "add", [](Map &map) { map.add(item<Item>("a", usd("3"))); },
            "A=A 1.00, B%=B% 2.00, a=a 3.00");
        row(
            "add without a source", [](Map &map) { map.add(item<Item>("")); }, same,
            "The new budgeted money item source cannot be empty.");
        row(
            "add without a source where one is",
            [](Map &map) {
                map.rename(source("A"), source(""));
                map.add(item<Item>(""));
            },
            "= 1.00, B%=B% 2.00", "The new budgeted money item source cannot be empty.");
        row(
            "add a source in use", [](Map &map) { map.add(item<Item>("A", usd("3"))); }, same,
            "The new budgeted money item source already exists.", "A");

        row(
            "remove", [](Map &map) { map.remove(source("A")); }, "B%=B% 2.00");
        row(
            "remove an unknown one", [](Map &map) { map.remove(source("a")); }, same,
            "Failed to remove the budgeted money item as it does not exist.", "a");

        row(
            "update", [](Map &map) { map.update(item<Item>("A", usd("3"))); },
            "A=A 3.00, B%=B% 2.00");
        row(
            "update the currency", [](Map &map) { map.update(item<Item>("A", money("EUR", "3"))); },
            "A=A 3.00, B%=B% 2.00");
        row(
            "update an unknown one", [](Map &map) { map.update(item<Item>("a")); }, same,
            "Cannot update the budgeted money item as it does not exist.", "a");
        row(
            "update the currency of a nameless one",
            [](Map &map) {
                map.rename(source("A"), source(""));
                map.update(item<Item>("", money("EUR", "3")));
            },
            "B%=B% 2.00", "The new budgeted money item source cannot be empty.");

        row(
            "rename", [](Map &map) { map.rename(source("A"), source("C")); },
            "B%=B% 2.00, C=C 1.00");
        row(
            "rename to nothing", [](Map &map) { map.rename(source("A"), source("")); },
            "= 1.00, B%=B% 2.00");
        row(
            "rename an unknown one", [](Map &map) { map.rename(source("a"), source("A")); }, same,
            "Cannot rename the budgeted money item source as it does not exist.", "a");
        row(
            "rename to a source in use", [](Map &map) { map.rename(source("A"), source("B%")); },
            same,
            "Cannot rename the budgeted money item source, as the new source, B%, already exists.",
            "A");
        row(
            "rename to its own source", [](Map &map) { map.rename(source("A"), source("A")); },
            same,
            "Cannot rename the budgeted money item source, as the new source, A, already exists.",
            "A");
    }
};

static const kiv::test::Suite<tst_BudgetedMoneyMap> suite;
#include "tst_budgeted_money_map.moc"
