// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/item_form.h"

#include "widgets/allow.h"
#include "widgets/day_edit.h"
#include "widgets/frequency_box.h"
#include "widgets/money_edit.h"
#include "widgets/names_edit.h"

#include "workbench/entry/kind_words.h"
#include "workbench/entry/tags_text.h"

#include "foundation/clock.h"
#include "navigation/configuration.h"

#include <QtWidgets/QComboBox>

namespace kiv::desktop {

using banking::BankAccount;
using banking::BankAccountTypes;
using budgeting::BudgetItemIdentifier;
using budgeting::BudgetItemTypes;
using budgeting::BudgetSource;
using navigation::Navigator;
using workbench::BudgetView;
using workbench::ItemValues;

namespace {

constexpr navigation::GuiElementIdentifier caller(1);

QString headingOf(BudgetItemTypes kind, const QString &name)
{
    return name.isEmpty() ? QObject::tr("New %1").arg(workbench::kindText(kind))
                          : QObject::tr("%1 (%2)").arg(name, workbench::kindText(kind));
}

} // namespace

ItemForm::ItemForm(Desk &desk, Form &form)
    : QObject(&form),
      m_desk(desk),
      m_form(form),
      m_name(new QLineEdit),
      m_amount(new MoneyEdit),
      m_every(new FrequencyBox),
      m_next(new DayEdit),
      m_extra(new MoneyEdit),
      m_since(new DayEdit),
      m_bank(new QComboBox),
      m_kind(new QComboBox),
      m_tags(new NamesEdit)
{
    addFields();
    connect(m_bank, &QComboBox::currentIndexChanged, this, &ItemForm::follow);
}

void ItemForm::addFields()
{
    m_form.add(QStringLiteral("name"), tr("&Name:"), m_name);
    m_form.add(QStringLiteral("amount"), tr("&Amount each time:"), m_amount);
    m_form.add(QStringLiteral("every"), tr("Ho&w often:"), m_every);
    m_form.add(QStringLiteral("next"), tr("Ne&xt on:"), m_next);
    m_form.add(QStringLiteral("extra"), tr("Am&ount borrowed:"), m_extra);
    m_form.add(QStringLiteral("since"), tr("Owe&d since:"), m_since);
    m_form.add(QStringLiteral("bank"), tr("&Bank:"), m_bank);
    m_form.add(QStringLiteral("kind"), tr("&Kind of debt:"), m_kind);
    m_form.add(QStringLiteral("tags"), tr("Tags, with co&mmas:"), m_tags);
    for (const auto kind :
         {BankAccountTypes::Loan, BankAccountTypes::CreditCard, BankAccountTypes::LineOfCredit})
        m_kind->addItem(banking::presentationText(kind), static_cast<int>(kind));
    for (QComboBox *box : {m_bank, m_kind}) {
        box->setMinimumContentsLength(8); // a long name makes the form no wider
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    }
}

QWidget &ItemForm::firstField() const
{
    return *m_name;
}

void ItemForm::begin(const BudgetItemIdentifier &id)
{
    m_id = id;
    m_form.setHeading(headingOf(id.type, id.source.name()));
    const auto settings = std::get<navigation::ConfigurationData>(
        m_desk.requests().ask(&Navigator::showConfigure, &Navigator::onPrepareShowConfigure));
    m_currency = settings.preferredCurrency;
    QStringList tags;
    for (const tagging::Tag &tag : settings.tags)
        tags += tag.name();
    m_tags->offer(tags);
    m_shown = {};
    for (QLineEdit *field : {static_cast<QLineEdit *>(m_name), static_cast<QLineEdit *>(m_amount),
                             static_cast<QLineEdit *>(m_extra), static_cast<QLineEdit *>(m_tags)})
        field->clear();
    m_name->setText(id.source.name());
    m_every->setFrequency(budgeting::EventFrequency::Monthly);
    m_next->setDay(foundation::today());
    m_since->setDay(foundation::today());
    m_kind->setCurrentIndex(0);
    showKind();
}

void ItemForm::showKind()
{
    const bool isDebt = m_id.type == BudgetItemTypes::Debt;
    const bool isGoal = m_id.type == BudgetItemTypes::Goal;
    m_form.setShown(*m_extra, isDebt || isGoal);
    m_form.setShown(*m_bank, isDebt || isGoal);
    m_form.setShown(*m_kind, isDebt);
    m_form.setShown(*m_since, isDebt && isNew());
    m_form.setLabel(*m_extra, isDebt ? tr("Am&ount borrowed:") : tr("T&o be reached:"));
    m_form.setLabel(*m_bank, isDebt ? tr("Owed to the &bank:") : tr("Kept in the &bank account:"));
}

void ItemForm::beginNew(BudgetItemTypes kind)
{
    begin({kind, BudgetSource()});
    m_amount->setCurrency(m_currency);
    m_extra->setCurrency(m_currency);
    offerBanks();
}

void ItemForm::beginChange(const BudgetItemIdentifier &id)
{
    const BudgetView view(m_desk.document().present());
    const budgeting::BudgetedMoney &item = view.find(id.source.name(), id.type);
    begin(id);
    m_shown.link = view.bankAccount(id);
    offerBanks();
    show(item, view);
}

void ItemForm::show(const budgeting::BudgetedMoney &item, const BudgetView &view)
{
    m_currency = item.amount().code();
    m_amount->setCurrency(m_currency);
    m_extra->setCurrency(m_currency);
    m_amount->setMoney(item.amount());
    if (const auto *debt = dynamic_cast<const budgeting::Debt *>(&item))
        m_extra->setMoney(debt->borrowed());
    if (const auto *goal = dynamic_cast<const budgeting::Goal *>(&item))
        m_extra->setMoney(goal->final());
    m_every->setFrequency(item.period());
    m_next->setDay(item.nextOccurOn());
    m_tags->setText(workbench::tagsText(view.tags(m_id)));
    m_shown.amount = m_amount->text();
    m_shown.extra = m_extra->text();
    m_shown.next = item.nextOccurOn();
}

void ItemForm::offerBanks()
{
    const QSignalBlocker blocker(m_bank);
    m_bank->clear();
    m_bank->addItem(tr("none"), QVariant());
    const workbench::AccountIndex index = m_desk.requests().accounts();
    for (const auto &[name, bank] : m_desk.requests().banks()) {
        if (m_id.type == BudgetItemTypes::Debt) {
            m_bank->addItem(name.institution(), name.institution());
            continue;
        }
        for (const auto &[number, kind] : bank.accounts()) {
            if (banking::isAssetAccount(kind) && kind != BankAccountTypes::GoalSubAccount)
                m_bank->addItem(tr("%1 (%2)").arg(index.plainName(number), name.institution()),
                                number.integer());
        }
    }
    if (const auto &link = m_shown.link)
        m_bank->setCurrentIndex(
            std::max(0, m_bank->findData(m_id.type == BudgetItemTypes::Debt
                                             ? QVariant(link->bank.institution())
                                             : QVariant(link->account.number.integer()))));
    if (m_shown.link && m_id.type == BudgetItemTypes::Debt)
        m_kind->setCurrentIndex(m_kind->findData(static_cast<int>(m_shown.link->account.type)));
    follow();
}

void ItemForm::follow()
{
    std::optional<QString> whyNot = m_desk.whyNoChange();
    const QString bank = m_bank->currentData().toString();
    if (!whyNot && bank.isEmpty())
        whyNot = tr("The debt is at no bank.");
    else if (!whyNot && m_shown.link && bank == m_shown.link->bank.institution())
        whyNot = tr("The page of banks corrects the kind of an account.");
    allow(*m_kind, whyNot);
}

std::optional<workbench::Amount> ItemForm::amountIn(MoneyEdit &field)
{
    return m_form.read(field, [&] {
        workbench::Amount amount = field.amount();
        static_cast<void>(amount.in(m_currency));
        return amount;
    });
}

std::optional<ItemValues> ItemForm::values()
{
    ItemValues values;
    if (isNew() || m_amount->text() != m_shown.amount) {
        values.amount = amountIn(*m_amount);
        if (!values.amount)
            return std::nullopt;
    }
    const bool hasExtra = !m_extra->isHidden() && !m_extra->text().trimmed().isEmpty();
    if (hasExtra && m_extra->text() != m_shown.extra) {
        values.extra = amountIn(*m_extra);
        if (!values.extra)
            return std::nullopt;
    }
    values.every = m_every->frequency();
    const auto next = m_form.read(*m_next, [this] { return m_next->day(); });
    if (!next)
        return std::nullopt;
    if (*next != m_shown.next)
        values.next = next;
    values.tags = workbench::tagsOf(m_tags->text());
    addLink(values);
    return values;
}

void ItemForm::addLink(ItemValues &values) const
{
    if (m_bank->isHidden())
        return;
    const QVariant chosen = m_bank->currentData();
    if (!chosen.isValid()) {
        values.isUntied = m_shown.link.has_value();
    } else if (m_id.type == BudgetItemTypes::Debt) {
        const banking::BankName bank(chosen.toString());
        const auto kind = static_cast<BankAccountTypes>(m_kind->currentData().toInt());
        if (!m_shown.link || m_shown.link->bank != bank)
            values.bankAccount = BankAccount{bank, {accounting::AccountNumber(), kind}};
    } else {
        const accounting::AccountNumber number(chosen.toUInt());
        if (!m_shown.link || m_shown.link->account.number != number)
            values.bankAccount = m_desk.requests().bankAccount(number, m_bank->currentText());
    }
}

std::optional<BudgetSource> ItemForm::save()
{
    workbench::NewName name;
    if (!m_form.read(*m_name, [&] { workbench::readValue(m_name->text().trimmed(), name); }))
        return std::nullopt;
    const std::optional<ItemValues> given = values();
    if (!given)
        return std::nullopt;
    const BudgetItemIdentifier id{m_id.type, BudgetSource(name.text)};
    const bool isSaved = isNew() ? add(id, *given) : change(id, *given);
    return isSaved ? std::optional(id.source) : std::nullopt;
}

bool ItemForm::add(const BudgetItemIdentifier &id, const ItemValues &values)
{
    std::optional<QDate> since;
    if (!m_since->isHidden()) {
        since = m_form.read(*m_since, [this] { return m_since->day(); });
        if (!since)
            return false;
    }
    const QString kind = workbench::kindText(id.type);
    const QString name = id.source.name();
    const workbench::Deed deed{
        tr("Added the %1 “%2”.").arg(kind, name), tr("adding the %1 “%2”").arg(kind, name),
        QStringLiteral("items/%1/%2").arg(workbench::kindWord(id.type), name)};
    return m_form.perform(*m_amount, deed, [&] {
        ItemValues own = values;
        own.bankAccount.reset(); // linked by itself, so that a refusal tells the field
        try {
            workbench::addItem(m_desk.requests(), caller, id, own, foundation::today(), since);
        } catch (const workbench::Refusal &) {
            m_form.blame(*m_name); // the values alone were accepted
            throw;
        }
        if (values.bankAccount) {
            m_form.blame(*m_bank);
            ItemValues link;
            link.bankAccount = values.bankAccount;
            workbench::updateItem(m_desk.requests(), caller,
                                  BudgetView(m_desk.document().present()), id, link);
        }
    });
}

bool ItemForm::change(const BudgetItemIdentifier &id, const ItemValues &values)
{
    const QString kind = workbench::kindText(id.type);
    const QString name = id.source.name();
    const bool isRenamed = id.source != m_id.source;
    workbench::Deed deed{tr("Changed the %1 “%2”.").arg(kind, name),
                         tr("changing the %1 “%2”").arg(kind, name),
                         QStringLiteral("items/%1/%2").arg(workbench::kindWord(id.type), name)};
    if (isRenamed) {
        const QString before = m_id.source.name();
        deed.line = tr("The %1 “%2” is now called “%3”.").arg(kind, before, name);
        deed.undone = tr("renaming “%1” to “%2”").arg(before, name);
    }
    return m_form.perform(*m_amount, deed, [&] {
        if (isRenamed) {
            m_form.blame(*m_name);
            workbench::renameItem(m_desk.requests(), caller, m_id, id.source);
            m_form.blame(*m_amount);
        }
        if (values.bankAccount || values.isUntied)
            m_form.blame(*m_bank);
        workbench::updateItem(m_desk.requests(), caller, BudgetView(m_desk.document().present()),
                              id, values);
    });
}

} // namespace kiv::desktop
