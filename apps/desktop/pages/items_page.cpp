// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/items_page.h"

#include "models/item_rows.h"
#include "widgets/allow.h"
#include "widgets/table.h"

#include "workbench/entry/kind_words.h"

#include <QtWidgets/QPushButton>
#include <QtWidgets/QTabBar>

namespace kiv::desktop {

using budgeting::BudgetItemIdentifier;
using budgeting::BudgetItemTypes;
using budgeting::BudgetSource;

namespace {

/// After the kind in a place: the form for a new item.
const QString newItem = QStringLiteral("new");

QStringList kindWords()
{
    QStringList words;
    budgeting::forEachItemClass([&]<typename Item>(std::type_identity<Item>) {
        words += workbench::kindWord(budgeting::ItemTraits<Item>::type);
    });
    return words;
}

BudgetItemTypes kindAt(int tab)
{
    return static_cast<BudgetItemTypes>(tab + 1);
}

} // namespace

ItemsPage::ItemsPage(Desk &desk)
    : ListPage(desk, QStringLiteral("items"), tr("Items"), itemColumns(BudgetItemTypes::Bill)),
      m_kinds(new QTabBar(this)),
      m_total(new QLabel(this)),
      m_new(addButton(QStringLiteral("new"), tr("&New"), [this] { beginNew(); })),
      m_change(addButton(QStringLiteral("change"), tr("&Change"), [this] { change(); })),
      m_remove(addButton(QStringLiteral("remove"), tr("&Remove"), [this] { remove(); })),
      m_form(addForm(QStringLiteral("item"))),
      m_item(new ItemForm(desk, *m_form))
{
    for (int tab = 0; tab < kindWords().size(); ++tab)
        m_kinds->addTab(itemsTitle(kindAt(tab)));
    m_kinds->setObjectName(QStringLiteral("kinds"));
    m_kinds->setAccessibleName(tr("Kinds of items"));
    m_kinds->setExpanding(false);
    addAbove(m_kinds);
    m_total->setTextFormat(Qt::PlainText);
    m_total->setWordWrap(true);
    addBelow(m_total);
    addFormButtons(*m_form, [this] { save(); });
    connect(m_kinds, &QTabBar::currentChanged, this, [this] {
        closeForm();
        model().setColumns(itemColumns(kind()));
        refresh();
    });
}

BudgetItemTypes ItemsPage::kind() const
{
    return kindAt(m_kinds->currentIndex());
}

BudgetItemIdentifier ItemsPage::chosenItem() const
{
    return {kind(), BudgetSource(chosen())};
}

void ItemsPage::goTo(const QString &detail)
{
    const auto tab = static_cast<int>(kindWords().indexOf(detail.section(u'/', 0, 0)));
    if (tab < 0)
        return;
    m_kinds->setCurrentIndex(tab);
    closeForm();
    const QString name = detail.section(u'/', 1);
    if (name == newItem && model().place(name) < 0)
        beginNew();
    else
        choose(name);
}

QString ItemsPage::detail() const
{
    const QString name = chosen();
    const QString word = workbench::kindWord(kind());
    return name.isEmpty() ? word : word + u'/' + name;
}

QStringList ItemsPage::parts() const
{
    QStringList parts;
    for (const QString &word : kindWords())
        parts << word << word + u'/' + newItem;
    return parts;
}

void ItemsPage::refresh()
{
    showRows(itemRows(desk().document(), kind()), noItems(kind()));
    table().setAccessibleName(itemsTitle(kind()));
    const bool isEmpty = model().rows().empty();
    m_total->setVisible(!isEmpty);
    if (!isEmpty)
        m_total->setText(itemsTotal(desk().document(), kind()));
    // The item that was being changed may be gone.
    const QString changed = m_item->item().source.name();
    if (openForm() && !changed.isEmpty() && model().place(changed) < 0)
        closeForm();
}

void ItemsPage::follow()
{
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

void ItemsPage::change()
{
    if (!m_change->isEnabled())
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
    if (id.source.isEmpty())
        return;
    const QString word = workbench::kindText(id.type);
    const QString name = id.source.name();
    const workbench::Deed deed{
        tr("Removed the %1 “%2”.").arg(word, name), tr("removing the %1 “%2”").arg(word, name),
        QStringLiteral("items/%1/%2").arg(workbench::kindWord(id.type), name)};
    perform(deed,
            [&] { workbench::removeItem(requests(), navigation::GuiElementIdentifier(1), id); });
}

} // namespace kiv::desktop
