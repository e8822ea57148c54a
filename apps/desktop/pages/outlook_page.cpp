// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/outlook_page.h"

#include "pages/form.h"
#include "widgets/chart_view.h"
#include "widgets/day_edit.h"
#include "widgets/money_edit.h"
#include "widgets/names_edit.h"
#include "widgets/table.h"

#include "workbench/entry/kind_words.h"
#include "workbench/entry/money_text.h"
#include "workbench/outlook/outlook_text.h"
#include "workbench/requests/budget_view.h"

#include "foundation/clock.h"
#include "foundation/presentation.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace kiv::desktop {

namespace {

/// Further ones scroll.
constexpr int curvesMax = 6;
constexpr int paymentsMax = 12;

/// The items by their names; where several have a name, with their kinds.
QStringList itemNames(const workbench::BudgetView &view)
{
    std::map<QString, QStringList> kinds;
    view.budget().forEach([&kinds](const budgeting::BudgetedMoney &item) {
        const budgeting::BudgetItemIdentifier id = workbench::identify(item);
        kinds[id.source.name()] += workbench::kindWord(id.type);
    });
    QStringList names;
    for (const auto &[name, words] : kinds) {
        for (const QString &word : words)
            names += words.size() > 1 ? word + u':' + name : name;
    }
    return names;
}

} // namespace

OutlookPage::OutlookPage(Desk &desk)
    : Page(desk, QStringLiteral("outlook"), tr("Outlook")),
      m_told(new QLabel(this)),
      m_chart(new ChartView(this)),
      m_form(new Form(desk, this)),
      m_days(m_form->add(QStringLiteral("days"), tr("&Days ahead:"), new QLineEdit)),
      m_floor(m_form->add(QStringLiteral("floor"), tr("&Not below:"), new MoneyEdit)),
      m_without(m_form->add(QStringLiteral("without"), tr("&Leave out:"), new NamesEdit)),
      m_amount(m_form->add(QStringLiteral("amount"), tr("What if I &pay:"), new MoneyEdit)),
      m_day(m_form->add(QStringLiteral("day"), tr("&On:"), new DayEdit)),
      m_curves(new TableModel(curveColumns(), this)),
      m_curveTable(new Table(*m_curves, tr("Accounts"), this)),
      m_payments(new TableModel(paymentColumns(), this)),
      m_paymentTable(new Table(*m_payments, tr("What is paid and received"), this)),
      m_notices(new QLabel(this))
{
    m_form->addButton(QStringLiteral("look"), tr("Loo&k ahead"), [this] { ask(); });
    m_form->addButton(QStringLiteral("more"), tr("And &more"), [this] { askMore(); });
    m_form->addButton(QStringLiteral("again"), tr("Start &again"), [this] { startAgain(); });
    m_days->setText(QString::number(m_asked.question.days.count));
    m_curveTable->setObjectName(QStringLiteral("curves"));
    m_curveTable->fit(curvesMax);
    m_paymentTable->setObjectName(QStringLiteral("payments"));
    m_paymentTable->fit(paymentsMax);
    build();
    connect(m_form, &Form::givenUp, this, &OutlookPage::startAgain);
    connect(m_curveTable, &Table::chosenChanged, this, &OutlookPage::follow);
    connect(m_paymentTable, &Table::removalWanted, this, &OutlookPage::leaveOut);
    connect(m_chart, &ChartView::told, this,
            [this](const QString &values) { this->desk().say(values); });
}

void OutlookPage::build()
{
    for (QLabel *label : {m_told, m_notices}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
    m_told->setObjectName(QStringLiteral("told"));
    QFont font = m_told->font();
    font.setBold(true);
    m_told->setFont(font);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_told);
    auto *row = new QHBoxLayout;
    row->addWidget(m_chart, 5);
    row->addWidget(m_form, 3, Qt::AlignTop);
    layout->addLayout(row, 1);
    layout->addWidget(m_notices);
    layout->addWidget(m_curveTable);
    layout->addWidget(m_paymentTable);
}

void OutlookPage::goTo(const QString &detail)
{
    m_curveTable->choose(detail);
}

QString OutlookPage::detail() const
{
    return m_curveTable->chosen().value(0);
}

Explain OutlookPage::explanation()
{
    const QString key = m_curveTable->chosen().value(0);
    const outlook::Curve *curve = curveOf(m_shown, key);
    if (!curve || !m_asked.question.without.empty() || !m_asked.question.with.empty())
        return {};
    std::optional<accounting::AccountNumber> account;
    if (key != allTogether)
        account = accounting::AccountNumber(key.toUInt());
    return [account, day = m_shown.ahead.outlook.day(curve->lowest())](
               const workbench::Explainer &explainer) {
        return std::vector{explainer.outlook(day, account)};
    };
}

QWidget *OutlookPage::firstFocus()
{
    return m_chart->isHidden() ? static_cast<QWidget *>(m_days) : m_chart;
}

void OutlookPage::refresh()
{
    const numira::Currency preferred = requests().preferredCurrency();
    m_floor->setCurrency(preferred);
    m_amount->setCurrency(preferred);
    m_without->offer(itemNames(workbench::BudgetView(requests())));
    m_asked.question.first = foundation::today();
    show(m_asked);
    tellCounted();
}

