// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/survey_foot.h"

#include "models/share_rows.h"
#include "models/survey_rows.h"
#include "widgets/allow.h"

#include "workbench/entry/money_text.h"

#include <QtCore/QEvent>
#include <QtGui/QFontInfo>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace kiv::desktop {

SurveyFoot::SurveyFoot(Desk &desk, QWidget *parent)
    : QWidget(parent),
      m_desk(desk),
      m_figures(new QLabel(this)),
      m_details(new QLabel(this)),
      m_consent(new QCheckBox(this)),
      m_message(new FieldMessage(this)),
      m_complete(addButton(QStringLiteral("complete"), tr("C&omplete"))),
      m_putOff(addButton(QStringLiteral("putOff"), tr("P&ut off"))),
      m_anew(addButton(QStringLiteral("beginAnew"), tr("Begi&n anew")))
{
    m_figures->setObjectName(QStringLiteral("figures"));
    m_details->setObjectName(QStringLiteral("details"));
    m_consent->setObjectName(QStringLiteral("consent"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    for (QLabel *label : {m_figures, m_details}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        layout->addWidget(label);
    }
    layout->addWidget(m_consent);
    layout->addWidget(m_message);
    auto *buttons = new QHBoxLayout;
    for (QPushButton *button : {m_complete, m_putOff, m_anew})
        buttons->addWidget(button);
    buttons->addStretch();
    layout->addLayout(buttons);
    connect(m_complete, &QPushButton::clicked, this, &SurveyFoot::completeWanted);
    connect(m_putOff, &QPushButton::clicked, this, &SurveyFoot::putOffWanted);
    connect(m_anew, &QPushButton::clicked, this, &SurveyFoot::beginAnewWanted);
    enlarge();
}

QPushButton *SurveyFoot::addButton(const QString &id, const QString &text)
{
    auto *button = new QPushButton(text, this);
    button->setObjectName(id);
    return button;
}

void SurveyFoot::enlarge()
{
    QFont large = font();
    large.setPointSizeF(QFontInfo(large).pointSizeF() * 1.5);
    if (m_figures->font() != large)
        m_figures->setFont(large);
}

void SurveyFoot::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        enlarge();
}

void SurveyFoot::follow(const workbench::SurveySheet &sheet, bool hasBalance)
{
    const auto displayAs = m_desk.requests().displayAs();
    const ShownFigures shown = shownFigures(sheet, hasBalance, m_desk.document());
    m_figures->setText(shown.headline);
    QStringList details{shown.details, shown.guess, shareSummary(sheet, displayAs)};
    details.removeAll(QString());
    m_details->setText(details.join(u'\n'));
    m_details->show();
    m_guess = shown.guess;
    m_isAccepted = shown.isAccepted;
    // Who agreed to one difference did not agree to another one.
    if (m_toAgreeTo != shown.toAgreeTo)
        m_consent->setChecked(false);
    m_toAgreeTo = shown.toAgreeTo;
    m_consent->setVisible(m_toAgreeTo && shown.isAccepted);
    if (m_toAgreeTo)
        m_consent->setText(tr("The difference of %1 ma&y stay; it is shown until it is gone")
                               .arg(workbench::amountText(m_toAgreeTo->abs(), displayAs)));
}

void SurveyFoot::tell(const QString &sentence)
{
    m_figures->setText(sentence);
    m_guess.clear();
    m_details->hide();
    m_consent->hide();
    m_toAgreeTo.reset();
}

void SurveyFoot::say()
{
    m_desk.say(m_guess.isEmpty() ? m_figures->text()
                                 : QStringLiteral("%1. %2").arg(m_figures->text(), m_guess));
}

void SurveyFoot::allow(const std::optional<QString> &whyNot, bool isPutOff)
{
    for (QWidget *part : {static_cast<QWidget *>(m_complete), static_cast<QWidget *>(m_putOff),
                          static_cast<QWidget *>(m_consent)})
        desktop::allow(*part, whyNot);
    m_anew->setVisible(isPutOff);
    desktop::allow(*m_anew, m_desk.whyNoChange());
}

bool SurveyFoot::hasConsent() const
{
    return m_toAgreeTo && m_consent->isChecked();
}

QWidget &SurveyFoot::fieldAtFault()
{
    return m_consent->isVisible() && !m_consent->isChecked() ? static_cast<QWidget &>(*m_consent)
                                                             : *m_complete;
}

QWidget &SurveyFoot::putOffButton() noexcept
{
    return *m_putOff;
}

} // namespace kiv::desktop
