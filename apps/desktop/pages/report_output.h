// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/desk.h"

#include "workbench/reports/budget_report.h"

#include <memory>

QT_BEGIN_NAMESPACE
class QTextDocument;
QT_END_NAMESPACE

/// Reports outside the window.
namespace kiv::desktop {

/// The report to be printed, with its charts as pictures.
[[nodiscard]] std::unique_ptr<QTextDocument> reportDocument(const workbench::BudgetReport &report,
                                                            workbench::Grouping grouping);

/// Asks for the form and the file, and saves the report there: as a document (PDF), a page (HTML)
/// or a table (CSV). A failure becomes a notice.
void saveReport(Desk &desk, QWidget *window, const workbench::BudgetReport &report,
                workbench::Grouping grouping);
/// Asks for the printer, and prints the report.
void printReport(Desk &desk, QWidget *window, const workbench::BudgetReport &report,
                 workbench::Grouping grouping);

} // namespace kiv::desktop
