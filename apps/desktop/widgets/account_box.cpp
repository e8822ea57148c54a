// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/account_box.h"

#include "widgets/completion_keys.h"
#include "widgets/offer.h"

#include "workbench/errors.h"

#include <QtWidgets/QCompleter>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionComboBox>

namespace kiv::desktop {

using accounting::AccountNumber;

AccountBox::AccountBox(QWidget *parent) : QComboBox(parent)
{
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setMinimumContentsLength(8);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    auto *names = new QCompleter(model(), this);
    names->setCompletionMode(QCompleter::PopupCompletion);
    names->setFilterMode(Qt::MatchContains);
    names->setCaseSensitivity(Qt::CaseInsensitive);
    setCompleter(names);
    auto *keys = new CompletionKeys(*names, *this, CompletionKeys::OnlyMatch::IsTaken);
    connect(keys, &CompletionKeys::taken, this, &QComboBox::setEditText);
    connect(names, qOverload<const QString &>(&QCompleter::activated), this, &AccountBox::chosen);
    connect(this, &QComboBox::activated, this, &AccountBox::chosen);
    connect(lineEdit(), &QLineEdit::editingFinished, this, &AccountBox::chosen);
}

void AccountBox::offer(std::shared_ptr<const workbench::AccountIndex> accounts,
                       const std::vector<AccountNumber> &offered)
{
    m_accounts = std::move(accounts);
    const QString typed = currentText();
    const QSignalBlocker blocker(this);
    desktop::offer(*this, {}, *m_accounts, offered);
    setCurrentIndex(findText(typed, Qt::MatchExactly));
    setEditText(typed);
}

void AccountBox::setAccount(std::optional<AccountNumber> account)
{
    const QSignalBlocker blocker(this);
    setCurrentIndex(account ? findData(account->integer()) : -1);
    setEditText(account && m_accounts ? m_accounts->plainName(*account) : QString());
}

AccountNumber AccountBox::account(const QString &ifEmpty) const
{
    const QString typed = currentText().trimmed();
    if (typed.isEmpty() || !m_accounts)
        throw workbench::Refusal(ifEmpty);
    // Among those that are offered, case does not matter.
    int row = findText(typed, Qt::MatchFixedString | Qt::MatchCaseSensitive);
    if (row < 0)
        row = findText(typed, Qt::MatchFixedString);
    return row >= 0 ? AccountNumber(itemData(row).toUInt())
                    : m_accounts->find(typed).code().number();
}

std::optional<AccountNumber> AccountBox::accountIfAny() const
{
    try {
        return account({});
    } catch (const workbench::Refusal &) {
        return std::nullopt;
    }
}

QSize AccountBox::withRoom(QSize size) const
{
    // With a large font the box would be too low for the field in it.
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.rect = QRect(QPoint(), size);
    const QRect field =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    size.rheight() += std::max(0, lineEdit()->sizeHint().height() - field.height());
    return size;
}

QSize AccountBox::sizeHint() const
{
    return withRoom(QComboBox::sizeHint());
}

QSize AccountBox::minimumSizeHint() const
{
    return withRoom(QComboBox::minimumSizeHint());
}

} // namespace kiv::desktop
