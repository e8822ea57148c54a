// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "navigation/failure.h"
#include "navigation/internal/budget_bank_ledgers.h"
#include "navigation/internal/logging.h"
#include "navigation/navigator.h"

#include <tuple>

// How the Navigator's slots change something and answer, for its own sources.
namespace kiv::navigation {

namespace internal {

inline QString userText(const foundation::Error &error)
{
    return error.message();
}

inline QString userText(const std::exception &error)
{
    return QString::fromUtf8(error.what());
}

/// Keeps the failure in LastFailure. Without memory for it, the failure signal is
/// emitted all the same.
inline void keepFailure(const QObject &navigator, const char *sentence,
                        const std::exception &error) noexcept
{
    try {
        if (LastFailure *last = LastFailure::of(navigator))
            last->keep(failureOf(QString::fromLatin1(sentence), error));
    } catch (...) {
    }
}

/// A copy, for a signal: a view may change the budget, or its own value, while it
/// hears the signal or a slot waits.
template <typename Value>
Value copied(const Value &value)
{
    return value;
}

/// Emits the signal with copies: all views hear the same, also when the first one
/// changes the value that it handed in.
template <typename... Parameters, typename... Values>
void tell(Navigator *navigator, void (Navigator::*signal)(Parameters...), const Values &...values)
{
    const std::tuple<std::remove_cvref_t<Parameters>...> told(values...);
    std::apply([&](const auto &...each) { (navigator->*signal)(each...); }, told);
}

/// The signals that answer a change of something with a name.
template <typename Name>
struct Answers {
    void (Navigator::*succeeded)(const Name &name);
    void (Navigator::*failed)(const std::optional<Name> &original, const QString &errorMessage,
                              const std::optional<Name> &displayed);
};

/// The names in these answers: the one of a success, and the two of a failure.
template <typename Name>
struct AnsweredNames {
    Name succeeded;
    std::optional<Name> original;
    std::optional<Name> displayed;
};

} // namespace internal

template <typename Caught, typename Operation, typename Failure>
bool Navigator::attempt(const char *sentence, Operation &&operation, Failure &&failure)
{
    try {
        operation();
        return true;
    } catch (const Caught &error) {
        internal::logWarning(sentence, error);
        internal::keepFailure(*this, sentence, error);
        failure(internal::userText(error));
        return false;
    }
}

template <typename Caught, typename Operation, typename Success, typename Failure>
bool Navigator::change(const char *sentence, Operation &&operation, Success &&success,
                       Failure &&failure)
{
    if (!attempt<Caught>(sentence, operation, failure))
        return false;
    m_isDirty = true;
    // Outside of the try: what a receiver throws is no failure of the change.
    success();
    return true;
}

template <typename Name, typename Operation>
void Navigator::changeNamed(const char *sentence, const internal::Answers<Name> &answers,
                            const internal::AnsweredNames<Name> &names, Operation &&operation)
{
    change(
        sentence, operation, [&] { internal::tell(this, answers.succeeded, names.succeeded); },
        [&](const QString &why) {
            internal::tell(this, answers.failed, names.original, why, names.displayed);
        });
}

template <typename Operation>
void Navigator::changeTransaction(const char *sentence, const accounting::TransactionNumber &tn,
                                  Operation &&operation)
{
    change(
        sentence, operation,
        [&] { internal::tell(this, &Navigator::transactionSaveSucceeded, tn, tn); },
        [&](const QString &why) {
            internal::tell(this, &Navigator::transactionSaveFailed, tn, why);
        });
}

template <typename Operation>
void Navigator::changeDue(const char *sentence, const budgeting::BudgetItemDueIdentifier &bidi,
                          Operation &&operation)
{
    std::optional<accounting::TransactionNumber> posted;
    change<std::exception>(
        sentence, [&] { posted = operation(); },
        [&] { internal::tell(this, &Navigator::processBudgetItemSaveSucceeded, bidi, posted); },
        [&](const QString &why) {
            internal::tell(this, &Navigator::processBudgetItemSaveFailed, bidi, why);
        });
}

} // namespace kiv::navigation
