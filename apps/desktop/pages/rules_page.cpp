// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/rules_page.h"

#include "models/table_model.h"
#include "widgets/account_box.h"
#include "widgets/allow.h"
#include "widgets/money_edit.h"
#include "widgets/table.h"

#include "workbench/entry/money_text.h"
#include "workbench/statements/statement_books.h"

#include <QtWidgets/QCheckBox>

namespace kiv::desktop {

using accounting::AccountNumber;
using workbench::ImportMemory;
using workbench::ImportRule;
using workbench::TypedRule;

namespace {

const QString newRule = QStringLiteral("new");
const QString trial = QStringLiteral("try");

/// Its place in the list, as people count.
QString keyOf(std::size_t place)
{
    return QString::number(place + 1);
}

numira::Currency currencyOf(const ImportRule &rule, const workbench::AccountIndex &accounts)
{
    const accounting::Account *counted = accounts.find(rule.of.value_or(rule.target));
    return counted ? counted->balance().code() : numira::Currency();
}

QString spanText(const ImportRule &rule, const workbench::AccountIndex &accounts,
                 navigation::CurrencyDisplayOptions displayAs)
{
    const auto shown = [&](const numira::Decimal &amount) {
        return workbench::amountText(numira::Money(currencyOf(rule, accounts), amount), displayAs);
    };
    if (rule.least && rule.most)
        return QObject::tr("%1 to %2").arg(shown(*rule.least), shown(*rule.most));
    if (rule.least)
        return QObject::tr("from %1").arg(shown(*rule.least));
    return rule.most ? QObject::tr("up to %1").arg(shown(*rule.most)) : QObject::tr("any");
}

std::vector<Row> ruleRows(const std::vector<ImportRule> &rules,
                          const workbench::AccountIndex &accounts,
                          navigation::CurrencyDisplayOptions displayAs)
{
    std::vector<Row> rows;
    for (const ImportRule &rule : rules) {
        const QString key = keyOf(rows.size());
        rows.push_back({key,
                        {{rule.text},
                         {rule.isPattern ? QObject::tr("pattern") : QObject::tr("words")},
                         {spanText(rule, accounts, displayAs)},
                         {rule.of ? accounts.plainName(*rule.of) : QObject::tr("any account")},
                         {accounts.plainName(rule.target)}}});
    }
    return rows;
}

} // namespace

RulesPage::RulesPage(Desk &desk)
    : ListPage(desk, QStringLiteral("rules"), tr("Import rules"),
               {tr("Text"), tr("Kind"), tr("Amount"), tr("Files of"), tr("Item or account")}),
      m_new(addButton(newRule, tr("&New rule"), [this] { begin({}); })),
      m_change(addButton(QStringLiteral("change"), tr("&Change"), [this] { change(); })),
      m_up(addButton(QStringLiteral("up"), tr("Move &up"), [this] { moveUp(); })),
      m_try(addButton(trial, tr("Tr&y the rules"), [this] { beginTrial(); })),
      m_remove(addButton(QStringLiteral("remove"), tr("&Remove"), [this] { remove(); })),
      m_form(addForm(QStringLiteral("ruleForm"))),
      m_trial(addForm(QStringLiteral("trialForm")))
{
    addRuleForm();
    addTrialForm();
}

void RulesPage::addRuleForm()
{
    m_form->setHeading(tr("Entries of banks’ files whose payee or text fits are for this item or "
                          "account. The first rule that fits counts."));
    m_text = m_form->add(QStringLiteral("text"), tr("&Payee or text contains:"), new QLineEdit);
    m_isPattern = m_form->add(QStringLiteral("pattern"), tr("Kind of text:"),
                              new QCheckBox(tr("It is a regula&r expression")));
    m_target = m_form->add(QStringLiteral("target"), tr("&Item or account:"), new AccountBox);
    m_least = m_form->add(QStringLiteral("least"), tr("&Amount at least:"), new MoneyEdit);
    m_most = m_form->add(QStringLiteral("most"), tr("Amount at &most:"), new MoneyEdit);
    m_of = m_form->add(QStringLiteral("of"), tr("&Only in files of:"), new AccountBox);
    addFormButtons(*m_form, [this] { save(); });
}

void RulesPage::addTrialForm()
{
    m_said = m_trial->add(QStringLiteral("said"), tr("&What the bank says:"), new QLineEdit);
    m_amount = m_trial->add(QStringLiteral("amount"), tr("A&mount:"), new MoneyEdit);
    m_file = m_trial->add(QStringLiteral("fileOf"), tr("In a file &of:"), new AccountBox);
    m_trial->addButton(QStringLiteral("tryOut"), tr("Tr&y"), [this] { tryOut(); });
    m_trial->addButton(QStringLiteral("cancel"), tr("Cancel"), [this] { closeForm(); });
}

// ---- what is shown -----------------------------------------------------------------

void RulesPage::forgetFile()
{
    ListPage::forgetFile();
    m_said->setText({});
    m_amount->setText({});
    m_file->setAccount(std::nullopt);
}

void RulesPage::goTo(const QString &detail)
{
    closeForm();
    if (detail == newRule)
        begin({});
    else if (detail == trial)
        beginTrial();
    else
        choose(detail);
}

QString RulesPage::detail() const
{
    return chosen();
}

QStringList RulesPage::parts() const
{
    return {newRule, trial};
}

void RulesPage::refresh()
{
    m_memory = ImportMemory::of(desk().document().notes());
    m_accounts = std::make_shared<const workbench::AccountIndex>(requests().accounts());
    std::vector<AccountNumber> open;
    std::vector<AccountNumber> kept;
    const auto banks = workbench::accountsWithStatements(requests());
    for (const accounting::Account &account : m_accounts->accounts()) {
        if (account.isClosed())
            continue;
        open.push_back(account.code().number());
        if (banks.contains(account.code().number()))
            kept.push_back(account.code().number());
    }
    m_target->offer(m_accounts, open);
    for (AccountBox *box : {m_of, m_file})
        box->offer(m_accounts, kept);
    for (MoneyEdit *field : {m_least, m_most, m_amount})
        field->setCurrency(requests().preferredCurrency());
    showRows(ruleRows(m_memory.rules, *m_accounts, desk().document().displayAs()),
             tr("There are no rules. Without them, an import learns from former entries of the "
                "same payee."));
    // The rule that was being changed may be gone.
    if (openForm() == m_form && m_changed && *m_changed >= m_memory.rules.size())
        closeForm();
}

std::optional<std::size_t> RulesPage::place() const
{
    const std::size_t number = chosen().toULongLong();
    return number > 0 && number <= m_memory.rules.size() ? std::optional(number - 1) : std::nullopt;
}

void RulesPage::follow()
{
    allow(*m_new, desk().whyNoChange());
    allow(*m_try, m_memory.rules.empty() ? std::optional(tr("There are no rules.")) : std::nullopt);
    allowForRow({m_change, m_remove});
    allowForRow({m_up}, place() == std::size_t{0} ? std::optional(tr("It is the first rule."))
                                                  : std::nullopt);
}

void RulesPage::followForm()
{
    if (openForm() == m_trial)
        m_trial->allow(std::nullopt); // it changes nothing
}

// ---- deeds -------------------------------------------------------------------------

void RulesPage::begin(std::optional<std::size_t> place)
{
    m_changed = place;
    const ImportRule rule = place ? m_memory.rules[*place] : ImportRule();
    m_text->setText(rule.text);
    m_isPattern->setChecked(rule.isPattern);
    m_of->setAccount(rule.of);
    m_target->setAccount(place ? std::optional(rule.target) : std::nullopt);
    for (const auto &[field, bound] : {std::pair(m_least, rule.least), {m_most, rule.most}}) {
        field->clear();
        if (place)
            field->setCurrency(currencyOf(rule, *m_accounts));
        if (bound)
            field->setMoney({currencyOf(rule, *m_accounts), *bound});
    }
    open(*m_form, *m_text);
}

void RulesPage::change()
{
    if (place() && m_change->isEnabled())
        begin(place());
}

template <typename Field, typename Read>
bool RulesPage::readIfTyped(Form &form, Field &field, bool isEmpty, Read &&read)
{
    return isEmpty || form.read(field, read);
}

std::optional<ImportRule> RulesPage::typedRule()
{
    TypedRule typed{m_text->text(), m_isPattern->isChecked(), {}, {}, {}, {}};
    std::optional<ImportRule> rule;
    const auto check = [&] { rule = ruleOf(typed, *m_accounts); };
    const auto readTarget = [&] {
        typed.target = m_target->account(tr("Choose the item or account of such entries."));
    };
    // What is wrong then is wrong with the field that was added last.
    const bool isRead =
        readIfTyped(*m_form, *m_text, false, check) &&
        readIfTyped(*m_form, *m_target, false, readTarget) &&
        readIfTyped(*m_form, *m_of, m_of->isEmpty(), [&] { typed.of = m_of->account({}); }) &&
        readIfTyped(*m_form, *m_least, m_least->text().trimmed().isEmpty(),
                    [&] {
                        typed.least = m_least->amount();
                        check();
                    }) &&
        readIfTyped(*m_form, *m_most, m_most->text().trimmed().isEmpty(), [&] {
            typed.most = m_most->amount();
            check();
        });
    if (!isRead)
        return std::nullopt;
    check();
    return rule;
}

workbench::Deed RulesPage::deed(const QString &line, const QString &undone, const QString &text,
                                std::size_t place) const
{
    return {line.arg(text), undone.arg(text), Place{id(), keyOf(place)}.text()};
}

void RulesPage::save()
{
    const std::optional<ImportRule> rule = typedRule();
    if (!rule)
        return;
    ImportMemory memory = m_memory;
    const std::size_t place = m_changed.value_or(memory.rules.size());
    if (m_changed)
        memory.rules[place] = *rule;
    else
        memory.rules.push_back(*rule);
    const workbench::Deed done =
        m_changed
            ? deed(tr("Changed the rule “%1”."), tr("changing the rule “%1”"), rule->text, place)
            : deed(tr("Added the rule “%1”."), tr("adding the rule “%1”"), rule->text, place);
    workbench::Document &document = desk().document();
    if (!m_form->perform(*m_text, done,
                         [&] { document.setNotes(memory.keptIn(document.notes())); }))
        return;
    closeForm();
    choose(keyOf(place));
}

void RulesPage::remove()
{
    const std::optional<std::size_t> gone = place();
    if (!gone || !m_remove->isEnabled())
        return;
    ImportMemory memory = m_memory;
    const QString text = memory.rules[*gone].text;
    memory.rules.erase(memory.rules.begin() + static_cast<std::ptrdiff_t>(*gone));
    workbench::Document &document = desk().document();
    perform(deed(tr("Removed the rule “%1”."), tr("removing the rule “%1”"), text, *gone),
            [&] { document.setNotes(memory.keptIn(document.notes())); });
}

void RulesPage::moveUp()
{
    const std::optional<std::size_t> moved = place();
    if (!moved || *moved == 0)
        return;
    ImportMemory memory = m_memory;
    std::swap(memory.rules[*moved], memory.rules[*moved - 1]);
    const QString text = memory.rules[*moved - 1].text;
    workbench::Document &document = desk().document();
    const bool isDone =
        perform(deed(tr("Moved the rule “%1” up."), tr("moving the rule “%1”"), text, *moved - 1),
                [&] { document.setNotes(memory.keptIn(document.notes())); });
    if (isDone)
        choose(keyOf(*moved - 1));
}

void RulesPage::beginTrial()
{
    m_trial->setHeading(tr("Which rule fits what a bank says of an entry?"));
    open(*m_trial, *m_said);
}

void RulesPage::tryOut()
{
    interchange::StatementEntry entry{{}};
    entry.text = m_said->text();
    AccountNumber of;
    const bool isRead =
        readIfTyped(
            *m_trial, *m_amount, m_amount->text().trimmed().isEmpty(),
            [&] { entry.amount = m_amount->amount().in(requests().preferredCurrency()); }) &&
        readIfTyped(*m_trial, *m_file, m_file->isEmpty(), [&] { of = m_file->account({}); });
    if (!isRead)
        return;
    m_trial->message().withdraw();
    const workbench::RuleBook book(m_memory.rules);
    const std::optional<std::size_t> fitting = book.first(entry, of);
    if (fitting)
        choose(keyOf(*fitting));
    const QString sentence = trialText(book, fitting, *m_accounts);
    m_trial->setHeading(sentence);
    desk().say(sentence);
}

} // namespace kiv::desktop
