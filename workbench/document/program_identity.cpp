// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/document/program_identity.h"

#include <QtCore/QCoreApplication>

namespace kiv::workbench {

void identifyProgram()
{
    QCoreApplication::setOrganizationName(QStringLiteral("kiv"));
    QCoreApplication::setApplicationName(QStringLiteral("kiv"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KIV_VERSION));
}

} // namespace kiv::workbench
