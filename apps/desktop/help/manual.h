// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QString>

namespace kiv::desktop {

/// What the manual says about a page: what it shows and how it is used. Of a page without a
/// text of its own, and where no page is shown, what holds everywhere.
[[nodiscard]] QString manualText(const QString &page);

/// The household's guide: which kind of item is for what, a first week, the end of a month, and
/// what to do when something does not go as planned. It names the page for each.
[[nodiscard]] QString householdGuide();

} // namespace kiv::desktop
