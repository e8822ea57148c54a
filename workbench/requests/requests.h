// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/entry/account_index.h"
#include "workbench/errors.h"

#include "conversion/conversion_map.h"
#include "navigation/failure.h"
#include "navigation/navigator.h"
#include "storage/budget_storage.h"
#include "updating/release_information.h"

#include <chrono>
#include <functional>
#include <tuple>
#include <type_traits>

namespace kiv::workbench {

/// The arguments of a signal of the Navigator.
template <typename... Arguments>
using Answer = std::tuple<std::remove_cvref_t<Arguments>...>;

/// The two signals that answer one group of changes.
template <typename Succeeded, typename Failed>
struct Outcome {
    Succeeded succeeded; ///< once for each change
    Failed failed;       ///< with the reason
};
/// Deduced from its two signals.
template <typename Succeeded, typename Failed>
Outcome(Succeeded, Failed) -> Outcome<Succeeded, Failed>;

/// The failure in the user's language and plain words: its message and all causes.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString userText(const navigation::Failure &failure);
/// The same for an error that a request threw.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString userText(const std::exception &error);

/// Calls slots of the Navigator, and turns their signals into return values and
/// exceptions.
class KIV_WORKBENCH_EXPORT Requests {
public:
    /// The class that answers the requests.
    using Navigator = navigation::Navigator;

    /// The budget as a whole.
    using Data = storage::BudgetStorage::Data;

    /// `reach` returns the Navigator, and may create it first; `present` the budget that it
    /// has.
    Requests(std::function<Navigator &()> reach, std::function<Data()> present);
    ~Requests();
    Requests(const Requests &) = delete;
    Requests &operator=(const Requests &) = delete;

    /// The Navigator, created if needed.
    [[nodiscard]] Navigator &navigator() const { return m_reach(); }
    /// The budget in memory. It takes no exchange rate, as the answers to many requests do.
    [[nodiscard]] Data present() const { return m_present(); }
    /// Whether a request is running. Log messages are then for developers: the answer
    /// says the same to the user.
    [[nodiscard]] bool isBusy() const noexcept { return m_running > 0; }

    /// Runs `work` as part of a request.
    template <typename Work>
    auto within(Work &&work)
    {
        const Running running(*this);
        return work();
    }

    /// Calls `request`, and returns the arguments of every `signal` meanwhile. It does
    /// not count as busy.
    template <typename... Arguments, typename Request>
    [[nodiscard]] std::vector<Answer<Arguments...>> gather(void (Navigator::*signal)(Arguments...),
                                                           Request &&request)
    {
        std::vector<Answer<Arguments...>> answers;
        const QMetaObject::Connection connection = QObject::connect(
            &navigator(), signal, [&answers](const std::remove_cvref_t<Arguments> &...arguments) {
                answers.emplace_back(arguments...);
            });
        const auto disconnect = qScopeGuard([&] { QObject::disconnect(connection); });
        request();
        return answers;
    }

    /// Calls a slot that answers with exactly one `signal`, and returns its arguments.
    /// Throws what the slot throws.
    template <typename... Arguments, typename Slot, typename... Values>
    Answer<Arguments...> ask(void (Navigator::*signal)(Arguments...), Slot slot,
                             const Values &...values)
    {
        const Running running(*this);
        auto answers = gather(signal, [&] { std::invoke(slot, navigator(), values...); });
        if (answers.size() != 1)
            throw std::logic_error("A request was not answered once.");
        return std::move(answers.front());
    }

    /// Calls a changing slot, and returns the arguments of its successes. Throws a
    /// Refusal with the text of the first failure.
    template <typename... Succeeded, typename... Failed, typename Slot, typename... Values>
    std::vector<Answer<Succeeded...>> change(
        const Outcome<void (Navigator::*)(Succeeded...), void (Navigator::*)(Failed...)> &outcome,
        Slot slot, const Values &...values)
    {
        const Running running(*this);
        std::optional<navigation::Failure> failure;
        // The reason is known only while the signal is delivered.
        const QMetaObject::Connection connection = QObject::connect(
            &navigator(), outcome.failed, [&](const std::remove_cvref_t<Failed> &...told) {
                if (!failure)
                    failure = reasonOf(std::get<const QString &>(std::tie(told...)));
            });
        const auto disconnect = qScopeGuard([&] { QObject::disconnect(connection); });
        auto made = gather(outcome.succeeded, [&] { std::invoke(slot, navigator(), values...); });
        if (failure)
            throw Refusal(userText(*failure));
        return made;
    }

