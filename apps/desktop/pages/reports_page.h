// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/page.h"

#include "workbench/reports/report_lines.h"

QT_BEGIN_NAMESPACE
class QComboBox;
class QLineEdit;
QT_END_NAMESPACE

namespace kiv::desktop {

class ChartView;
class DayEdit;
class Form;
class Table;
class TableModel;

/// Where the money went: lines with a chart, the values of the chosen line, and the entries behind
/// one of them.
class ReportsPage final : public Page {
    Q_OBJECT

public:
    explicit ReportsPage(Desk &desk);

    /// "overview" or the word of a grouping; behind a slash the key of a line.
    void goTo(const QString &detail) override;
    [[nodiscard]] QString detail() const override;
    [[nodiscard]] QStringList parts() const override;
    [[nodiscard]] QWidget *firstFocus() override;

    /// Asks where to, and saves the report there as a document (PDF), a page or a table.
    void save();
    /// Asks for the printer, and prints the report.
    void print();

protected:
    void refresh() override;
    void forgetFile() override;

private:
    void build();
    void addActions();
    /// What is added up, as the field says.
    [[nodiscard]] std::optional<workbench::Grouping> grouping() const;
    void offerCurrencies();
    /// The days and spans that the fields say; nothing if a field is refused.
    [[nodiscard]] std::optional<workbench::ReportQuestion> readDays();
    /// Adds up as the fields say, or says at its field what cannot be asked; then all stays as it
    /// was. Returns whether it could.
    bool ask();
    /// Asks as someone wished, and says the answer.
    void askAnew();
    void startAgain();
    void clearFields();
    /// Shows the report.
    void showLines();
    /// Shows the line that is chosen.
    void showLine();
    /// Shows the entries of the value that is chosen.
    void showEntries();
    /// How many they are, and what they come to.
    [[nodiscard]] QString entriesText(const workbench::ReportLine &line,
                                      const QString &label) const;
    /// The value of this label is chosen.
    void chooseValue(std::size_t label);
    [[nodiscard]] const workbench::ReportLine *line() const;

    Form *m_form;
    QComboBox *m_by;
    QComboBox *m_spans;
    DayEdit *m_from;
    DayEdit *m_to;
    QLineEdit *m_words;
    QComboBox *m_in;
    QLabel *m_told;
    ChartView *m_chart;
    TableModel *m_lines;
    Table *m_lineTable;
    TableModel *m_values;
    Table *m_valueTable;
    QLabel *m_entriesTold;
    TableModel *m_entries;
    Table *m_entryTable;
    QLabel *m_rates;
    std::unique_ptr<const workbench::BudgetReport> m_report;
    std::optional<workbench::Grouping> m_grouping; ///< of the report that is shown
    std::vector<workbench::ReportLine> m_shown;
    QStringList m_among; ///< what the values were last shown of: the others, and the line itself
    std::vector<workbench::ReportEntry> m_behind;
};

} // namespace kiv::desktop
