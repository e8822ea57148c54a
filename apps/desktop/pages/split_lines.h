// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/desk.h"

#include "workbench/requests/entry_forms.h"

namespace kiv::desktop {

/// The lines of a split that were typed before the one in the fields. Hidden without any.
class SplitLines final : public QWidget {
    Q_OBJECT

public:
    SplitLines(Desk &desk, QWidget *parent);

    [[nodiscard]] const std::vector<workbench::SplitLine> &lines() const noexcept
    {
        return m_lines;
    }
    /// Adds a line, and says what all come to in `currency`.
    void add(const workbench::SplitLine &line, const workbench::AccountIndex &accounts,
             const numira::Currency &currency);
    void clear();

signals:
    /// The line was taken out, to be typed again.
    void takenBack(const kiv::workbench::SplitLine &line);

private:
    void takeBack();
    void show();

    Desk &m_desk;
    QLabel *m_text;
    std::vector<workbench::SplitLine> m_lines;
    QStringList m_names;
    numira::Currency m_currency;
};

} // namespace kiv::desktop
