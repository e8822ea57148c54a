// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/items_page.h"

#include "models/account_rows.h"
#include "models/item_rows.h"
#include "widgets/allow.h"
#include "widgets/table.h"

#include "workbench/document/finished_items.h"
#include "workbench/entry/kind_words.h"
#include "workbench/requests/item_figures.h"

#include "foundation/clock.h"

#include <QtWidgets/QPushButton>
#include <QtWidgets/QTabBar>

namespace kiv::desktop {

using budgeting::BudgetItemIdentifier;
using budgeting::BudgetItemTypes;
using budgeting::BudgetSource;

namespace {

/// After the kind in a place: the form for a new item, since no name is empty.
const QString newItem;

QStringList kindWords()
{
    QStringList words;
    budgeting::forEachItemClass([&]<typename Item>(std::type_identity<Item>) {
        words += workbench::kindWord(budgeting::ItemTraits<Item>::type);
    });
    return words;
}

/// In a place: what is set aside.
const QString aside = QStringLiteral("aside");

BudgetItemTypes kindAt(int tab)
{
    return static_cast<BudgetItemTypes>(tab + 1);
}

} // namespace

ItemsPage::ItemsPage(Desk &desk)
    : ListPage(desk, QStringLiteral("items"), tr("Items"), itemColumns(BudgetItemTypes::Bill)),
      m_kinds(new QTabBar(this)),
      m_explained(new ItemExplained(desk, this)),
      m_total(new QLabel(this)),
      m_new(addButton(QStringLiteral("new"), tr("&New"), [this] { beginNew(); })),
      m_change(addButton(QStringLiteral("change"), tr("&Change"), [this] { change(); })),
      m_remove(addButton(QStringLiteral("remove"), tr("&Remove"), [this] { remove(); })),
      m_form(addForm(QStringLiteral("item"))),
      m_item(new ItemForm(desk, *m_form))
{
    for (int tab = 0; tab < kindWords().size(); ++tab)
        m_kinds->addTab(itemsTitle(kindAt(tab)));
    m_kinds->addTab(QObject::tr("Set aside"));
    m_kinds->setObjectName(QStringLiteral("kinds"));
    m_kinds->setAccessibleName(tr("Kinds of items"));
    m_kinds->setExpanding(false);
    addAbove(m_kinds);
    addBelow(m_explained);
    connect(m_explained, &ItemExplained::endWanted, this, &ItemsPage::end);
    m_total->setTextFormat(Qt::PlainText);
    m_total->setWordWrap(true);
    addBelow(m_total);
    addFormButtons(*m_form, [this] { save(); });
    connect(m_kinds, &QTabBar::currentChanged, this, &ItemsPage::showTab);
}

void ItemsPage::forgetFile()
{
    ListPage::forgetFile();
    m_explained->forgetItem();
}

bool ItemsPage::isAside() const
{
    return m_kinds->currentIndex() == kindWords().size();
}

void ItemsPage::showTab()
{
    closeForm();
    model().setColumns(isAside() ? setAsideColumns() : itemColumns(kind()));
    for (QPushButton *button : {m_new, m_change, m_remove})
        button->setVisible(!isAside());
    refresh();
}

BudgetItemTypes ItemsPage::kind() const
{
    return kindAt(m_kinds->currentIndex());
}

BudgetItemIdentifier ItemsPage::chosenItem() const
{
    if (!isAside())
        return {kind(), BudgetSource(chosen())};
    const QString item = itemPart(chosen());
    return {kindAt(static_cast<int>(kindWords().indexOf(item.section(u'/', 0, 0)))),
            BudgetSource(item.section(u'/', 1))};
}

void ItemsPage::goTo(const QString &detail)
{
    const QString word = detail.section(u'/', 0, 0);
    if (word == aside) {
        m_kinds->setCurrentIndex(static_cast<int>(kindWords().size()));
        chooseAside(detail.section(u'/', 1));
        return;
    }
    const auto tab = static_cast<int>(kindWords().indexOf(word));
    if (tab < 0)
        return;
    m_kinds->setCurrentIndex(tab);
    closeForm();
    const QString name = detail.section(u'/', 1);
    if (detail.contains(u'/') && name == newItem)
        beginNew();
    else
        choose(name);
}

void ItemsPage::chooseAside(const QString &key)
{
    const auto &rows = model().rows();
    const auto found = std::ranges::find_if(
        rows, [&key](const Row &row) { return row.key == key || row.key.startsWith(key + u'/'); });
    if (!key.isEmpty() && found != rows.end())
        choose(found->isHeading && found + 1 != rows.end() ? (found + 1)->key : found->key);
}

QString ItemsPage::detail() const
{
    const QString name = chosen();
    const QString word = isAside() ? aside : workbench::kindWord(kind());
    return name.isEmpty() ? word : word + u'/' + name;
}

QStringList ItemsPage::parts() const
{
    QStringList parts;
    for (const QString &word : kindWords())
        parts << word << word + u'/' + newItem;
    return parts << aside;
}

QWidget *ItemsPage::firstFocus()
{
    return isAside() && table().isHidden() ? m_kinds : ListPage::firstFocus();
}

void ItemsPage::refresh()
{
    m_envelopes = shownEnvelopes(desk().document());
    if (isAside()) {
        showAside();
        return;
    }
    showRows(itemRows(desk().document(), m_envelopes, kind()), noItems(kind()));
    table().setAccessibleName(itemsTitle(kind()));
    const bool isEmpty = model().rows().empty();
    m_total->setVisible(!isEmpty);
    if (!isEmpty)
        m_total->setText(workbench::monthlyTotalText(requests(), kind()));
    // The item that was being changed may be gone.
    const QString changed = m_item->item().source.name();
    if (openForm() && !changed.isEmpty() && model().place(changed) < 0)
        closeForm();
}

Explain ItemsPage::explanation()
{
    const BudgetItemIdentifier id = chosen().isEmpty() ? BudgetItemIdentifier() : chosenItem();
    const budgeting::Budget budget = desk().document().present().budget;
    const budgeting::BudgetedMoney *item =
        chosen().isEmpty() ? nullptr : budgeting::findBudgetItem(id, budget);
    if (!item)
        return {};
    const bool recurs = item->period() != budgeting::EventFrequency::None;
    std::vector<accounting::AccountNumber> accounts;
    for (const workbench::SetAsideHere &one : workbench::linesOf(m_envelopes.all, id)) {
        const accounting::AccountNumber number = one.account->account.account.number;
        if (!isAside() || chosen().startsWith(keyOf(number) + u'/'))
            accounts.push_back(number);
    }
    if (!recurs && accounts.empty())
        return {};
    return [=](const workbench::Explainer &explainer) {
        std::vector<workbench::Explanation> all;
        for (const accounting::AccountNumber account : accounts)
            all.push_back(explainer.setAside(account, id));
        if (recurs)
            all.push_back(explainer.share(id));
        return all;
    };
}

void ItemsPage::showAside()
{
    showRows(setAsideRows(m_envelopes),
             QObject::tr("No bank has an open account for which money is set aside."));
    table().setAccessibleName(QObject::tr("Set aside"));
    const QStringList sentences = setAsideSentences(m_envelopes);
    m_total->setVisible(!sentences.isEmpty());
    m_total->setText(sentences.join(u'\n'));
}

void ItemsPage::follow()
{
    if (chosen().isEmpty())
        m_explained->hide();
    else
        m_explained->explain(desk().document(), m_envelopes, chosenItem());
    m_explained->allowChanges(desk().whyNoChange());
    allow(*m_new, desk().whyNoChange());
    allowForRow({m_change, m_remove});
}

void ItemsPage::followForm()
{
    m_item->follow();
}

void ItemsPage::beginNew()
{
    m_item->beginNew(kind());
    open(*m_form, m_item->firstField());
}

void ItemsPage::enter()
{
    if (isAside())
        desk().goTo({id(), itemPart(chosen())});
    else
        change();
}

void ItemsPage::change()
{
    if (isAside() || !m_change->isEnabled())
        return;
    m_item->beginChange(chosenItem());
    open(*m_form, m_item->firstField());
}

void ItemsPage::save()
{
    const std::optional<BudgetSource> saved = m_item->save();
    if (!saved)
        return;
    closeForm();
    choose(saved->name());
}

void ItemsPage::remove()
{
    const BudgetItemIdentifier id = chosenItem();
    if (isAside() || id.source.isEmpty())
        return;
    const QString word = workbench::kindText(id.type);
    const QString name = id.source.name();
    const workbench::Deed deed{
        tr("Removed the %1 “%2”.").arg(word, name), tr("removing the %1 “%2”").arg(word, name),
        QStringLiteral("items/%1/%2").arg(workbench::kindWord(id.type), name)};
    perform(deed,
            [&] { workbench::removeItem(requests(), navigation::GuiElementIdentifier(1), id); });
}

void ItemsPage::end()
{
    const BudgetItemIdentifier id = chosenItem();
    const bool isGoal = id.type == BudgetItemTypes::Goal;
    const auto spending = isGoal ? m_explained->spending() : std::nullopt;
    if (isGoal && !spending)
        return;
    workbench::Deed deed = workbench::finishDeed(id);
    deed.place = QStringLiteral("items/%1/%2").arg(workbench::kindWord(id.type), id.source.name());
    workbench::Finished done;
    const bool isDone = perform(deed, [&] {
        done = isGoal ? workbench::finishGoal(desk().document(), id.source.name(), spending->on,
                                              spending->day)
                      : workbench::finishDebt(desk().document(), id.source.name());
    });
    if (isDone)
        desk().say(deed.line + u' ' + workbench::toldOf(requests(), done, id).join(u' '));
}

} // namespace kiv::desktop
