// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/page.h"

#include "workbench/requests/exchange_rates.h"

QT_BEGIN_NAMESPACE
class QLineEdit;
class QPushButton;
QT_END_NAMESPACE

namespace kiv::desktop {

class Form;
class Table;
class TableModel;

/// The exchange rates, each with its day and source. One can be typed over, and all can be
/// fetched from the service.
class RatesPage final : public Page {
    Q_OBJECT

public:
    explicit RatesPage(Desk &desk);

    /// The currency that is chosen, such as "EUR".
    void goTo(const QString &detail) override;
    [[nodiscard]] QString detail() const override;
    /// What one unit of the base is in the currency that is chosen.
    [[nodiscard]] Explain explanation() override;
    [[nodiscard]] QWidget *firstFocus() override;

protected:
    void refresh() override;

private:
    /// Shows the chosen rate in the fields.
    void follow();
    void keep();
    void fetch();

    workbench::ListedRates m_listed;
    TableModel *m_model;
    Table *m_table;
    QLabel *m_none;
    Form *m_form;
    QLineEdit *m_currency;
    QLineEdit *m_rate;
    QPushButton *m_fetch;
};

} // namespace kiv::desktop
