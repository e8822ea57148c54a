// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/versions/change_text.h"

#include "workbench/entry/account_index.h"
#include "workbench/entry/description.h"
#include "workbench/entry/kind_words.h"
#include "workbench/entry/money_text.h"

#include "foundation/local_dates.h"

#include <QtCore/QObject>

#include <array>

namespace kiv::workbench {
namespace {

const QString none = QStringLiteral("–");

/// A value of a thing, with the word for it. Main values tell what something is.
struct Field {
    QString word;
    QString text;
    bool isMain = false;
};
using Fields = std::vector<Field>;

QString text(const numira::Money &money)
{
    return amountText(money, navigation::CurrencyDisplayOptions::IsoCode);
}

QString text(const std::optional<numira::Money> &money)
{
    return money ? text(*money) : none;
}

QString text(QDate day)
{
    return day.isValid() ? foundation::localText(day) : none;
}

QString text(const accounting::AccountCode &code)
{
    return inPlainWords(accounting::presentationText(
        accounting::AccountCode(code.number(), code.name(), std::nullopt)));
}

QString text(accounting::TransactionStatuses status)
{
    switch (status) {
    case accounting::TransactionStatuses::Cleared:
        return QObject::tr("cleared");
    case accounting::TransactionStatuses::Reconciled:
        return QObject::tr("reconciled");
    case accounting::TransactionStatuses::None:
        break;
    }
    return QObject::tr("none", "the status of a transaction");
}

QString text(const QStringList &several)
{
    return several.isEmpty() ? none : several.join(QStringLiteral(", "));
}

QString openText(bool isClosed)
{
    return isClosed ? QObject::tr("closed") : QObject::tr("open", "the state of an account");
}

Fields fieldsOf(const ItemState &item)
{
    QStringList tags;
    for (const tagging::Tag &tag : item.tags)
        tags += tag.name();
    return {{QObject::tr("amount"), text(item.amount), true},
            {QObject::tr("every"), budgeting::presentationText(item.every), true},
            {QObject::tr("next"), text(item.next), true},
            {QObject::tr("borrowed"), text(item.borrowed)},
            {QObject::tr("target"), text(item.target)},
            {QObject::tr("tags"), text(tags)}};
}

Fields fieldsOf(const AccountState &account)
{
    const auto &parent = account.code.parent();
    return {{QObject::tr("balance"), text(account.balance), true},
            {QObject::tr("parent"), parent ? accounting::presentationText(*parent) : none},
            {QObject::tr("path"), inPlainWords(account.path)},
            {QObject::tr("type"), QObject::tr(accounting::toQString(account.type).toLatin1().constData())},
            {QObject::tr("state"), openText(account.isClosed)}};
}

Fields fieldsOf(const accounting::Transaction &transaction)
{
    const auto &refunded = transaction.refundOf();
    // Only what was exchanged has another amount on one of its sides.
    const auto side = [&transaction](const numira::Money &amount) {
        return amount == transaction.amount() ? none : text(amount);
    };
    return {{QObject::tr("date"), text(transaction.occurredOn()), true},
            {QObject::tr("amount"), text(transaction.amount()), true},
            {QObject::tr("from", "an account"), text(transaction.crediting())},
            {QObject::tr("to", "an account"), text(transaction.debiting())},
            {QObject::tr("amount given"), side(transaction.creditAmount())},
            {QObject::tr("amount received"), side(transaction.debitAmount())},
            {QObject::tr("description"), Description::of(transaction.description()).shown(), true},
            {QObject::tr("mark of the giver"), text(transaction.creditStatus())},
            {QObject::tr("mark of the receiver"), text(transaction.debitStatus())},
            {QObject::tr("refund of"), refunded ? accounting::presentationText(*refunded) : none}};
}

Fields fieldsOf(const BankState &bank)
{
    QStringList numbers;
    for (const accounting::AccountNumber number : bank.accounts)
        numbers += accounting::presentationText(number);
    return {{QObject::tr("accounts"), text(numbers)},
            {QObject::tr("state"), openText(bank.isClosed)}};
}

Fields fieldsOf(const SurveyState &survey)
{
    return {{QObject::tr("balance"), text(survey.balance), true},
            {QObject::tr("reconciled on"), text(survey.reconciledOn)},
            {QObject::tr("left over"), text(survey.nonDistributed)}};
}

Fields fieldsOf(const Thing &thing)
{
    return std::visit([](const auto &state) { return fieldsOf(state); }, thing);
}

QString detailOf(const Change &change)
{
    const Fields fields = fieldsOf(change.after ? *change.after : *change.before);
    const bool isChanged = change.before && change.after;
    const Fields before = isChanged ? fieldsOf(*change.before) : Fields();
    QStringList details;
    for (std::size_t place = 0; place < fields.size(); ++place) {
        const Field &field = fields[place];
        if (isChanged && field.text != before[place].text)
            details += QStringLiteral("%1 %2 → %3").arg(field.word, before[place].text, field.text);
        if (!isChanged && field.isMain && !field.text.isEmpty())
            details += field.text;
    }
    return details.join(QStringLiteral(", "));
}

QString whatOf(const Change &change)
{
    static constexpr std::array words{
        QT_TRANSLATE_NOOP("QObject", "item"),        QT_TRANSLATE_NOOP("QObject", "account"),
        QT_TRANSLATE_NOOP("QObject", "transaction"), QT_TRANSLATE_NOOP("QObject", "bank"),
        QT_TRANSLATE_NOOP("QObject", "survey"),
    };
    return QObject::tr(words.at((change.after ? *change.after : *change.before).index()));
}

QString howOf(const Change &change)
{
    if (!change.before)
        return QObject::tr("added");
    return change.after ? QObject::tr("changed") : QObject::tr("removed");
}

/// An item's name begins with its kind, which is translated.
QString nameOf(const Change &change)
{
    if (const auto *item = std::get_if<ItemState>(change.after ? &*change.after : &*change.before))
        return kindText(item->id.type) + u' ' + item->id.source.name();
    return inPlainWords(change.name);
}

} // namespace

ChangeText changeText(const Change &change)
{
    return {whatOf(change), nameOf(change), howOf(change), detailOf(change)};
}

} // namespace kiv::workbench
