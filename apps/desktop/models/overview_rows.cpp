// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/overview_rows.h"

#include "workbench/entry/account_index.h"
#include "workbench/requests/exchange_rates.h"

#include "foundation/presentation.h"
#include "navigation/configuration.h"
#include "numira/error.h"
#include "numira/local_text.h"

#include <QtCore/QLocale>

namespace kiv::desktop {

using navigation::Navigator;
using storage::BudgetStorage;
using workbench::Document;

namespace {

std::vector<Row> surveyRows(Document &document)
{
    const workbench::AccountIndex index = document.requests().accounts();
    const auto displayAs = document.requests().displayAs();
    const auto holds = document.reconciledAccounts();
    const BudgetStorage::Data data = document.present();
    std::vector<Row> rows;
    for (const auto &[account, survey] : data.surveys) {
        const accounting::AccountNumber number = account.account.number;
        const auto known = holds.find(number);
        Cell state{QObject::tr("unchanged since")};
        if (known != holds.end() && !known->second)
            state = {QObject::tr("changed since"), {}, false, Colour::Warning};
        rows.push_back({account.bank.institution() + u'/' + accounting::presentationText(number),
                        {{index.plainName(number)},
                         {account.bank.institution()},
                         dayCell(survey.reconciled().reconciledOn().value_or(QDate())),
                         amountCell(survey.reconciled().balance(), displayAs),
                         amountCell(survey.nonDistributed(), displayAs),
                         state}});
    }
    return rows;
}

QString rateText(const numira::FloatingPoint &rate)
{
    constexpr int digits = 12;
    const std::string plain = rate.str(digits, std::ios::fmtflags());
    try {
        return QString::fromStdString(numira::toLocalText(numira::Decimal::fromText(plain)));
    } catch (const numira::Error &) {
        return QString::fromStdString(plain); // such as one with an exponent
    }
}

std::vector<Row> rateRows(Document &document)
{
    const conversion::ConversionMap map = workbench::presentRates(document.requests());
    std::vector<Row> rows;
    const QDate today = QDate::currentDate();
    for (const auto &[currency, rate] : map.rates()) {
        const conversion::RateOrigin &origin = map.origins().at(currency);
        const auto age = static_cast<int>(origin.day.daysTo(today));
        const QString code = foundation::toQString(currency);
        rows.push_back(
            {code,
             {{code},
              {QObject::tr("1 %1 = %2 %3")
                   .arg(foundation::toQString(map.base()), rateText(rate), code)},
              dayCell(origin.day),
              {age > 0 ? QObject::tr("%n days old", nullptr, age) : QObject::tr("of today")},
              {origin.source == conversion::RateSource::Typed ? QObject::tr("typed")
                                                              : QObject::tr("fetched")}}});
    }
    return rows;
}

std::vector<Row> settingRows(Document &document)
{
    const auto data = std::get<navigation::ConfigurationData>(
        document.requests().ask(&Navigator::showConfigure, &Navigator::onPrepareShowConfigure));
    QStringList usable;
    for (const numira::Currency &currency : data.usableCurrencies)
        usable += foundation::toQString(currency);
    QStringList tags;
    for (const tagging::Tag &tag : data.tags)
        tags += tag.name();
    const QLocale locale;
    const auto row = [](const QString &name, const QString &value) {
        return Row{name, {{name}, {value}}};
    };
    return {
        row(QObject::tr("Preferred currency"), foundation::toQString(data.preferredCurrency)),
        row(QObject::tr("Usable currencies"), usable.join(QStringLiteral(", "))),
        row(QObject::tr("Display of currencies"),
            navigation::presentationText(data.currenciesDisplayAs)),
        row(QObject::tr("Due items shown ahead, in days"),
            locale.toString(qlonglong{data.notifyDueWithin.count()})),
        row(QObject::tr("Survey window"), presentationText(data.surveyWindow)),
        row(QObject::tr("Work hours a week"), locale.toString(qlonglong{data.hoursInWeek.count()})),
        row(QObject::tr("Work days a week"), locale.toString(qlonglong{data.daysInWeek.count()})),
        row(QObject::tr("Tags"), tags.join(QStringLiteral(", ")))};
}

} // namespace

std::vector<OverviewSection> overviewSections()
{
    std::vector<OverviewSection> sections;
    sections.push_back(
        {QStringLiteral("surveys"),
         QObject::tr("Reconciliations"),
         QObject::tr("No account was reconciled yet; kiv survey does that."),
         {QObject::tr("Account"), QObject::tr("Bank"), QObject::tr("Reconciled on"),
          QObject::tr("Balance"), QObject::tr("Not set aside"), QObject::tr("State")},
         surveyRows});
    sections.push_back(
        {QStringLiteral("rates"),
         QObject::tr("Exchange rates"),
         QObject::tr("There are no exchange rates; use kiv rates fetch or kiv rates set."),
         {QObject::tr("Currency"), QObject::tr("Rate"), QObject::tr("Date"), QObject::tr("Age"),
          QObject::tr("Source")},
         rateRows});
    sections.push_back({QStringLiteral("settings"),
                        QObject::tr("Settings"),
                        {},
                        {QObject::tr("Setting"), QObject::tr("Value")},
                        settingRows});
    return sections;
}

} // namespace kiv::desktop
