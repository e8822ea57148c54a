// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/page.h"
#include "pages/survey_drafts.h"

QT_BEGIN_NAMESPACE
class QStackedWidget;
class QTabBar;
QT_END_NAMESPACE

namespace kiv::desktop {

class PastSurveys;
class SurveyDrops;
class SurveyFoot;
class SurveyShares;
class SurveyStatement;
class SurveyTicks;

/// Compares the books with a bank's statement: the statement and the transactions that are
/// ticked on it, and what is set aside. A third tab lists the past reconciliations.
class SurveyPage final : public Page {
    Q_OBJECT

public:
    explicit SurveyPage(Desk &desk);

    /// The account by its number; "aside" for what is set aside; or "past", with the place of a
    /// reconciliation, such as "past/3".
    void goTo(const QString &detail) override;
    [[nodiscard]] QString detail() const override;
    [[nodiscard]] QStringList parts() const override;
    /// How far the books may be from the statement.
    [[nodiscard]] Explain explanation() override;
    [[nodiscard]] QWidget *firstFocus() override;

protected:
    void refresh() override;
    void forgetFile() override;

private:
    void connectParts();
    /// The draft of the chosen account; null without one.
    [[nodiscard]] SurveyDraft *draft();
    /// Brings the draft of the chosen account in line with the books and with the day that is
    /// typed, or makes one. Throws what cannot be read, and what is refused; the draft stays.
    void renew();
    /// Fills the fields from the draft.
    void bringFields(accounting::AccountNumber account);

    /// Shows all parts; what renew() throws is told in place of the figures.
    void showAll();
    void showParts();
    void showFigures();
    /// Something was entered: shows it, and says the figures.
    void follow();
    void allowAll();
    /// Whether the statement's balance is entered. It is then the sheet's.
    bool takeBalance(SurveyDraft &draft) const;

    void compare();
    void layFile();
    void complete();
    /// As renew(), but shows at the day what is refused. Returns whether nothing was.
    bool isRenewed();
    /// The same, and at the balance what cannot be read there.
    bool readStatement();
    void complain(QWidget &field, const foundation::Error &error);
    void putOff();
    void beginAnew();
    [[nodiscard]] workbench::Deed placed(workbench::Deed deed) const;

    SurveyDrafts m_drafts;
    std::optional<accounting::AccountNumber> m_shown; ///< the account whose texts the fields have
    QString m_trouble;                                ///< why there is no sheet

    SurveyDrops *m_drops;
    QTabBar *m_tabs;
    QStackedWidget *m_parts;
    SurveyStatement *m_statement;
    SurveyTicks *m_ticks;
    SurveyShares *m_shares;
    SurveyFoot *m_foot;
    PastSurveys *m_past;
};

} // namespace kiv::desktop
