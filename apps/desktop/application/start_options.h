// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "navigation/configuration.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace kiv::desktop {

/// What the window is told when it is started: [FILE] and the options.
struct StartOptions {
    QString file; ///< the budget file to open; empty without one
    navigation::StartUpOptions ui;

    /// Whether the terms, numbers and paths of accounting are shown.
    [[nodiscard]] bool showsTerms() const noexcept { return ui.isAdvancedUi && !ui.isJargonFree; }
};

/// Reads the command line, whose first argument is the program's name. Help, the version,
/// unknown options and a second file end the program. Needs the application object.
[[nodiscard]] StartOptions readStartOptions(const QStringList &arguments);

} // namespace kiv::desktop
