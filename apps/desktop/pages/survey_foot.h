// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/desk.h"

#include "workbench/surveys/survey_sheet.h"

QT_BEGIN_NAMESPACE
class QCheckBox;
class QPushButton;
QT_END_NAMESPACE

namespace kiv::desktop {

/// How far the books agree with the statement, what is set aside, and the ways to end a survey.
class SurveyFoot final : public QWidget {
    Q_OBJECT

public:
    SurveyFoot(Desk &desk, QWidget *parent);

    /// Shows the figures of the sheet. `hasBalance` tells whether the statement's balance was
    /// entered.
    void follow(const workbench::SurveySheet &sheet, bool hasBalance);
    /// Says why there are no figures.
    void tell(const QString &sentence);
    /// Says the figures to screen readers.
    void say();
    /// Allows the changes, or says why not. Only a survey that was put off can be begun anew.
    void allow(const std::optional<QString> &whyNot, bool isPutOff);
    /// Whether the user agreed that the difference may stay.
    [[nodiscard]] bool hasConsent() const;
    /// Whether a survey takes the difference.
    [[nodiscard]] bool isAccepted() const noexcept { return m_isAccepted; }
    /// Where a refusal of completing belongs: the consent if it is missing, else the button.
    [[nodiscard]] QWidget &fieldAtFault();
    [[nodiscard]] QWidget &putOffButton() noexcept;
    [[nodiscard]] FieldMessage &message() noexcept { return *m_message; }

signals:
    void completeWanted();
    void putOffWanted();
    void beginAnewWanted();

protected:
    void changeEvent(QEvent *event) override;

private:
    QPushButton *addButton(const QString &id, const QString &text);
    void enlarge();

    Desk &m_desk;
    QLabel *m_figures;
    QLabel *m_details;
    QCheckBox *m_consent;
    FieldMessage *m_message;
    QPushButton *m_complete;
    QPushButton *m_putOff;
    QPushButton *m_anew;
    QString m_guess;
    std::optional<numira::Money> m_toAgreeTo;
    bool m_isAccepted = true;
};

} // namespace kiv::desktop
