// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "surveying/completed_survey.h"

#include "foundation/debug_stream.h"

#include <map>
#include <optional>

namespace kiv::surveying {

/// The last completed survey of each bank account, in the order of the bank
/// accounts (bank, number, type); each stands under its own bank account. A
/// survey may outlive the account, the bank and the items that it names.
class KIV_SURVEYING_EXPORT CompletedSurveys {
public:
    /// Goes over pairs of bank account and survey.
    using const_iterator = std::map<banking::BankAccount, CompletedSurvey>::const_iterator;

    /// Whether nothing was surveyed yet.
    [[nodiscard]] bool isEmpty() const noexcept { return m_surveys.empty(); }
    /// How many bank accounts were surveyed.
    [[nodiscard]] std::size_t size() const noexcept { return m_surveys.size(); }
    /// The first survey.
    [[nodiscard]] const_iterator begin() const noexcept { return m_surveys.begin(); }
    /// Behind the last survey.
    [[nodiscard]] const_iterator end() const noexcept { return m_surveys.end(); }

    /// The last survey of the account; nothing when there was none.
    [[nodiscard]] std::optional<CompletedSurvey>
    lookUpSurvey(const banking::BankAccount &account) const;
    /// The first of that bank and number, whatever its type.
    [[nodiscard]] std::optional<CompletedSurvey>
    lookUpSurvey(const banking::BankName &bank, accounting::AccountNumber number) const;

    /// Inserts the survey, or replaces the one of the same bank account.
    void upsert(CompletedSurvey survey);

    /// All surveys of the bank follow its new name. A survey that stands where a
    /// renamed one goes is replaced.
    void renamedBank(const banking::BankName &from, const banking::BankName &to);
    /// The first survey of that bank and number follows the new number, and
    /// replaces what stands there.
    void renamedAccount(const banking::BankName &bank, accounting::AccountNumber from,
                        accounting::AccountNumber to);
    /// The first survey that sets money aside for the item follows its new name;
    /// the others keep the old one.
    void renamedItem(const budgeting::BudgetItemIdentifier &from,
                     const budgeting::BudgetSource &to);

    friend bool operator==(const CompletedSurveys &, const CompletedSurveys &) = default;

private:
    [[nodiscard]] const_iterator find(const banking::BankName &bank,
                                      accounting::AccountNumber number) const;

    std::map<banking::BankAccount, CompletedSurvey> m_surveys;
};

/// The surveys' own forms between parentheses, ", " between them.
KIV_SURVEYING_EXPORT std::ostream &operator<<(std::ostream &out, const CompletedSurveys &surveys);
using foundation::operator<<;

} // namespace kiv::surveying
