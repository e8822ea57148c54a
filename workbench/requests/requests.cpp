// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/requests/requests.h"

#include "workbench/entry/similar.h"
#include "workbench/internal/faults.h"

#include "navigation/configuration.h"

#include <QtCore/QEventLoop>
#include <QtCore/QTimer>

namespace kiv::workbench {

using navigation::Failure;
using navigation::LastFailure;
using navigation::Navigator;

QString userText(const Failure &failure)
{
    QString text = failure.message;
    for (const QString &cause : failure.causes)
        text += QObject::tr(" Caused by: ") + cause;
    return inPlainWords(text);
}

QString userText(const std::exception &error)
{
    return userText(navigation::failureOf({}, error));
}

Requests::Requests(std::function<Navigator &()> reach, std::function<Data()> present)
    : m_reach(std::move(reach)), m_present(std::move(present))
{
}

Requests::~Requests() = default;

AccountIndex Requests::accounts()
{
    return AccountIndex(
        std::get<std::set<accounting::Account>>(
            ask(&Navigator::showAccounts, &Navigator::onPrepareShowAccounts)),
        [this](const budgeting::BudgetItemIdentifier &item) { return accountOf(item); });
}

std::optional<accounting::AccountNumber>
Requests::accountOf(const budgeting::BudgetItemIdentifier &item)
{
    const auto answer = ask(&Navigator::lookedUpRefundableTransactions,
                            &Navigator::onLookUpRefundableTransactions, item);
    // An item without an account has an empty code.
    const accounting::AccountNumber number = std::get<accounting::AccountCode>(answer).number();
    return number == accounting::AccountNumber() ? std::nullopt : std::optional(number);
}

banking::BankMap Requests::banks()
{
    return std::get<banking::BankMap>(ask(&Navigator::showBanks, &Navigator::onPrepareShowBanks));
}

banking::Bank Requests::bank(const QString &name)
{
    const banking::BankMap all = banks();
    const banking::BankName bankName(name);
    if (!all.hasBank(bankName)) {
        QStringList known;
        for (const banking::BankName &candidate : all.names())
            known += candidate.institution();
        throw internal::noSuchBank(name, similarTo(name, known));
    }
    return all.bank(bankName);
}

banking::BankAccount Requests::bankAccount(accounting::AccountNumber number, const QString &name)
{
    const banking::BankMap all = banks();
    const std::optional<banking::BankName> keeper = all.find(number);
    if (!keeper)
        throw internal::notABankAccount(name);
    return {*keeper, {number, all.bank(*keeper).accounts().at(number)}};
}

numira::Currency Requests::preferredCurrency()
{
    return std::get<navigation::ConfigurationData>(
               ask(&Navigator::showConfigure, &Navigator::onPrepareShowConfigure))
        .preferredCurrency;
}

navigation::CurrencyDisplayOptions Requests::displayAs()
{
    return std::get<navigation::ConfigurationData>(
               ask(&Navigator::showConfigure, &Navigator::onPrepareShowConfigure))
        .currenciesDisplayAs;
}

std::vector<accounting::Transaction> Requests::transactions()
{
    using accounting::TransactionNumber;
    // Two accounts have each transaction; it is seen from the debited one.
    const AccountIndex index = accounts();
    std::vector<std::pair<TransactionNumber, const accounting::Account *>> numbers;
    for (const accounting::Account &account : index.accounts()) {
        const accounting::TransactionList &list = account.transactions();
        for (auto each = list.begin(); each != list.end(); ++each)
            numbers.emplace_back(each.number(), &account);
    }
    std::ranges::sort(numbers);
    std::vector<accounting::Transaction> all;
    all.reserve(numbers.size() / 2);
    for (const auto &[number, account] : numbers) {
        if (all.empty() || all.back().number() != number) {
            const accounting::Transaction found = account->transactions().find(number).value();
            all.push_back(found.seenFrom(found.debiting().number()));
        }
    }
    return all;
}

accounting::Transaction Requests::transaction(accounting::TransactionNumber number)
{
    const AccountIndex index = accounts();
    for (const accounting::Account &account : index.accounts()) {
        if (const auto found = account.transactions().find(number))
            return *found;
    }
    throw internal::noSuchTransaction(accounting::presentationText(number));
}

Requests::Fetch<std::set<updating::ReleaseInformation>>
Requests::fetchReleases(std::chrono::milliseconds patience)
{
    const Running running(*this);
    Fetch<std::set<updating::ReleaseInformation>> answer{{}, QString()};
    QEventLoop loop;
    QObject::connect(&navigator(), &Navigator::fetchedReleaseNotes, &loop,
                     [&](const std::set<updating::ReleaseInformation> &versions) {
                         const std::optional<Failure> failure = knownFailure();
                         answer = {versions, std::nullopt};
                         if (failure)
                             answer.failure = userText(*failure);
                         loop.quit();
                     });
    QTimer::singleShot(patience, &loop, &QEventLoop::quit);
    // Called from within the loop, since the answer may come at once.
    QTimer::singleShot(0, &navigator(), &Navigator::onFetchReleaseNotes);
    loop.exec();
    return answer;
}

Failure Requests::reasonOf(const QString &text) const
{
    // If memory was too short for the reason, the signal has a part of it.
    return knownFailure().value_or(Failure{{}, text, {}});
}

std::optional<Failure> Requests::knownFailure() const
{
    const LastFailure *last = LastFailure::of(navigator());
    return last ? last->failure() : std::nullopt;
}

void Requests::forgetFailure() const
{
    if (LastFailure *last = LastFailure::of(navigator()))
        last->clear();
}

} // namespace kiv::workbench
