// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "errors.h"
#include "message_log.h"
#include "parsing/account_index.h"
#include "recalling_storage.h"

#include "navigation/navigator.h"

#include <functional>
#include <tuple>
#include <type_traits>

namespace kiv::app {

/// What a signal of the Navigator carried.
template <typename... Arguments>
using Answer = std::tuple<std::remove_cvref_t<Arguments>...>;

/// The two signals with which the Navigator answers one family of changes.
template <typename Succeeded, typename Failed>
struct Outcome {
    Succeeded succeeded;
    Failed failed;
};
template <typename Succeeded, typename Failed>
Outcome(Succeeded, Failed) -> Outcome<Succeeded, Failed>;

/// One Navigator with the budget file on which it works, and the command's only
/// way to both: slots are called here, and their signals become return values
/// and exceptions.
class Session {
public:
    using Navigator = navigation::Navigator;

    explicit Session(MessageLog &log);
    ~Session();
    Session(const Session &) = delete;
    Session &operator=(const Session &) = delete;

    /// Made when it is first asked for, since a call that only prints its help
    /// should not wait for it.
    [[nodiscard]] Navigator &navigator();

    // ---- the file ------------------------------------------------------------

    /// The path with the extension that every budget file has.
    [[nodiscard]] static QString withExtension(const QString &path);
    [[nodiscard]] const QString &file() const noexcept { return m_file; }
    /// Throws what the storage throws.
    void open(const QString &file);
    /// Throws a Refusal when there is a file of this name.
    static void refuseExisting(const QString &file);
    /// Stores the budget in memory as a new file. Refused when there is one.
    void create(const QString &file);
    /// Writes the budget to its file. The exchange rates are stored with it; when
    /// they alone cannot be, that is a warning.
    void save();
    void saveAs(const QString &file);
    /// Throws a Refusal when the last save of the open file failed, since what it
    /// should have held is in memory alone.
    void refuseUnsaved() const;
    /// The same, but tries to save once more.
    void saveUnsaved();
    /// Gives up what was changed since save() was last called, whether or not it
    /// could save.
    void revert();
    /// Puts a former version of the open file in the place of the budget in
    /// memory; the file is as it was until that is saved.
    void recall(storage::BudgetStorage::Data version);

    // ---- requests ------------------------------------------------------------

    /// Calls `request` and gathers what `signal` carried meanwhile.
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
    /// carried.
    template <typename... Arguments, typename Slot, typename... Values>
    Answer<Arguments...> ask(void (Navigator::*signal)(Arguments...), Slot slot,
                             const Values &...values)
    {
        // What a query logs is of no interest to who asked for something else,
        // such as a setting that has its default.
        const MessageLog::Muted muted(m_log);
        auto answers = gather(signal, [&] { std::invoke(slot, navigator(), values...); });
        if (answers.size() != 1)
            throw std::logic_error("A request was not answered once.");
        return std::move(answers.front());
    }

    /// Calls a slot that makes changes and gives what its successes carried.
    /// Throws a Refusal with the first failure's message.
    template <typename... Arguments, typename Failed, typename Slot, typename... Values>
    std::vector<Answer<Arguments...>>
    change(const Outcome<void (Navigator::*)(Arguments...), Failed> &outcome, Slot slot,
           const Values &...values)
    {
        const MessageLog::Muted muted(m_log);
        std::vector<Answer<Arguments...>> made;
        const auto failures = gather(outcome.failed, [&] {
            made = gather(outcome.succeeded, [&] { std::invoke(slot, navigator(), values...); });
        });
        if (!failures.empty())
            throw refusal(std::get<QString>(failures.front()));
        return made;
    }

    /// Calls `request`, and gives its result with the last warning that was
    /// logged meanwhile, which is not shown.
    template <typename Request>
    auto quietly(Request &&request)
    {
        const MessageLog::Muted muted(m_log);
        auto result = request();
        return std::pair(std::move(result), m_log.lastKept());
    }

    /// The last warning that was kept from being shown.
    [[nodiscard]] const QString &lastWarning() const noexcept { return m_log.lastKept(); }

    // ---- what most commands need ---------------------------------------------

    [[nodiscard]] AccountIndex accounts();
    [[nodiscard]] banking::BankMap banks();
    /// Throws a Refusal when there is none.
    [[nodiscard]] banking::Bank bank(const QString &name);
    [[nodiscard]] numira::Currency preferredCurrency();
    /// How currencies are to be shown; by their codes as long as there is no
    /// Navigator that knows.
    [[nodiscard]] navigation::CurrencyDisplayOptions displayAs();
    /// All transactions in the order of their numbers.
    [[nodiscard]] std::vector<accounting::Transaction> transactions();
    /// Throws a Refusal when there is none.
    [[nodiscard]] accounting::Transaction transaction(accounting::TransactionNumber number);

private:
    /// Calls a slot that stores the budget, and then the exchange rates.
    template <typename Slot, typename... Values>
    void store(Slot slot, const Values &...values);
    /// The failure's message with the reasons behind it, which only the log has.
    [[nodiscard]] Refusal refusal(const QString &message) const;

    MessageLog &m_log;
    std::unique_ptr<Navigator> m_navigator;
    RecallingStorage *m_storage = nullptr; ///< the Navigator's
    QString m_file;
};

inline constexpr Outcome itemOutcome{&navigation::Navigator::saveSucceeded,
                                     &navigation::Navigator::saveFailed};
inline constexpr Outcome accountOutcome{&navigation::Navigator::accountSaveSucceeded,
                                        &navigation::Navigator::accountSaveFailed};
inline constexpr Outcome bankOutcome{&navigation::Navigator::bankSaveSucceeded,
                                     &navigation::Navigator::bankSaveFailed};
inline constexpr Outcome bankAccountOutcome{&navigation::Navigator::bankAccountSaveSucceeded,
                                            &navigation::Navigator::bankAccountSaveFailed};
inline constexpr Outcome transactionOutcome{&navigation::Navigator::transactionSaveSucceeded,
                                            &navigation::Navigator::transactionSaveFailed};
inline constexpr Outcome dueOutcome{&navigation::Navigator::processBudgetItemSaveSucceeded,
                                    &navigation::Navigator::processBudgetItemSaveFailed};

} // namespace kiv::app
