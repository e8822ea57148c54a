// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/entry/kind_words.h"

#include "budgeting/item_traits.h"

#include <QtCore/QObject>

#include <array>
#include <stdexcept>

namespace kiv::workbench {
namespace {

std::logic_error kindWithoutWord()
{
    return std::logic_error("An unknown kind of budget item has no word.");
}

} // namespace

QString kindWord(budgeting::BudgetItemTypes kind)
{
    return budgeting::visitItemClass(
        kind, kindWithoutWord, []<typename Item>(std::type_identity<Item>) {
            return QString::fromLatin1(budgeting::ItemTraits<Item>::word);
        });
}

QString kindText(budgeting::BudgetItemTypes kind)
{
    static constexpr std::array words{
        QT_TRANSLATE_NOOP("QObject", "bill"), QT_TRANSLATE_NOOP("QObject", "debt"),
        QT_TRANSLATE_NOOP("QObject", "goal"), QT_TRANSLATE_NOOP("QObject", "non-tracked item"),
        QT_TRANSLATE_NOOP("QObject", "wage"),
    };
    return QObject::tr(words.at(static_cast<std::size_t>(kind) - 1));
}

std::pair<std::optional<budgeting::BudgetItemTypes>, QString> withKind(const QString &text)
{
    const qsizetype at = text.indexOf(u':');
    std::optional<budgeting::BudgetItemTypes> kind;
    budgeting::forEachItemClass([&]<typename Item>(std::type_identity<Item>) {
        if (at > 0 && text.first(at) == QLatin1String(budgeting::ItemTraits<Item>::word))
            kind = budgeting::ItemTraits<Item>::type;
    });
    return {kind, kind ? text.sliced(at + 1) : text};
}

} // namespace kiv::workbench
