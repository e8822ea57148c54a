// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "navigation/currency_display.h"
#include "navigation/internal/budget_item_generator.h"

#include <QtCore/QTranslator>
#include <set>

using namespace Qt::StringLiterals;

/// What the catalogues make of names that must stay apart.
class StarterBudgets : public QObject {
    Q_OBJECT

private slots:
    void starterBudgetsKeepTheirItems_data()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("de") << u"de"_s;
        QTest::newRow("es") << u"es"_s;
    }

    /// Two items of one kind with one name would be refused.
    void starterBudgetsKeepTheirItems()
    {
        QFETCH(const QString, language);
        // As a front end does it.
        QTranslator translator;
        QVERIFY(translator.load(QLocale(language), u"kiv"_s, u"_"_s, u":/kiv/translations"_s));
        QVERIFY(QCoreApplication::installTranslator(&translator));
        using kiv::navigation::BudgetWizardTemplates;
        for (const auto household :
             {BudgetWizardTemplates::Teenager, BudgetWizardTemplates::AdultSingle,
              BudgetWizardTemplates::AdultMarriedSingleIncome,
              BudgetWizardTemplates::AdultMarriedDoubleIncome}) {
            std::set<std::pair<kiv::budgeting::BudgetItemTypes, QString>> names;
            std::size_t count = 0;
            const auto generator = kiv::navigation::internal::makeBudgetItemGenerator(
                household, numira::toCurrency("EUR"));
            for (const auto &[item, isTied] : generator->generate()) {
                names.emplace(kiv::budgeting::toBudgetItemTypes(*item), item->source().name());
                ++count;
            }
            QVERIFY(count > 20);
            QCOMPARE(names.size(), count);
        }
        for (const auto option : {kiv::navigation::CurrencyDisplayOptions::IsoCode,
                                  kiv::navigation::CurrencyDisplayOptions::Symbol,
                                  kiv::navigation::CurrencyDisplayOptions::SymbolAndCode}) {
            QCOMPARE(kiv::navigation::toCurrencyDisplayOptions(presentationText(option)), option);
        }
    }
};

static const kiv::test::Suite<StarterBudgets> suite;
#include "tst_starter_budgets.moc"
