// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/share_rows.h"

#include "models/due_rows.h"
#include "models/envelope_rows.h"

#include "workbench/entry/money_text.h"

#include <QtCore/QLocale>

namespace kiv::desktop {

using workbench::SheetLine;
using workbench::SurveySheet;

namespace {

QString sourceText(const SheetLine &line, const SurveySheet &sheet)
{
    if (line.typed)
        return QObject::tr("typed");
    if (line.line.isByAccount)
        return QObject::tr("balance of its account");
    if (sheet.isAsProposed && line.proposed)
        return QObject::tr("as proposed");
    return line.isHandedOver ? QString() : QObject::tr("nothing to set aside");
}

Row rowOf(const SheetLine &line, const SurveySheet &sheet,
          navigation::CurrencyDisplayOptions displayAs)
{
    const auto cell = [displayAs](const std::optional<numira::Money> &amount) {
        return amount ? amountCell(*amount, displayAs) : Cell{};
    };
    const std::optional<workbench::SetAsideParts> &parts = line.line.parts;
    const auto part = [&](auto which) {
        return cell(parts ? std::optional(which(*parts)) : std::nullopt);
    };
    return {keyOf(line.line.item),
            {{line.line.item.source.name()},
             part([](const auto &all) { return all.before; }),
             part([](const auto &all) { return all.added; }),
             part([](const auto &all) { return -all.paid; }),
             part([](const auto &all) { return all.adjusted; }),
             amountCell(line.now, displayAs),
             cell(line.proposed),
             {sourceText(line, sheet)}}};
}

/// "Still due in March 2026, of what is paid monthly: Rent $900.00 and Phone $20.00."
QString dueText(const SurveySheet &sheet, navigation::CurrencyDisplayOptions displayAs)
{
    if (sheet.dueYet.empty())
        return {};
    QStringList items;
    for (const budgeting::BudgetItemAmountDue &one : sheet.dueYet)
        items += QStringLiteral("%1 %2").arg(one.id.source.name(),
                                             workbench::amountText(one.amount, displayAs));
    return QObject::tr("Still due in %1, of what is paid monthly: %2.")
        .arg(QLocale().toString(sheet.form.date, QStringLiteral("MMMM yyyy")),
             QLocale().createSeparatedList(items));
}

} // namespace

QStringList shareColumns()
{
    return {QObject::tr("Item"),     QObject::tr("Before"),   QObject::tr("Added"),
            QObject::tr("Paid"),     QObject::tr("Adjusted"), QObject::tr("Now"),
            QObject::tr("Proposed"), QObject::tr("Note")};
}

std::vector<Row> shareRows(const SurveySheet &sheet, navigation::CurrencyDisplayOptions displayAs)
{
    std::vector<Row> rows;
    for (const SheetLine &line : sheet.lines())
        rows.push_back(rowOf(line, sheet, displayAs));
    return rows;
}

std::optional<SheetLine> shareOf(const SurveySheet &sheet, const QString &key)
{
    for (const SheetLine &line : sheet.lines()) {
        if (keyOf(line.line.item) == key)
            return line;
    }
    return std::nullopt;
}

QString shareReason(const SheetLine &line, const SurveySheet &sheet, workbench::Document &document)
{
    const accounting::GeneralLedger ledger = document.present().generalLedger;
    const workbench::PartReasons parts =
        reasonsOf(line.line, sheet.envelopes, document.requests().displayAs(), daysIn(ledger));
    QStringList reasons{parts.before, parts.added, parts.paid, parts.adjusted};
    reasons.removeAll(QString());
    return reasons.isEmpty() ? QString()
                             : QStringLiteral("%1: %2.").arg(line.line.item.source.name(),
                                                             reasons.join(QStringLiteral("; ")));
}

QString shareSummary(const SurveySheet &sheet, navigation::CurrencyDisplayOptions displayAs)
{
    if (sheet.form.isOwed())
        return QObject::tr("Nothing is set aside of what is owed.");
    const numira::Money rest = sheet.rest();
    return QObject::tr("Set aside for items: %1; free: %2.")
        .arg(workbench::amountText(sheet.form.balance - rest, displayAs),
             workbench::amountText(rest, displayAs));
}

QString shareNotices(const SurveySheet &sheet, workbench::Document &document)
{
    const auto displayAs = document.requests().displayAs();
    const storage::BudgetStorage::Data data = document.present();
    QStringList all = sheet.notices(data.generalLedger, displayAs);
    if (sheet.before) // the figures tell it
        all.removeAll(sheet.before->sentence(data.generalLedger, displayAs));
    all += dueText(sheet, displayAs);
    all.removeAll(QString());
    return all.join(u' ');
}

} // namespace kiv::desktop
