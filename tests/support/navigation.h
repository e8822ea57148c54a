// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "navigation/internal/budget_bank_ledgers.h"

#include "accounting/number_handout.h"
#include "banking/errors.h"
#include "foundation/presentation.h"
#include "numira/error.h"
#include "numira/library.h"
#include "surveying/errors.h"

#include "support/budgeting.h"

#include <QtTest/QTest>

namespace kiv::test {

using namespace kiv::navigation::internal;
using accounting::AccountCode;
using accounting::AccountNumber;
using accounting::AccountTypes;
using banking::BankAccount;
using banking::BankAccountTypes;
using banking::BankName;
using budgeting::Bill;
using budgeting::BudgetItemIdentifier;
using budgeting::BudgetItemTypes;
using budgeting::Debt;
using budgeting::EventFrequency;
using budgeting::Goal;
using budgeting::Nontrack;
using budgeting::Wage;
using enum BankAccountTypes;

inline BankName bank(const char *name)
{
    return BankName(QString::fromUtf8(name));
}

inline BankAccount at(const char *bankName, std::uint32_t number, BankAccountTypes type)
{
    return {bank(bankName), {no(number), type}};
}

/// Half a euro for a dollar; yen have no rate.
inline void installRates()
{
    numira::setUpLibrary(
        [](const numira::Currency &from, const numira::Currency &to) {
            const auto isYen = [](const auto &currency) { return currency.code() == "JPY"; };
            if (isYen(from) || isYen(to))
                throw numira::ConversionError("no rate");
            return numira::FloatingPoint(from.code() == "USD" ? "0.5" : "2");
        },
        "en_US", numira::ShouldAllowFallback::Yes);
}

/// The number that the next account would get.
inline AccountNumber nextNumber(const accounting::AccountNumberGenerator &generator,
                                const accounting::GeneralLedger &ledger)
{
    const auto copy = generator.clone();
    return accounting::NumberHandout(*copy, ledger).number();
}

/// Everything that a request could have changed.
struct State {
    accounting::GeneralLedger ledger;
    budgeting::Budget budget;
    BudgetAccountCodes codes;
    banking::BankMap banks;
    surveying::CompletedSurveys surveys;
    AccountNumber next;

    friend bool operator==(const State &, const State &) = default;
};

inline State stateOf(const BudgetBankLedgers &whole)
{
    return {whole.generalLedger(),
            whole.budget(),
            whole.budgetLedgers().budgetAccountCodes(),
            whole.banks(),
            whole.surveys(),
            nextNumber(whole.accountCodeNumberGenerator(), whole.generalLedger())};
}

/// What became of a request: "accepted", or the kind of the error, what it is
/// about, and its text.
template <typename Request>
QString answer(Request &&request)
{
    const auto told = [](const char *kind, const QString &subject, const std::exception &error) {
        return QStringLiteral("%1 %2: %3")
            .arg(QString::fromLatin1(kind), subject, QString::fromUtf8(error.what()));
    };
    try {
        request();
        return QStringLiteral("accepted");
    } catch (const accounting::AccountError &error) {
        return told("account", presentationText(error.code()), error);
    } catch (const accounting::TransactionError &error) {
        return told("transaction", presentationText(error.number()), error);
    } catch (const banking::BankError &error) {
        return told("bank", presentationText(error.name()), error);
    } catch (const budgeting::BudgetItemError &error) {
        return told("item", presentationText(error.source()), error);
    } catch (const surveying::SurveyError &error) {
        return told("survey", presentationText(error.account()), error);
    } catch (const foundation::Error &error) {
        return QString::fromUtf8(error.what());
    } catch (const std::out_of_range &) {
        return QStringLiteral("out of range");
    } catch (const std::logic_error &error) {
        return QStringLiteral("logic: ") + QString::fromUtf8(error.what());
    }
}

/// The same for a request that must leave everything as it was.
template <typename Subject, typename Request>
QString refusal(Subject &subject, Request &&request)
{
    const State before = stateOf(subject);
    const QString text = answer(request);
    return stateOf(subject) == before ? text : text + QStringLiteral(" But something changed.");
}

/// A request, and what must come of it.
struct Refusal {
    std::function<void()> request;
    std::string expected;
};

/// Each of them must be answered so, and leave everything as it was.
template <typename Subject>
void checkRefusals(Subject &subject, const std::vector<Refusal> &refusals)
{
    for (const Refusal &one : refusals)
        QCOMPARE(refusal(subject, one.request), QString::fromStdString(one.expected));
}

/// Calls the test with the class of each kind of item, and names those that failed.
template <typename Test>
void forEachKind(Test &&test)
{
    budgeting::forEachItemClass([&]<typename T>(std::type_identity<T> kind) {
        test(kind);
        if (QTest::currentTestFailed())
            qWarning() << "It failed with, or before, the kind" << budgeting::ItemTraits<T>::word;
    });
}

template <budgeting::BudgetItem T>
const std::string word = budgeting::ItemTraits<T>::word;

/// What a list in the order of the kinds holds for this one.
template <budgeting::BudgetItem T, typename List>
constexpr auto byKind(const List &list)
{
    return list[static_cast<std::size_t>(budgeting::ItemTraits<T>::type) - 1];
}

/// A budget, a ledger and banks, with the two that tie them.
///
/// Accounts: 1 Checking, 2 Savings under it, 3 Card, 4 Loan (of no bank), 5
/// Food. Banks: First with 1, 2 and 3; Second without accounts; Shut, which is
/// closed.
struct Books {
    accounting::GeneralLedger ledger;
    budgeting::Budget budget;
    banking::BankMap banks;
    std::unique_ptr<accounting::AccountNumberGenerator> generator =
        std::make_unique<accounting::SequentialAccountNumberGenerator>();
    BudgetLedgers items{foundation::observe(budget), foundation::observe(ledger), {}};
    BankLedgers bankLedgers{foundation::observe(banks), foundation::observe(ledger)};

