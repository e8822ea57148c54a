// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/draft_rows.h"

#include "workbench/entry/description.h"

#include <QtCore/QObject>

#include <tuple>

namespace kiv::desktop {

using workbench::ImportCounts;
using workbench::ImportRow;
using State = ImportRow::State;

namespace {

bool isTaken(const ImportRow &row)
{
    return row.isTicked && row.state != State::LeftOut;
}

QString stateText(const ImportRow &row)
{
    if (!isTaken(row))
        return QObject::tr("Left out");
    switch (row.state) {
    case State::New:
        return QObject::tr("New");
    case State::Payment:
        return QObject::tr("Due");
    default:
        return QObject::tr("Already there");
    }
}

Cell stateCell(const ImportRow &row)
{
    const QString text = stateText(row);
    if (row.isDoubtful && isTaken(row))
        return {u'\u26a0' + QStringLiteral(" ") + QObject::tr("%1, to look at").arg(text),
                QObject::tr("%1, to look at").arg(text), false, Colour::Warning};
    return {text, {}, false, isTaken(row) ? std::nullopt : std::optional(Colour::Faint)};
}

Cell noneCell()
{
    return {QStringLiteral("–"), QObject::tr("none")};
}

Cell otherCell(const ImportRow &row, const workbench::AccountIndex &accounts)
{
    if (row.state == State::Payment)
        return {std::get<workbench::ImportPayment>(*row.meaning).id.source.name()};
    if (row.state != State::New)
        return noneCell();
    if (row.other)
        return {accounts.plainName(*row.other)};
    if (!row.opens.isEmpty())
        return {QObject::tr("%1 (is opened)").arg(row.opens.join(u':'))};
    return {QObject::tr("not known yet"), {}, false, Colour::Warning};
}

QString counted(const QStringList &parts)
{
    return parts.join(QObject::tr(", ", "between parts of a list"));
}

} // namespace

QStringList draftColumns()
{
    return {QObject::tr("Day"),
            QObject::tr("Taken"),
            QObject::tr("What becomes of it"),
            QObject::tr("Payee and text"),
            QObject::tr("Amount"),
            QObject::tr("Item or account"),
            QObject::tr("Why")};
}

bool isShown(const ImportRow &row, DraftFilter filter)
{
    switch (filter) {
    case DraftFilter::All:
        return true;
    case DraftFilter::New:
        return row.state == State::New || row.state == State::Payment;
    case DraftFilter::Matched:
        return row.state == State::Matched || row.state == State::Known;
    case DraftFilter::Doubtful:
        return row.isDoubtful && isTaken(row);
    }
    return true;
}

bool areSame(const ImportRow &one, const ImportRow &other)
{
    const auto shown = [](const ImportRow &row) {
        return std::tie(row.state, row.reason, row.isDoubtful, row.meaning, row.other, row.opens,
                        row.isTicked);
    };
    return shown(one) == shown(other);
}

Row draftRow(const workbench::ImportPreview &preview, std::size_t place,
             const workbench::AccountIndex &accounts, navigation::CurrencyDisplayOptions displayAs)
{
    const ImportRow &row = preview.rows()[place];
    const QString said = workbench::Description{row.entry.payee, row.entry.text, {}}.shown();
    return {QString::number(place),
            {dayCell(row.entry.date),
             isTaken(row) ? Cell{QObject::tr("✓ yes"), QObject::tr("taken")}
                          : Cell{QObject::tr("no"), QObject::tr("not taken")},
             stateCell(row), said.isEmpty() ? noneCell() : Cell{said},
             amountCell(row.entry.amount, displayAs), otherCell(row, accounts),
             row.reason.isEmpty() ? noneCell() : Cell{row.reason}}};
}

std::vector<Row> draftRows(const workbench::ImportPreview &preview, DraftFilter filter,
                           const workbench::AccountIndex &accounts,
                           navigation::CurrencyDisplayOptions displayAs)
{
    std::vector<Row> rows;
    for (std::size_t place = 0; place < preview.rows().size(); ++place) {
        if (isShown(preview.rows()[place], filter))
            rows.push_back(draftRow(preview, place, accounts, displayAs));
    }
    return rows;
}

QString draftSummary(const ImportCounts &counts)
{
    const auto number = [](qsizetype count) { return static_cast<int>(count); };
    QStringList parts{
        QObject::tr("%n new", nullptr, number(counts.added)),
        QObject::tr("%n already there", nullptr, number(counts.matched + counts.known))};
    if (counts.leftOut > 0)
        parts += QObject::tr("%n left out", nullptr, number(counts.leftOut));
    if (counts.doubtful > 0)
        parts += QObject::tr("%n to look at", nullptr, number(counts.doubtful));
    return counted(parts);
}

bool hasWork(const ImportCounts &counts)
{
    return counts.added + counts.matched > 0;
}

QStringList journalColumns()
{
    return {QObject::tr("Day"),  QObject::tr("What becomes of it"),
            QObject::tr("Text"), QObject::tr("From"),
            QObject::tr("To"),   QObject::tr("Amount")};
}

std::vector<Row> journalRows(const workbench::PostedImport &planned,
                             const workbench::AccountIndex &accounts,
                             navigation::CurrencyDisplayOptions displayAs)
{
    // Accounts that are still to be opened have only the name of the journal.
    const auto name = [&accounts](const accounting::AccountCode &code) {
        const QString known = accounts.plainName(code.number());
        return known.isEmpty() ? code.name() : known;
    };
    std::vector<Row> rows;
    for (const auto &[transaction, place, isSkipped] : planned.transactions) {
        const QString text = workbench::Description::of(transaction.description()).shown();
        rows.push_back({QString::number(rows.size()),
                        {dayCell(transaction.occurredOn()),
                         isSkipped ? Cell{QObject::tr("Already there"), {}, false, Colour::Faint}
                                   : Cell{QObject::tr("New")},
                         text.isEmpty() ? noneCell() : Cell{text},
                         {name(transaction.crediting())},
                         {name(transaction.debiting())},
                         amountCell(transaction.amount(), displayAs)}});
    }
    return rows;
}

QString journalSummary(const workbench::PostedImport &planned)
{
    return counted({QObject::tr("%n new", nullptr, static_cast<int>(planned.posted())),
                    QObject::tr("%n already there", nullptr, static_cast<int>(planned.skipped()))});
}

QString journalPlan(const workbench::PostedImport &planned)
{
    if (planned.opened.empty())
        return journalSummary(planned);
    QStringList names;
    for (const accounting::Account &account : planned.opened)
        names += account.code().name();
    return QObject::tr("%1. Accounts to be opened: %2.")
        .arg(journalSummary(planned), counted(names));
}

} // namespace kiv::desktop
