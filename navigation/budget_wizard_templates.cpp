// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigation/budget_wizard_templates.h"

#include "foundation/streams.h"

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
    const auto value = static_cast<std::size_t>(household);
    if (value < names.size())
        return out << names.at(value);
    return out << "Unknown budget template wizard value: " << value;
}

QDebug operator<<(QDebug debug, BudgetWizardTemplates household)
{
    return foundation::streamed(debug, household);
}

} // namespace kiv::navigation
