// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/entry/values.h"
#include "workbench/requests/requests.h"

#include "budgeting/budgeted_money.h"

/// The household of the demonstration before its year begins.
namespace kiv::workbench::internal {

/// So many hundredths of a currency, in that of the account.
[[nodiscard]] Amount hundredths(int count);

/// The days and currencies of the demonstration.
struct DemonstrationFrame {
    QDate start;
    QDate end;
    numira::Currency main;
    numira::Currency foreign;
};

/// The numbers of the household's accounts.
struct HouseholdAccounts {
    accounting::AccountNumber checking;
    accounting::AccountNumber card;
    accounting::AccountNumber savings;
    accounting::AccountNumber formerSavings; ///< given up in the year
    accounting::AccountNumber foreign;       ///< in the other currency
    accounting::AccountNumber cash;
    accounting::AccountNumber groceries;
    accounting::AccountNumber furniture;
    accounting::AccountNumber eatingOut;
    accounting::AccountNumber pharmacy;
    accounting::AccountNumber abroad; ///< spent in the other currency
    accounting::AccountNumber interest;
    accounting::AccountNumber carLoan; ///< of the debt
};

/// An item that is paid on the days when it is due.
struct RegularItem {
    budgeting::BudgetItemIdentifier id;
    budgeting::BudgetedMoney occurring;       ///< its amount and its next day
    accounting::AccountNumber account;        ///< that pays, or gets a wage
    int varies = 0;                           ///< by how many hundredths the amount can differ
    std::optional<numira::Money> target = {}; ///< of a goal
};

/// All of it.
struct Household {
    HouseholdAccounts accounts;
    std::vector<RegularItem> items;
    QString townBank;
    QString lakeBank;
};

/// Opens banks, accounts and items in an empty budget, on the first day.
[[nodiscard]] Household openHousehold(Requests &requests, const DemonstrationFrame &frame);

} // namespace kiv::workbench::internal
