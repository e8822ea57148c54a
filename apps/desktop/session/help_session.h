// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/desk.h"

namespace kiv::desktop {

class CommandPalette;

/// The menu of help: the manual, the list of keys, the release notes, and what this program
/// is. Tells of a newer release once.
class HelpSession final : public QObject {
    Q_OBJECT

public:
    /// Adds its actions to the desk's. `window` is the parent of what is shown.
    HelpSession(Desk &desk, QWidget *window);

    /// The page whose part of the manual is shown; empty without one.
    void setPage(const QString &page) { m_page = page; }

private:
    void showAbout();
    void showReleaseNotes();

    Desk &m_desk;
    QWidget *m_window;
    CommandPalette *m_keys; ///< the list of keys
    QString m_page;
};

} // namespace kiv::desktop
