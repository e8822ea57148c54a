// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QString>

namespace kiv::desktop {

/// A page and what it shows, such as "register/12": where something happened, and where
/// back and forward go.
struct Place {
    QString page;   ///< its id
    QString detail; ///< in the page's own words; may be empty

    [[nodiscard]] static Place fromText(const QString &text)
    {
        return {text.section(u'/', 0, 0), text.section(u'/', 1)};
    }
    [[nodiscard]] QString text() const { return detail.isEmpty() ? page : page + u'/' + detail; }

    friend bool operator==(const Place &, const Place &) = default;
};

} // namespace kiv::desktop
