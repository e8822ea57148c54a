// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/internal/other_sides.h"

#include "workbench/entry/description.h"
#include "workbench/entry/folded.h"

#include "interchange/account_paths.h"

#include <QtCore/QObject>

#include <algorithm>

namespace kiv::workbench::internal {

using accounting::AccountNumber;
using accounting::Transaction;
using interchange::StatementEntry;

namespace {

/// Below so many percent, another account may be as good.
constexpr int sureShare = 60;

} // namespace

OtherSides::OtherSides(const StatementBooks &books, const ImportChoices &choices)
    : m_books(books), m_choices(choices), m_index(books.accounts), m_rules(choices.memory.rules)
{
    for (const accounting::Account &account : m_index.accounts()) {
        const AccountNumber number = account.code().number();
        if (account.isClosed() || number == books.account.number())
            continue;
        m_possible.insert(number);
        for (const QString &name : namesOf(number))
            m_byPath[name].push_back(number);
    }
    for (const interchange::AccountRule &rule : choices.rules)
        m_profileTexts.push_back(folded(rule.contains));
    for (const auto &[key, account] : choices.memory.learned)
        m_said.insert_or_assign(key, account);
}

std::set<QString> OtherSides::namesOf(AccountNumber number) const
{
    return {folded(m_index.plainPath(number)), folded(m_index.path(number)),
            folded(m_index.plainName(number)), folded(m_index.find(number)->code().name())};
}

bool OtherSides::isOwn(const StatementEntry &entry) const
{
    return entry.isTransfer && namesOf(m_books.account.number()).contains(folded(entry.category));
}

OtherSides::Choice OtherSides::choose(const StatementEntry &entry)
{
    if (const auto chosen = byRule(entry))
        return *chosen;
    // An account that the file names is no guess.
    const auto named = byCategory(entry);
    if (named && entry.isTransfer && named->account)
        return *named;
    if (const auto chosen = byFormer(entry))
        return *chosen;
    if (named && (named->account || !m_choices.otherwise))
        return *named;
    if (!m_choices.otherwise)
        return {OtherSideBy::Nobody, {}, QObject::tr("It is not known what it was for."), true};
    Choice given{OtherSideBy::Given, m_choices.otherwise, {}};
    if (entry.isTransfer) {
        given.isDoubtful = true;
        given.reason = QObject::tr("There is no account '%1'; its transfers are posted to '%2'.")
                           .arg(entry.category, m_index.plainPath(*m_choices.otherwise));
    }
    return given;
}

std::optional<OtherSides::Choice> OtherSides::byRule(const StatementEntry &entry)
{
    if (const auto place = m_rules.first(entry, m_books.account.number())) {
        const ImportRule &rule = m_rules.rules()[*place];
        if (m_possible.contains(rule.target))
            return Choice{OtherSideBy::Rule, rule.target,
                          QObject::tr("By the rule “%1”.").arg(rule.text)};
    }
    const QString text = m_profileTexts.empty() ? QString() : folded(ruleText(entry));
    for (std::size_t at = 0; at < m_profileTexts.size(); ++at) {
        if (!text.contains(m_profileTexts[at]))
            continue;
        // A profile serves several budgets, which need not have all of its accounts.
        const interchange::AccountRule &rule = m_choices.rules[at];
        auto found = m_found.find(rule.account);
        if (found == m_found.end())
            found = m_found.emplace(rule.account, m_index.find(rule.account).code().number()).first;
        if (m_possible.contains(found->second))
            return Choice{OtherSideBy::Rule, found->second,
                          QObject::tr("By the rule “%1”.").arg(rule.contains)};
    }
    return std::nullopt;
}

std::optional<OtherSides::Choice> OtherSides::byFormer(const StatementEntry &entry)
{
    QString key = payeeKey(entry.payee, entry.text);
    if (key.isEmpty())
        return std::nullopt;
    if (const auto said = m_said.find(key);
        said != m_said.end() && m_possible.contains(said->second))
        return Choice{OtherSideBy::Learned, said->second, QObject::tr("As you said before.")};
    learnFromBooks();
    // A bank adds the town or a card's name to what a person writes.
    constexpr qsizetype wordMin = 3;
    for (; key.size() >= wordMin; key.truncate(std::max<qsizetype>(key.lastIndexOf(u' '), 0))) {
        const auto found = m_payees.find(key);
        if (found == m_payees.end())
            continue;
        const bool isOut = entry.amount.isNegative();
        if (const auto chosen = usual(found->second, isOut))
            return chosen;
        if (auto chosen = usual(found->second, !isOut)) { // what is given back
            chosen->isDoubtful = true;
            return chosen;
        }
    }
    return std::nullopt;
}

void OtherSides::learnFromBooks()
{
    if (std::exchange(m_hasLearned, true))
        return;
    std::set<AccountNumber> own;
    for (const accounting::Account &account : m_index.accounts()) {
        if (keepsMoney(account))
            own.insert(account.code().number());
    }
    // Most descriptions occur again and again.
    std::unordered_map<QString, QString> keys;
    for (std::size_t place = 0; place < m_books.posted.size(); ++place) {
        const Transaction &transaction = m_books.posted[place];
        if (!transaction.description())
            continue;
        const QString text = Description::withoutIds(*transaction.description()).toString();
        auto known = keys.find(text);
        if (known == keys.end()) {
            const Description said = Description::of(text);
            known = keys.emplace(text, payeeKey(said.payee, said.reason)).first;
        }
        if (known->second.isEmpty())
            continue;
        const AccountNumber debit = transaction.debiting().number();
        const AccountNumber credit = transaction.crediting().number();
        if (own.contains(credit))
            count(known->second, debit, true, place);
        if (own.contains(debit))
            count(known->second, credit, false, place);
    }
}

void OtherSides::count(const QString &key, AccountNumber account, bool isOut, std::size_t place)
{
    if (!m_possible.contains(account))
        return;
    Payee &payee = m_payees[key];
    std::vector<Former> &all = isOut ? payee.out : payee.in;
    auto found = std::ranges::find(all, account, &Former::account);
    if (found == all.end())
        found = all.insert(all.end(), {account});
    ++found->count;
    found->newest = place;
}

std::optional<OtherSides::Choice> OtherSides::usual(const Payee &payee, bool isOut) const
{
    const std::vector<Former> &all = isOut ? payee.out : payee.in;
    if (all.empty())
        return std::nullopt;
    int total = 0;
    for (const Former &former : all)
        total += former.count;
    const Former &best = *std::ranges::max_element(
        all, {}, [](const Former &former) { return std::pair(former.count, former.newest); });
    return Choice{OtherSideBy::Learned, best.account,
                  total == 1 ? QObject::tr("As the last time.")
                             : QObject::tr("As %1 of %2 times.")
                                   .arg(QString::number(best.count), QString::number(total)),
                  best.count * 100 < total * sureShare};
}

std::optional<OtherSides::Choice> OtherSides::byCategory(const StatementEntry &entry) const
{
    if (entry.category.isEmpty())
        return std::nullopt;
    const auto type = entry.amount.isNegative() ? accounting::AccountTypes::Expense
                                                : accounting::AccountTypes::Income;
    const auto other = entry.amount.isNegative() ? accounting::AccountTypes::Income
                                                 : accounting::AccountTypes::Expense;
    QStringList paths{entry.category};
    if (!entry.isTransfer)
        paths = {interchange::rootOf(type) + u':' + entry.category,
                 interchange::rootOf(other) + u':' + entry.category, entry.category};
    for (const QString &path : paths) {
        const auto found = m_byPath.find(folded(path));
        if (found != m_byPath.end() && found->second.size() == 1)
            return Choice{OtherSideBy::Category, found->second.front(),
                          QObject::tr("By the file's category.")};
    }
    if (entry.isTransfer)
        return std::nullopt;
    QStringList names;
    for (const QString &name : entry.category.split(u':', Qt::SkipEmptyParts)) {
        if (!name.trimmed().isEmpty())
            names += name.trimmed();
    }
    if (names.isEmpty())
        return std::nullopt;
    return Choice{
        OtherSideBy::Opened,
        {},
        QObject::tr("By the file's category; “%1” is opened for it.").arg(names.join(u':')),
        true,
        names};
}

} // namespace kiv::workbench::internal