    Books()
    {
        addAccount(ledger, *generator, AccountTypes::Asset, {}, "Checking");
        addAccount(ledger, *generator, AccountTypes::Asset, {}, "Savings", no(1));
        addAccount(ledger, *generator, AccountTypes::Liability, {}, "Card");
        addAccount(ledger, *generator, AccountTypes::Liability, {}, "Loan");
        addAccount(ledger, *generator, AccountTypes::Expense, {}, "Food");
        banks.add(
            {bank("First"), {{no(1), Checking}, {no(2), Savings}, {no(3), CreditCard}}, false});
        banks.add({bank("Second"), {}, false});
        banks.add({bank("Shut"), {}, true});
    }

    template <budgeting::BudgetItem T>
    AccountCode add(const char *name)
    {
        return items.add(item<T>(name), *generator);
    }
    /// Debits the account, from Checking.
    accounting::TransactionNumber spend(AccountNumber account, const char *amount = "5")
    {
        return ledger.post(transfer(account, no(1), usd(amount)));
    }
    [[nodiscard]] numira::Money balance(AccountNumber account) const
    {
        return ledger.ledger(account).balance();
    }
};

inline State stateOf(const Books &books)
{
    return {books.ledger, books.budget, books.items.budgetAccountCodes(),
            books.banks,  {},           nextNumber(*books.generator, books.ledger)};
}

/// An aggregate with what the books hold.
inline BudgetBankLedgers whole(const Books &books = {})
{
    return {books.ledger, books.budget, books.items.budgetAccountCodes(), books.banks,
            books.generator->clone()};
}

/// The same parts with other surveys.
inline void setSurveys(BudgetBankLedgers &whole, surveying::CompletedSurveys surveys)
{
    whole.setManaged(whole.generalLedger(), whole.budget(),
                     whole.budgetLedgers().budgetAccountCodes(), whole.banks(), std::move(surveys));
}

/// A survey of 2026-01-31 that sets five dollars aside for each of the items.
inline surveying::CompletedSurvey survey(const BankAccount &account,
                                         const std::vector<BudgetItemIdentifier> &items = {})
{
    surveying::Distribution distribution;
    for (const auto &item : items)
        distribution[item] = {usd("5"), day("2026-02-28"), usd("50")};
    surveying::CompletedSurvey survey(account, numira::toCurrency("USD"));
    survey.completed(day("2026-01-31"), usd("100"), std::move(distribution), usd("1"),
                     foundation::Percentage(2.75, 6));
    return survey;
}

inline surveying::CompletedSurveys surveys(const std::vector<surveying::CompletedSurvey> &completed)
{
    surveying::CompletedSurveys surveys;
    for (const auto &one : completed)
        surveys.upsert(one);
    return surveys;
}

template <budgeting::BudgetItem T>
BudgetItemIdentifier id(const char *name)
{
    return {budgeting::ItemTraits<T>::type, source(name)};
}

/// Gives out the number that no account may have, so that the ledger refuses
/// whatever is to be opened under it.
class InvalidNumbers final : public accounting::AccountNumberGenerator {
public:
    const AccountNumber &operator++() override { return m_number; }
    const AccountNumber &operator--() override { return m_number; }
    [[nodiscard]] std::unique_ptr<AccountNumberGenerator> clone() const override
    {
        return std::make_unique<InvalidNumbers>();
    }
    [[nodiscard]] AccountNumber seedFrom(const std::set<accounting::Account> &) const override
    {
        return m_number;
    }

private:
    AccountNumber m_number;
};

} // namespace kiv::test
