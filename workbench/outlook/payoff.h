// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include "navigation/currency_display.h"
#include "storage/budget_storage.h"

#include <QtCore/QStringList>

#include <optional>
#include <vector>

/// How a debt comes to zero and a goal to its target, payment by payment.
namespace kiv::workbench {

/// The interest that the books of a debt show.
struct SeenInterest {
    int hundredths = 0; ///< of a percent, for a year
    numira::Money sum;  ///< that was added to the debt
    QDate from;         ///< after this day
    QDate until;        ///< up to this day, which is the last for which interest is known
};

/// The interest that the books of a debt tell: what surveys and others charged its account with
/// against accounts for spending, within the year that ends with the last such day, beside what
/// was owed on each day. The first of these charges only begins the time; a single one is taken
/// to be for one period of the debt. Nothing if there is none, if the debt is not paid regularly,
/// if it came to more than all that is owed in a year, and for the account of a card: interest is
/// not to be told from what was bought there.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::optional<SeenInterest>
seenInterest(const storage::BudgetStorage::Data &data, const budgeting::Debt &debt);

/// The rate in words, such as "4.25 %".
[[nodiscard]] KIV_WORKBENCH_EXPORT QString rateText(const SeenInterest &interest);

/// A payment of a debt or a goal that is still to come.
struct ScheduledPayment {
    QDate day;              ///< of the payment
    numira::Money interest; ///< added since the one before; zero for a goal
    numira::Money amount;   ///< never more than was left
    numira::Money left;     ///< after it
};

/// How a debt is paid off or a goal reached.
struct KIV_WORKBENCH_EXPORT Payoff {
    budgeting::BudgetItemIdentifier item; ///< the debt or goal
    numira::Money left;                   ///< what is owed or missing now
    std::optional<SeenInterest> interest; ///< that is counted
    /// The payments to come, in the currency of the item's account. None if nothing is left, or if
    /// it has no end.
    std::vector<ScheduledPayment> payments;

    /// Whether something is left that never comes to an end, or not within a century.
    [[nodiscard]] bool isEndless() const { return payments.empty() && left.isPositive(); }
    /// The day of the last payment; there must be one.
    [[nodiscard]] QDate end() const { return payments.back().day; }
    /// All interest to come.
    [[nodiscard]] numira::Money interestToCome() const;
};

/// The payments that a debt or a goal needs if it is paid as its item says, with `more` a month
/// on top of it if given. A payment that is late counts on `today`; without a valid day each on its
/// own. Interest is charged for each day at the rate that was seen.
///
/// Throws a Refusal if the item is neither, is not paid regularly, without its account, without
/// an exchange rate, if `more` is not above zero, and if amounts become too large.
[[nodiscard]] KIV_WORKBENCH_EXPORT Payoff payoffOf(const storage::BudgetStorage::Data &data,
                                                   const budgeting::BudgetedMoney &item,
                                                   QDate today,
                                                   const std::optional<numira::Money> &more = {});

/// It in words: what is left and when it ends, which interest is counted.
[[nodiscard]] KIV_WORKBENCH_EXPORT QStringList
sentencesOf(const Payoff &payoff, navigation::CurrencyDisplayOptions displayAs);
/// What `more` a month spares: "With $50.00 more a month: paid off on 2027-06-20, 92 days earlier."
[[nodiscard]] KIV_WORKBENCH_EXPORT QString sparedText(const Payoff &present, const Payoff &faster,
                                                      const numira::Money &more,
                                                      navigation::CurrencyDisplayOptions displayAs);

} // namespace kiv::workbench
