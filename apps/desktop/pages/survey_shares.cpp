// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/survey_shares.h"

#include "models/share_rows.h"
#include "widgets/money_edit.h"
#include "widgets/table.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QVBoxLayout>

namespace kiv::desktop {

SurveyShares::SurveyShares(Desk &desk, QWidget *parent)
    : QWidget(parent),
      m_desk(desk),
      m_none(new QLabel(this)),
      m_rows(new TableModel(shareColumns(), this)),
      m_table(new Table(*m_rows, tr("What is set aside"), this)),
      m_reason(new QLabel(this)),
      m_notices(new QLabel(this)),
      m_asProposed(new QCheckBox(tr("As p&roposed, where nothing is typed"), this)),
      m_form(new Form(desk, this)),
      m_amount(m_form->add(QStringLiteral("share"), tr("&Set aside for it:"), new MoneyEdit))
{
    m_form->addButton(QStringLiteral("setAside"), tr("&Keep this amount"), [this] { setAside(); });
    m_table->setObjectName(QStringLiteral("shares"));
    m_reason->setObjectName(QStringLiteral("shareReason"));
    m_notices->setObjectName(QStringLiteral("shareNotices"));
    m_asProposed->setObjectName(QStringLiteral("asProposed"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    for (QLabel *label : {m_none, m_reason, m_notices}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
    layout->addWidget(m_none);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_reason);
    layout->addWidget(m_form);
    layout->addWidget(m_asProposed);
    layout->addWidget(m_notices);
    layout->addStretch();
    connect(m_asProposed, &QCheckBox::clicked, this, &SurveyShares::asProposedChosen);
    connect(m_table, &Table::chosenChanged, this, &SurveyShares::followLine);
    connect(m_table, &Table::opened, this, [this] {
        m_amount->setFocus(Qt::OtherFocusReason);
        m_amount->selectAll();
    });
    connect(m_form, &Form::givenUp, this, [this] {
        followLine();
        m_table->setFocus(Qt::OtherFocusReason);
    });
}

void SurveyShares::follow(const workbench::SurveySheet *sheet)
{
    m_sheet = sheet;
    const auto displayAs = m_desk.requests().displayAs();
    m_rows->setRows(sheet ? shareRows(*sheet, displayAs) : std::vector<Row>());
    m_table->settle();
    const bool hasLines = m_rows->rowCount() > 0;
    for (QWidget *part : {static_cast<QWidget *>(m_table), static_cast<QWidget *>(m_reason),
                          static_cast<QWidget *>(m_form), static_cast<QWidget *>(m_asProposed)})
        part->setVisible(hasLines);
    m_none->setVisible(!hasLines);
    m_none->setText(sheet && sheet->form.isOwed()
                        ? tr("Nothing is set aside of what is owed.")
                        : tr("There are no items to set money aside for."));
    m_notices->setText(sheet ? shareNotices(*sheet, m_desk.document()) : QString());
    m_notices->setVisible(!m_notices->text().isEmpty());
    m_asProposed->setChecked(sheet && sheet->isAsProposed);
    followLine();
}

QWidget *SurveyShares::firstFocus() noexcept
{
    return m_rows->rowCount() > 0 ? m_table : nullptr;
}

std::optional<workbench::SheetLine> SurveyShares::line() const
{
    return m_sheet ? shareOf(*m_sheet, m_table->chosen().value(0)) : std::nullopt;
}

void SurveyShares::followLine()
{
    const auto line = this->line();
    m_amount->clear();
    m_reason->clear();
    std::optional<QString> whyNot = tr("No item is chosen.");
    if (line) {
        whyNot.reset();
        m_amount->setCurrency(line->now.code());
        m_amount->setMoney(line->now);
        m_reason->setText(shareReason(*line, *m_sheet, m_desk.document()));
        if (line->line.item.type == budgeting::BudgetItemTypes::Goal)
            whyNot = tr("For a goal, what was moved to its account is set aside.");
    }
    m_form->allow(whyNot);
}

void SurveyShares::setAside()
{
    const auto line = this->line();
    if (!line)
        return;
    std::optional<numira::Money> amount;
    // An empty field gives the line back to the books.
    if (!m_amount->text().trimmed().isEmpty()) {
        amount = m_form->read(*m_amount, [&] { return m_amount->amount().in(line->now.code()); });
        if (!amount)
            return;
    }
    m_form->message().withdraw();
    emit typed(line->line.item, amount);
    m_table->setFocus(Qt::OtherFocusReason);
}

} // namespace kiv::desktop
