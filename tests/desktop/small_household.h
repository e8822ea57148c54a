// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "desktop/household_window.h"

#include "support/accounting.h"
#include "workbench/document/starter_budget.h"
#include "workbench/requests/item_changes.h"

#include "foundation/clock.h"

/// A window on a household with 3,000 at a bank. Rent was due three days ago, Phone is due
/// today, Salary in two days; the goal Trip is not due yet.
class SmallHousehold : public HouseholdWindow {
public:
    using HouseholdWindow::HouseholdWindow;

    void begin()
    {
        using namespace kiv;
        const QString file = path(QStringLiteral("home.budget"));
        const QDate today = foundation::today();
        workbench::StarterAnswers answers;
        answers.preferred = numira::toCurrency("USD");
        answers.bank = QStringLiteral("First");
        answers.account = QStringLiteral("Checking");
        answers.balance = amount("3000");
        workbench::fillIn(requests(), answers);
        addItem<budgeting::Bill>("Rent", "900", today.addDays(-3));
        addItem<budgeting::Bill>("Phone", "20", today);
        addItem<budgeting::Wage>("Salary", "2500", today.addDays(2));
        addItem<budgeting::Goal>("Trip", "100", today.addDays(40), "1200");
        document().create(file, QStringLiteral("Began"));
        QVERIFY(window().open(file));
    }

    template <kiv::budgeting::BudgetItem Item>
    void addItem(const char *name, const char *each, QDate next, const char *extra = nullptr,
                 std::optional<kiv::budgeting::EventFrequency> every = std::nullopt)
    {
        kiv::workbench::ItemValues values;
        values.amount = amount(each);
        values.every = every;
        values.next = next;
        if (extra)
            values.extra = amount(extra);
        kiv::workbench::addItem<Item>(requests(), kiv::navigation::GuiElementIdentifier(1),
                                      QString::fromUtf8(name), values, next, std::nullopt);
    }
    void addAccount(const char *name, kiv::accounting::AccountTypes type)
    {
        requests().change(kiv::workbench::accountOutcome, &kiv::navigation::Navigator::onAddedAct,
                          kiv::accounting::Account(type,
                                                   {requests().accounts().nextNumber(),
                                                    QString::fromUtf8(name), std::nullopt},
                                                   kiv::test::usd("0"), false));
    }

private:
    static kiv::workbench::Amount amount(const char *text)
    {
        kiv::workbench::Amount amount;
        kiv::workbench::readValue(QString::fromLatin1(text), amount);
        return amount;
    }
};