std::optional<OutlookPage::Asked> OutlookPage::read()
{
    const numira::Currency preferred = requests().preferredCurrency();
    Asked asked;
    asked.question.first = foundation::today();
    asked.question.with = m_counted;
    const auto readOnce = [&] {
        asked.question.with.push_back({QDate(), m_amount->amount().in(preferred)});
    };
    if (!m_form->read(
            *m_days,
            [&] { workbench::readValue(m_days->text().trimmed(), asked.question.days); }) ||
        !m_form->read(*m_floor,
                      [&] {
                          if (!m_floor->text().trimmed().isEmpty())
                              asked.floor = workbench::outlookFloor(m_floor->amount(), preferred);
                      }) ||
        !m_form->read(*m_without, [&] {
            const workbench::BudgetView view(requests());
            for (const QString &name : m_without->names())
                asked.question.without.insert(view.findTyped(name));
        }))
        return std::nullopt;
    if (m_amount->text().trimmed().isEmpty())
        return asked;
    if (!m_form->read(*m_amount, readOnce) ||
        !m_form->read(*m_day, [&] { asked.question.with.back().day = m_day->day(); }))
        return std::nullopt;
    return asked;
}

bool OutlookPage::ask()
{
    m_form->message().withdraw();
    const std::optional<Asked> asked = read();
    if (!asked)
        return false;
    // Too few days refuse what is counted already, too.
    const bool isTyped = asked->question.with.size() > m_counted.size();
    QLineEdit *blamed = isTyped ? static_cast<QLineEdit *>(m_day) : m_days;
    if (!m_form->read(*blamed, [&] { show(*asked); }))
        return false;
    m_asked = *asked;
    emit figureChosen();
    desk().say(m_told->text());
    return true;
}

void OutlookPage::askMore()
{
    if (!ask())
        return;
    m_counted = m_asked.question.with;
    m_amount->clear();
    m_day->clear();
    tellCounted();
    m_amount->setFocus(Qt::OtherFocusReason);
}

void OutlookPage::tellCounted()
{
    QStringList told(tr("What if? Nothing of this is kept. An amount with a minus comes in."));
    for (const workbench::OutlookQuestion::Once &once : m_counted)
        told += tr("Counted already: %1 on %2.")
                    .arg(workbench::amountText(once.amount, requests().displayAs()),
                         foundation::presentationText(once.day));
    m_form->setHeading(told.join(u'\n'));
}

void OutlookPage::forgetFile()
{
    clearFields();
    m_asked = {};
}

void OutlookPage::startAgain()
{
    clearFields();
    ask();
    firstFocus()->setFocus(Qt::OtherFocusReason);
}

void OutlookPage::clearFields()
{
    m_counted.clear();
    tellCounted();
    m_form->message().withdraw();
    for (QLineEdit *field : {static_cast<QLineEdit *>(m_floor), static_cast<QLineEdit *>(m_without),
                             static_cast<QLineEdit *>(m_amount), static_cast<QLineEdit *>(m_day)})
        field->clear();
    m_days->setText(QString::number(workbench::OutlookDays().count));
}

void OutlookPage::leaveOut(const QString &payment)
{
    const auto item = m_shown.ahead.outlook.payments.at(payment.toULongLong()).item;
    if (!item) {
        desk().say(tr("Only items of the budget can be left out."));
        return;
    }
    QStringList names = m_without->names();
    names += workbench::kindWord(item->type) + u':' + item->source.name();
    m_without->setNames(names);
    ask();
}

void OutlookPage::show(const Asked &asked)
{
    const numira::Currency preferred = requests().preferredCurrency();
    m_shown.ahead = workbench::lookAhead(desk().document().present(), asked.question, preferred);
    // Another currency may be preferred now.
    m_shown.floor = asked.floor && asked.floor->code() == preferred ? asked.floor : std::nullopt;
    m_shown.index = std::make_shared<const workbench::AccountIndex>(requests().accounts());
    m_shown.displayAs = requests().displayAs();
    QStringList told =
        workbench::sentencesOf(m_shown.ahead, m_shown.floor, *m_shown.index, m_shown.displayAs);
    m_curves->setRows(curveRows(m_shown));
    const bool isEmpty = m_curves->rows().empty();
    if (isEmpty)
        told += QObject::tr("No bank has an open account.");
    m_told->setText(told.join(u'\n'));
    m_told->setVisible(!told.isEmpty());
    for (QWidget *part : {static_cast<QWidget *>(m_chart), static_cast<QWidget *>(m_curveTable),
                          static_cast<QWidget *>(m_paymentTable)})
        part->setVisible(!isEmpty);
    QStringList notices;
    for (const QString &notice : workbench::noticesOf(m_shown.ahead))
        notices += u'\u26a0' + QStringLiteral(" ") + notice;
    m_notices->setText(notices.join(u'\n'));
    m_notices->setVisible(!notices.isEmpty());
    m_curveTable->settle();
    follow();
}

void OutlookPage::follow()
{
    const QString curve = m_curveTable->chosen().value(0);
    m_chart->setChart(chartOf(m_shown, curve), m_shown.displayAs);
    m_payments->setRows(paymentRows(m_shown, curve));
    m_paymentTable->settle();
    emit figureChosen();
}

} // namespace kiv::desktop
