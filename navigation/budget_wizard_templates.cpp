// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigation/budget_wizard_templates.h"

#include "foundation/enum_table.h"

#include <QtCore/QObject>

#include <array>

namespace kiv::navigation {

std::ostream &operator<<(std::ostream &out, BudgetWizardTemplates household)
{
    static constexpr std::array names{
        QT_TRANSLATE_NOOP("QObject", "None"),
        QT_TRANSLATE_NOOP("QObject", "Child"),
        QT_TRANSLATE_NOOP("QObject", "Teenager"),
        QT_TRANSLATE_NOOP("QObject", "Adult, single"),
        QT_TRANSLATE_NOOP("QObject", "Adult, married, single income"),
        QT_TRANSLATE_NOOP("QObject", "Adult, married, double income"),
    };
    if (const auto *name = foundation::entryOf(names, household))
        return out << *name;
    return out << "Unknown budget template wizard value: " << static_cast<std::size_t>(household);
}

} // namespace kiv::navigation
