// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/due_rows.h"
#include "pages/desk.h"

namespace kiv::desktop {

/// What pages do about due items. Several are one step of undo, and are done all or none.
class DueDeeds final {
public:
    explicit DueDeeds(Desk &desk) : m_desk(desk) {}

    /// Where refusals are shown, and who is at fault.
    struct Asked {
        FieldMessage &message;
        QWidget *by;
    };
    /// Posts them, each with its account. Returns whether that was done.
    bool pay(const Asked &asked, const std::vector<workbench::DueLine> &lines, QDate day);
    /// Posts an amount beside what is due; the item stays due.
    bool payExtra(const Asked &asked, const workbench::DueLine &line, QDate day);
    /// Moves them on to their next dates without posting.
    bool skip(const Asked &asked, const std::vector<workbench::DueLine> &lines);

private:
    [[nodiscard]] accounting::AccountCode payerOf(const workbench::DueLine &line) const;

    Desk &m_desk;
};

} // namespace kiv::desktop
