// SPDX-License-Identifier: GPL-3.0-or-later
#include "budgeting/identifiers.h"

#include "foundation/local_dates.h"
#include "foundation/streams.h"

#include <QtCore/QObject>

#include <array>
#include <stdexcept>

namespace kiv::budgeting {
namespace {

/// By the values of BudgetItemTypes.
constexpr std::array<const char *, 6> words{
    QT_TRANSLATE_NOOP("QObject", "unknown"),     QT_TRANSLATE_NOOP("QObject", "bill"),
    QT_TRANSLATE_NOOP("QObject", "debt"),        QT_TRANSLATE_NOOP("QObject", "goal"),
    QT_TRANSLATE_NOOP("QObject", "non-tracked"), QT_TRANSLATE_NOOP("QObject", "wage"),
};

bool isKnown(BudgetItemTypes type)
{
    return static_cast<std::size_t>(type) < words.size();
}

} // namespace

BudgetItemTypes known(BudgetItemTypes type)
{
    if (!isKnown(type))
        throw std::logic_error("An unknown budget item type was supplied.");
    return type;
}

QString presentationText(BudgetItemTypes type)
{
    return QObject::tr(words[static_cast<std::size_t>(known(type))]);
}

QString presentationText(const BudgetSource &source)
{
    return source.name();
}

QString presentationText(const BudgetItemIdentifier &id)
{
    const QString kind =
        isKnown(id.type) ? presentationText(id.type) : QString::number(static_cast<int>(id.type));
    return QStringLiteral("%1 (%2)").arg(presentationText(id.source), kind);
}

std::ostream &operator<<(std::ostream &out, BudgetItemTypes type)
{
    if (isKnown(type))
        return out << words[static_cast<std::size_t>(type)];
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

QDebug operator<<(QDebug debug, BudgetItemTypes type)
{
    return foundation::streamed(debug, type);
}

QDebug operator<<(QDebug debug, const BudgetSource &source)
{
    return foundation::streamed(debug, source);
}

QDebug operator<<(QDebug debug, const BudgetItemIdentifier &id)
{
    return foundation::streamed(debug, id);
}

QDebug operator<<(QDebug debug, const BudgetItemDueIdentifier &id)
{
    return foundation::streamed(debug, id);
}

} // namespace kiv::budgeting
