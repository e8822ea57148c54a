// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/account_rows.h"

#include "workbench/surveys/survey_sheet.h"

#include "foundation/presentation.h"

namespace kiv::desktop {

using accounting::AccountNumber;
using workbench::AccountGroup;
using workbench::GroupedAccount;

namespace {

/// What a row tells beside its account.
struct Known {
    std::map<AccountNumber, QDate> reconciledOn;
    std::map<AccountNumber, bool> holds;
    std::map<AccountNumber, QString> differences;
    workbench::AccountIndex index;
    navigation::CurrencyDisplayOptions displayAs{};
};

Cell reconciledCell(AccountNumber number, const Known &known)
{
    const auto day = known.reconciledOn.find(number);
    if (day == known.reconciledOn.end())
        return {};
    Cell cell = dayCell(day->second);
    const auto holds = known.holds.find(number);
    if (holds != known.holds.end() && !holds->second)
        cell = {QObject::tr("%1, changed since").arg(cell.text), {}, false, Colour::Warning};
    const auto difference = known.differences.find(number);
    if (difference == known.differences.end())
        return cell;
    return {
        QStringLiteral("%1, %2").arg(cell.text, difference->second), {}, false, Colour::Warning};
}

Row rowOf(const GroupedAccount &one, const Known &known, bool showsTerms)
{
    const AccountNumber number = one.account.code().number();
    const QString name =
        one.account.isClosed() ? QObject::tr("%1 (closed)").arg(one.name) : one.name;
    const bool isShared = one.whole != one.account.balance();
    Row row{keyOf(number),
            {{name},
             {one.bank ? one.bank->institution() : QString()},
             amountCell(one.account.balance(), known.displayAs),
             isShared ? amountCell(one.whole, known.displayAs) : Cell{},
             reconciledCell(number, known)}};
    if (showsTerms) {
        row.cells.push_back({keyOf(number)});
        row.cells.push_back({known.index.path(number)});
        row.cells.push_back({accounting::presentationText(one.account.type())});
    }
    return row;
}

} // namespace

QString keyOf(AccountNumber number)
{
    return QString::number(number.integer());
}

std::map<AccountNumber, QString> differenceTexts(workbench::Document &document)
{
    std::map<AccountNumber, QString> texts;
    for (const workbench::BooksDifference &one : workbench::booksDifferences(document))
        texts.emplace(one.account.account.number,
                      workbench::belowBankText(one.amount, document.requests().displayAs()));
    return texts;
}

QStringList accountColumns(bool showsTerms)
{
    QStringList columns{QObject::tr("Account"), QObject::tr("Bank"), QObject::tr("Balance"),
                        QObject::tr("With goals under it"), QObject::tr("Last reconciled")};
    if (showsTerms)
        columns << QObject::tr("Number") << QObject::tr("Path") << QObject::tr("Kind");
    return columns;
}

std::vector<Row> accountRows(workbench::Document &document,
                             const std::vector<GroupedAccount> &accounts, bool showsTerms)
{
    const storage::BudgetStorage::Data data = document.present();
    Known known{{},
                document.reconciledAccounts(),
                differenceTexts(document),
                document.requests().accounts(),
                document.requests().displayAs()};
    for (const auto &[account, survey] : data.surveys) {
        if (const std::optional<QDate> day = survey.reconciled().reconciledOn())
            known.reconciledOn.emplace(account.account.number, *day);
    }
    std::vector<Row> rows;
    std::optional<AccountGroup> group;
    for (const GroupedAccount &one : accounts) {
        // What accounts were opened with is of no use to a household.
        const AccountNumber number = one.account.code().number();
        if (!showsTerms && data.generalLedger.ledger(number).holdsOpenings())
            continue;
        if (group != one.group) {
            group = one.group;
            const QString text = presentationText(*group);
            rows.push_back({QStringLiteral("group ") + QString::number(static_cast<int>(*group)),
                            {{text}},
                            true});
        }
        rows.push_back(rowOf(one, known, showsTerms));
    }
    return rows;
}

} // namespace kiv::desktop
