// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/rates_page.h"

#include "models/rate_rows.h"
#include "pages/form.h"
#include "widgets/table.h"

#include "workbench/entry/values.h"

#include "foundation/clock.h"
#include "foundation/presentation.h"

#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace kiv::desktop {

namespace {

const QString fetchNotice = QStringLiteral("rates");

} // namespace

RatesPage::RatesPage(Desk &desk)
    : Page(desk, QStringLiteral("rates"), tr("Exchange rates")),
      m_model(new TableModel(rateColumns(), this)),
      m_table(new Table(*m_model, title(), this)),
      m_none(new QLabel(tr("There are no exchange rates. Fetch them, or type one."), this)),
      m_form(new Form(desk, this)),
      m_currency(m_form->add(QStringLiteral("currency"), tr("&Currency:"), new QLineEdit)),
      m_rate(m_form->add(QStringLiteral("rate"), tr("&Rate:"), new QLineEdit)),
      m_fetch(nullptr)
{
    m_form->setHeading(tr("Rates are the same for all budgets. They cannot be undone."));
    m_form->addButton(QStringLiteral("keep"), tr("&Keep this rate"), [this] { keep(); });
    m_fetch =
        m_form->addButton(QStringLiteral("fetch"), tr("Fetch &all rates now"), [this] { fetch(); });
    m_none->setTextFormat(Qt::PlainText);
    m_none->setWordWrap(true);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_none);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_form);
    layout->addStretch();
    connect(m_table, &Table::chosenChanged, this, &RatesPage::follow);
    connect(m_table, &Table::chosenChanged, this, &RatesPage::figureChosen);
    connect(m_table, &Table::opened, this, [this] {
        m_rate->setFocus(Qt::OtherFocusReason);
        m_rate->selectAll();
    });
    connect(m_form, &Form::givenUp, this, [this] {
        follow();
        firstFocus()->setFocus(Qt::OtherFocusReason);
    });
}

void RatesPage::goTo(const QString &detail)
{
    m_table->choose(detail);
}

QString RatesPage::detail() const
{
    return m_table->chosen().value(0);
}

QWidget *RatesPage::firstFocus()
{
    return m_model->rows().empty() ? static_cast<QWidget *>(m_currency) : m_table;
}

void RatesPage::refresh()
{
    m_listed = workbench::listedRates(requests());
    m_model->setRows(rateRows(m_listed, foundation::today()));
    const bool isEmpty = m_model->rows().empty();
    m_none->setVisible(isEmpty);
    m_table->setVisible(!isEmpty);
    m_form->setLabel(*m_rate, tr("&Rate, for 1 %1:").arg(foundation::toQString(m_listed.base)));
    m_form->allow(desk().whyNoChange());
    m_table->settle();
}

Explain RatesPage::explanation()
{
    const QString code = detail();
    for (const auto &[currency, rate] : m_listed.rates.rates()) {
        if (foundation::toQString(currency) == code)
            return [one = numira::Money(m_listed.base, 1, 0),
                    to = currency](const workbench::Explainer &explainer) {
                return std::vector{explainer.conversion(one, to)};
            };
    }
    return {};
}

void RatesPage::follow()
{
    const QString code = m_table->chosen().value(0);
    m_currency->setText(code);
    m_rate->clear();
    for (const auto &[currency, rate] : m_listed.rates.rates()) {
        if (foundation::toQString(currency) == code)
            m_rate->setText(workbench::rateText(rate));
    }
}

void RatesPage::keep()
{
    workbench::TypedRate typed;
    const bool isRead = m_form->read(*m_currency, [&] {
        workbench::readValue(m_currency->text().trimmed(), typed.currency);
    }) && m_form->read(*m_rate, [&] { typed.rate = workbench::rateOf(m_rate->text()); });
    if (!isRead)
        return;
    const QString code = foundation::toQString(typed.currency);
    const QString line =
        tr("1 %1 = %2 %3")
            .arg(foundation::toQString(m_listed.base), workbench::rateText(typed.rate), code);
    const bool isKept = m_form->apply(*m_rate, line, [&] {
        (void)workbench::storeTypedRates(requests(), m_listed.base, {typed});
    });
    if (!isKept)
        return;
    m_table->choose(code);
    follow();
    m_table->setFocus(Qt::OtherFocusReason);
}

void RatesPage::fetch()
{
    desk().notices().remove(fetchNotice);
    workbench::FetchedRates fetched;
    try {
        desk().wait(tr("Fetching exchange rates …"),
                    [&] { fetched = workbench::fetchRates(requests()); });
    } catch (const foundation::Error &error) {
        fetched.failure = workbench::userText(error);
    }
    m_fetch->setFocus(Qt::OtherFocusReason); // which it lost while it was disabled
    QString told = tr("The exchange rates are fetched.");
    if (fetched.failure)
        told = tr("The exchange rates could not be fetched; try again later, or type them. %1")
                   .arg(*fetched.failure)
                   .trimmed();
    else if (!fetched.lacking.empty())
        told = workbench::lackingText(fetched.lacking);
    if (fetched.failure || !fetched.lacking.empty())
        desk().notices().add({fetchNotice, told, {}});
    desk().say(told);
}

} // namespace kiv::desktop