    // ---- what most front ends need -------------------------------------------

    /// All accounts with their transactions. The index looks items up here, so it must not
    /// find names after these requests are gone.
    [[nodiscard]] AccountIndex accounts();
    /// The account of the item; none if there is no such item. Reads the transactions of the
    /// account.
    [[nodiscard]] std::optional<accounting::AccountNumber>
    accountOf(const budgeting::BudgetItemIdentifier &item);
    /// All banks.
    [[nodiscard]] banking::BankMap banks();
    /// The bank with this name. Throws a Refusal if there is none.
    [[nodiscard]] banking::Bank bank(const QString &name);
    /// The bank account with this number. Throws a Refusal with `name` if it is not
    /// assigned to a bank.
    [[nodiscard]] banking::BankAccount bankAccount(accounting::AccountNumber number,
                                                   const QString &name);
    /// The currency of amounts without one.
    [[nodiscard]] numira::Currency preferredCurrency();
    /// The display of currencies.
    [[nodiscard]] navigation::CurrencyDisplayOptions displayAs();
    /// All transactions in the order of their numbers.
    [[nodiscard]] std::vector<accounting::Transaction> transactions();
    /// The transaction with this number. Throws a Refusal if there is none.
    [[nodiscard]] accounting::Transaction transaction(accounting::TransactionNumber number);

    // ---- services ------------------------------------------------------------

    /// The answer of a service, or the reason for its failure.
    template <typename Fetched>
    struct Fetch {
        Fetched fetched;                ///< after a failure empty, or the known values
        std::optional<QString> failure; ///< the reason, which can be empty
    };
    /// Fetches the list of releases, in an event loop for at most `patience`.
    [[nodiscard]] Fetch<std::set<updating::ReleaseInformation>>
    fetchReleases(std::chrono::milliseconds patience);

    /// Calls a `request` that has no failure signal, and returns the failure that the
    /// Navigator knows, if any.
    template <typename Request>
    [[nodiscard]] std::optional<navigation::Failure> failureOf(Request &&request)
    {
        const Running running(*this);
        forgetFailure();
        request();
        return knownFailure();
    }

private:
    class Running {
    public:
        explicit Running(Requests &requests) : m_requests(requests) { ++m_requests.m_running; }
        ~Running() { --m_requests.m_running; }
        Running(const Running &) = delete;
        Running &operator=(const Running &) = delete;

    private:
        Requests &m_requests;
    };

    /// The failure behind a signal with this text.
    [[nodiscard]] navigation::Failure reasonOf(const QString &text) const;
    [[nodiscard]] std::optional<navigation::Failure> knownFailure() const;
    void forgetFailure() const;

    std::function<Navigator &()> m_reach;
    std::function<Data()> m_present;
    int m_running = 0;
};

/// Of changes to budget items.
inline constexpr Outcome itemOutcome{&navigation::Navigator::saveSucceeded,
                                     &navigation::Navigator::saveFailed};
/// Of changes to accounts.
inline constexpr Outcome accountOutcome{&navigation::Navigator::accountSaveSucceeded,
                                        &navigation::Navigator::accountSaveFailed};
/// Of changes to banks.
inline constexpr Outcome bankOutcome{&navigation::Navigator::bankSaveSucceeded,
                                     &navigation::Navigator::bankSaveFailed};
/// Of changes to bank accounts.
inline constexpr Outcome bankAccountOutcome{&navigation::Navigator::bankAccountSaveSucceeded,
                                            &navigation::Navigator::bankAccountSaveFailed};
/// Of changes to transactions, refunds and transfers.
inline constexpr Outcome transactionOutcome{&navigation::Navigator::transactionSaveSucceeded,
                                            &navigation::Navigator::transactionSaveFailed};
/// Of changes to due budget items.
inline constexpr Outcome dueOutcome{&navigation::Navigator::processBudgetItemSaveSucceeded,
                                    &navigation::Navigator::processBudgetItemSaveFailed};
/// Of changes to the user's settings.
inline constexpr Outcome configureOutcome{&navigation::Navigator::configureSaveSucceeded,
                                          &navigation::Navigator::configureSaveFailed};
/// Of changes to surveys.
inline constexpr Outcome surveyOutcome{&navigation::Navigator::completedSurveySucceeded,
                                       &navigation::Navigator::completedSurveyFailed};

} // namespace kiv::workbench
