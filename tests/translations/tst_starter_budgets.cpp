// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "navigation/currency_display.h"
#include "navigation/starter_items.h"

#include <QtCore/QTranslator>
#include <set>

/// What the catalogues make of names that must stay apart.
class StarterBudgets : public QObject {
    Q_OBJECT

private slots:
    void starterBudgetsKeepTheirItems_data()
    {
        addRows<QString>({{"German", u"de"_s}, {"Spanish", u"es"_s}});
    }
    /// Two items of one kind with one name would be refused.
    void starterBudgetsKeepTheirItems()
    {
        // As a front end does it.
        QTranslator translator;
        QVERIFY(
            translator.load(QLocale(rowOf<QString>()), u"kiv"_s, u"_"_s, u":/kiv/translations"_s));
        QVERIFY(QCoreApplication::installTranslator(&translator));
        using kiv::navigation::BudgetWizardTemplates;
        for (const auto household :
             {BudgetWizardTemplates::Teenager, BudgetWizardTemplates::AdultSingle,
              BudgetWizardTemplates::AdultMarriedSingleIncome,
              BudgetWizardTemplates::AdultMarriedDoubleIncome}) {
            std::set<kiv::budgeting::BudgetItemIdentifier> names;
            const auto items = starterItems(household, numira::toCurrency("EUR"));
            for (const kiv::navigation::StarterItem &item : items)
                names.insert(item.id);
            QVERIFY(items.size() > 20);
            QCOMPARE(names.size(), items.size());
        }
        for (const auto option : {kiv::navigation::CurrencyDisplayOptions::IsoCode,
                                  kiv::navigation::CurrencyDisplayOptions::Symbol,
                                  kiv::navigation::CurrencyDisplayOptions::SymbolAndCode}) {
            QCOMPARE(kiv::navigation::toCurrencyDisplayOptions(presentationText(option)), option);
        }
    }
};

static const kiv::test::Suite<StarterBudgets> starterBudgetsSuite;
#include "tst_starter_budgets.moc"
