// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "workbench/document/demonstration.h"
#include "workbench/explain/explainer.h"
#include "workbench/requests/budget_view.h"
#include "workbench/requests/exchange_rates.h"
#include "workbench/requests/transactions.h"
#include "workbench/surveys/set_aside.h"

#include "adviser/budget_health.h"
#include "conversion/currency_converter.h"
#include "numira/library.h"
#include "storage/scratch_folder.h"
#include "support/accounting.h"
#include "support/damage.h"
#include "support/message_log.h"
#include "support/surroundings.h"
#include "surveying/survey_rules.h"

using namespace numira;
using namespace workbench;

namespace {

/// What the lines come to, as whoever reads them finds out.
FloatingPoint comesTo(const Explanation &explanation)
{
    const auto number = [](const Money &money) { return FloatingPoint(money.amount().toText()); };
    FloatingPoint sum = 0;
    FloatingPoint whole = 0;
    for (const workbench::ExplainedLine &line : explanation.lines) {
        if (line.role == LineRole::Adds)
            sum += number(*line.amount);
        else if (line.role == LineRole::Times)
            sum *= *line.factor;
        else if (line.role == LineRole::Over)
            sum /= *line.factor;
        else if (line.role == LineRole::Of)
            whole += number(*line.amount);
    }
    return whole == 0 ? sum : sum * 100 / whole;
}

/// Whether it has the figure that is shown elsewhere, and its lines come to that.
bool explains(const Explanation &explanation, const Money &figure)
{
    const std::string made = comesTo(explanation).str(12, std::ios::fixed);
    const Money sum(figure.code(), numira::Decimal::fromText(made));
    return std::get<Money>(explanation.figure) == figure &&
           (figure == figure.rounded() ? sum.rounded() : sum) == figure;
}

/// A made-up household of a day by chance, with rates and converted transactions.
class Household {
public:
    explicit Household(quint32 seed) : m_random(seed)
    {
        m_today = test::day("2025-03-31").addDays(-below(2'000));
        m_document.setKeeping(workbench::Document::Keeping::WithinASecond);
        m_document.createFilled(m_folder.path(u"household.budget"_s), {u"Made"_s, {}, {}},
                                [this] { makeDemonstration(m_document, m_today); });
        for (int count = 5; count > 0; --count)
            m_document.perform({u"Moved"_s, {}, {}}, [this] {
                converted.push_back(workbench::post(
                    m_document.requests(),
                    {m_today, account(u"Travel cash"_s), account(u"Checking"_s),
                     Money(numira::toCurrency(below(2) == 0 ? "EUR" : "USD"), 1 + below(50),
                           static_cast<std::uint16_t>(below(100)))}));
            });
    }
    [[nodiscard]] int below(int count) { return static_cast<int>(m_random.bounded(count)); }
    [[nodiscard]] accounting::AccountNumber account(const QString &name)
    {
        return m_document.requests().accounts().find(name).code().number();
    }
    [[nodiscard]] workbench::Document &document() { return m_document; }
    [[nodiscard]] QDate today() const { return m_today; }

    std::vector<accounting::TransactionNumber> converted;

private:
    QRandomGenerator m_random;
    QDate m_today;
    test::ScratchFolder m_folder;
    workbench::Document m_document{test::surroundings(m_folder.path(u"rates"_s))};
};

} // namespace

class tst_Explain : public QObject {
    Q_OBJECT

private slots:
    void everyExplanationComesToItsFigure()
    {
        const MessageLog quiet;
        const auto leave = qScopeGuard([] {
            conversion::CurrencyConverter::updateCache({});
            numira::setUpLibrary({}, "en_US", numira::ShouldAllowFallback::Yes);
        });
        const numira::Currency usd = numira::toCurrency("USD");
        const numira::Currency eur = numira::toCurrency("EUR");
        for (int run = randomRuns(3); run > 0; --run) {
            const conversion::ConversionMap rates(usd, QDateTime::currentDateTimeUtc(),
                                                  {{eur, FloatingPoint(701 + 97 * run) / 1'000}},
                                                  conversion::RateSource::Typed);
            conversion::CurrencyConverter::updateCache(rates);
            numira::setUpLibrary(
                [rates](const auto &from, const auto &to) { return rates.rate(from, to); }, "en_US",
                numira::ShouldAllowFallback::Yes);
            Household household(static_cast<quint32>(run));
            const workbench::Explainer explainer(household.document(), household.today());
            const storage::BudgetStorage::Data data = household.document().present();

            for (const accounting::Account &account : data.generalLedger.accounts()) {
                const accounting::AccountNumber number = account.code().number();
                QVERIFY(explains(explainer.balance(number), account.balance()));
                const QDate day = household.today().addDays(-household.below(400));
                const Explanation then = explainer.balance(number, day);
                QVERIFY(explains(then, std::get<Money>(then.figure)));
            }
            data.budget.forEach([&](const budgeting::BudgetedMoney &item) {
                if (item.period() != budgeting::EventFrequency::None)
                    QVERIFY(explains(explainer.share(workbench::identify(item)),
                                     budgeting::accumulateOver(budgeting::EventFrequency::Monthly,
                                                               item.amount(), item.period())
                                         .rounded()));
            });
            checkEnvelopes(household, explainer, data);
            checkHealth(explainer, data, usd);
            checkOutlook(household, explainer, data, usd);

            const Money amount(usd, household.below(1'000'000), 37);
            QVERIFY(explains(explainer.conversion(amount, eur), amount.convertedTo(eur).rounded()));
            for (const accounting::TransactionNumber number : household.converted) {
                const auto sides = explainer.conversions(number);
                QCOMPARE(sides.size(), std::size_t{1});
                const auto &transaction = household.document().requests().transaction(number);
                const bool isDebit = transaction.amount().code() == usd;
                QVERIFY(explains(sides.front(),
                                 isDebit ? transaction.debitAmount() : transaction.creditAmount()));
            }
        }
    }

private:
    static void checkEnvelopes(Household &household, const workbench::Explainer &explainer,
                               const storage::BudgetStorage::Data &data)
    {
        const workbench::Envelopes all = workbench::envelopes(
            data, household.document().keptReconciliations(), household.today());
        const foundation::Percentage window(2.75, 6);
        for (const workbench::SetAside &account : all.accounts) {
            const accounting::AccountNumber number = account.account.account.number;
            for (const workbench::SetAsideLine &line : account.lines)
                QVERIFY(explains(explainer.setAside(number, line.item), line.parts->now()));
            const Money statement(account.balance.code(), household.below(9'000) - 4'000, 0);
            const Explanation tolerance = explainer.tolerance(number, statement);
            const Money allowed = std::get<Money>(tolerance.figure);
            QVERIFY(explains(tolerance, allowed));
            const Money more = Money(statement.code(), numira::Decimal::fromUnits(1, 9));
            QVERIFY(surveying::agrees(statement + allowed - more, window, statement));
            QVERIFY(!surveying::agrees(statement - allowed - more, window, statement));
        }
        const auto sums = workbench::sumsOf(all);
        auto sum = sums.begin();
        for (const Explanation &one : explainer.freeMoney())
            QVERIFY(explains(one, (sum++)->second.free()));
        QVERIFY(sum == sums.end() && sum != sums.begin());
    }
    static void checkHealth(const workbench::Explainer &explainer,
                            const storage::BudgetStorage::Data &data, const numira::Currency &usd)
    {
        const adviser::BudgetHealth health(
            budgeting::BudgetTotals(data.budget, usd, budgeting::EventFrequency::Monthly));
        const auto all = explainer.health();
        QCOMPARE(all.size(), health.reasons().size());
        for (std::size_t at = 0; at < all.size(); ++at) {
            QCOMPARE(all[at].title, health.reasons()[at].text);
            const FloatingPoint off =
                comesTo(all[at]) -
                FloatingPoint(std::get<numira::Decimal>(all[at].figure).toText());
            QVERIFY(abs(off) < FloatingPoint("0.1"));
        }
    }
    static void checkOutlook(Household &household, const workbench::Explainer &explainer,
                             const storage::BudgetStorage::Data &data, const numira::Currency &usd)
    {
        for (int days = 1; days < 60; days += 1 + household.below(9)) {
            const workbench::LookingAhead ahead =
                workbench::lookAhead(data, {household.today(), days, {}}, usd);
            const QDate day = household.today().addDays(days - 1);
            for (const auto &[number, curve] : ahead.outlook.accounts) {
                const Explanation one = explainer.outlook(day, number);
                QVERIFY(explains(one, curve.ends.back()));
                QVERIFY(!one.lines.back().text.startsWith(u"Rounding"));
            }
            QVERIFY(explains(explainer.outlook(day), ahead.together.value().ends.back()));
        }
    }
};

static const kiv::test::Suite<tst_Explain> explainSuite;
#include "tst_explain.moc"
