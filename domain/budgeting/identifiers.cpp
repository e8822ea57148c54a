// SPDX-License-Identifier: GPL-3.0-or-later
#include "budgeting/identifiers.h"

#include "budgeting/internal/mistakes.h"

#include "foundation/enum_table.h"
#include "foundation/local_dates.h"
#include "foundation/streams.h"

#include <QtCore/QObject>

#include <array>

namespace kiv::budgeting {
namespace {

/// By the values of BudgetItemTypes.
constexpr std::array<const char *, 6> words{
    QT_TRANSLATE_NOOP("QObject", "unknown"),     QT_TRANSLATE_NOOP("QObject", "bill"),
    QT_TRANSLATE_NOOP("QObject", "debt"),        QT_TRANSLATE_NOOP("QObject", "goal"),
    QT_TRANSLATE_NOOP("QObject", "non-tracked"), QT_TRANSLATE_NOOP("QObject", "wage"),
};

/// Null for a value above the known ones.
const char *wordOf(BudgetItemTypes type)
{
    const auto *known = foundation::entryOf(words, type);
    return known ? *known : nullptr;
}

} // namespace

BudgetItemTypes known(BudgetItemTypes type)
{
    if (!wordOf(type))
        throw internal::itemTypeUnknown();
    return type;
}

QString presentationText(BudgetItemTypes type)
{
    return QObject::tr(wordOf(known(type)));
}

QString presentationText(const BudgetSource &source)
{
    return source.name();
}

QString presentationText(const BudgetItemIdentifier &id)
{
    const QString kind =
        wordOf(id.type) ? presentationText(id.type) : QString::number(static_cast<int>(id.type));
    return QStringLiteral("%1 (%2)").arg(presentationText(id.source), kind);
}

std::ostream &operator<<(std::ostream &out, BudgetItemTypes type)
{
    if (const char *word = wordOf(type))
        return out << word;
    return out << static_cast<int>(type);
}

std::ostream &operator<<(std::ostream &out, const BudgetSource &source)
{
    return out << foundation::escapedUtf8(source.name());
}

std::ostream &operator<<(std::ostream &out, const BudgetItemIdentifier &id)
{
    return out << id.source << " (" << id.type << ')';
}

std::ostream &operator<<(std::ostream &out, const BudgetItemDueIdentifier &id)
{
    return out << id.item() << " on " << foundation::isoText(id.dueOn).toStdString();
}

} // namespace kiv::budgeting
