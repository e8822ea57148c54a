// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/entry/account_index.h"
#include "workbench/errors.h"

#include "conversion/conversion_map.h"
#include "navigation/failure.h"
#include "navigation/navigator.h"
#include "updating/release_information.h"

#include <chrono>
#include <functional>
#include <tuple>
#include <type_traits>

namespace kiv::workbench {

/// What a signal of the Navigator carried.
template <typename... Arguments>
using Answer = std::tuple<std::remove_cvref_t<Arguments>...>;

/// The two signals with which the Navigator answers one family of changes.
template <typename Succeeded, typename Failed>
struct Outcome {
    Succeeded succeeded; ///< once for each change
    Failed failed;       ///< with the reason
};
/// Made from its two signals.
template <typename Succeeded, typename Failed>
Outcome(Succeeded, Failed) -> Outcome<Succeeded, Failed>;

/// The failure in the user's language: its message with all causes behind it.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString userText(const navigation::Failure &failure);
/// The same of an error that a request threw.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString userText(const std::exception &error);

/// A front end's way to ask the Navigator: slots are called here, and their signals
/// become return values and exceptions.
class KIV_WORKBENCH_EXPORT Requests {
public:
    /// Whom requests are made to.
    using Navigator = navigation::Navigator;

    /// `reach` gives the Navigator, and may make it when it is first asked for.
    explicit Requests(std::function<Navigator &()> reach);
    ~Requests();
    Requests(const Requests &) = delete;
    Requests &operator=(const Requests &) = delete;

    /// The Navigator, made if need be.
    [[nodiscard]] Navigator &navigator() const { return m_reach(); }
    /// Whether a request waits for its answer. What is logged meanwhile is for
    /// developers, since the answer says the same to the user.
    [[nodiscard]] bool isBusy() const noexcept { return m_running > 0; }

    /// Does a part of a request, in which the requests are busy.
    template <typename Work>
    auto within(Work &&work)
    {
        const Running running(*this);
        return work();
    }

    /// Calls `request` and gathers what `signal` carried meanwhile. This one alone
    /// does not count as busy.
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

    /// Calls a slot that answers with exactly one `signal`, and gives what that
    /// carried. Throws what the slot throws.
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

    /// Calls a slot that makes changes and gives what its successes carried.
    /// Throws a Refusal with the first failure's text.
    template <typename... Succeeded, typename... Failed, typename Slot, typename... Values>
    std::vector<Answer<Succeeded...>> change(
        const Outcome<void (Navigator::*)(Succeeded...), void (Navigator::*)(Failed...)> &outcome,
        Slot slot, const Values &...values)
    {
        const Running running(*this);
        std::optional<navigation::Failure> failure;
        // The reason is there while its signal is heard, and may be another's later.
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

    /// All accounts with their transactions.
    [[nodiscard]] AccountIndex accounts();
    /// All banks.
    [[nodiscard]] banking::BankMap banks();
    /// Throws a Refusal when there is none.
    [[nodiscard]] banking::Bank bank(const QString &name);
    /// The bank account with this number. Throws a Refusal that has `name` when no
    /// bank keeps it.
    [[nodiscard]] banking::BankAccount bankAccount(accounting::AccountNumber number,
                                                   const QString &name);
    /// The currency of amounts that are typed without one.
    [[nodiscard]] numira::Currency preferredCurrency();
    /// How currencies are to be shown.
    [[nodiscard]] navigation::CurrencyDisplayOptions displayAs();
    /// All transactions in the order of their numbers.
    [[nodiscard]] std::vector<accounting::Transaction> transactions();
    /// Throws a Refusal when there is none.
    [[nodiscard]] accounting::Transaction transaction(accounting::TransactionNumber number);

    // ---- services ------------------------------------------------------------

    /// What a service answered, or else why it did not.
    template <typename Fetched>
    struct Fetch {
        Fetched fetched;                ///< empty, or what was known, when it failed
        std::optional<QString> failure; ///< empty when nobody knows why
    };
    /// Rates for these currencies; the known ones when there was a failure.
    [[nodiscard]] Fetch<conversion::ConversionMap>
    fetchRates(const std::set<numira::Currency> &currencies);
    /// Waits so long for the list of releases, in an event loop.
    [[nodiscard]] Fetch<std::set<updating::ReleaseInformation>>
    fetchReleases(std::chrono::milliseconds patience);

    /// Calls `request`, one whose failure no signal tells: why it failed, as far as
    /// the Navigator knows; nothing when it knows of no failure.
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

    /// The reason behind a signal that carried this text.
    [[nodiscard]] navigation::Failure reasonOf(const QString &text) const;
    [[nodiscard]] std::optional<navigation::Failure> knownFailure() const;
    void forgetFailure() const;

    std::function<Navigator &()> m_reach;
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
