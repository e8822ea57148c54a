// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/overview_rows.h"
#include "pages/page.h"

QT_BEGIN_NAMESPACE
class QComboBox;
QT_END_NAMESPACE

namespace kiv::desktop {

class Table;

/// Plain lists of everything that has no page of its own.
class OverviewPage final : public Page {
    Q_OBJECT

public:
    explicit OverviewPage(Desk &desk);

    /// The section, such as "rates", and a row of it, such as "bill/Rent".
    void goTo(const QString &detail) override;
    [[nodiscard]] QString detail() const override;
    [[nodiscard]] QWidget *firstFocus() override;

protected:
    void refresh() override;

private:
    [[nodiscard]] const OverviewSection &section() const;

    std::vector<OverviewSection> m_sections;
    QComboBox *m_chooser;
    TableModel *m_model;
    Table *m_table;
    QLabel *m_none;
};

} // namespace kiv::desktop
