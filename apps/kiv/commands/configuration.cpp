// SPDX-License-Identifier: GPL-3.0-or-later
// configure show|set, tags list|remove
#include "commands/commands.h"

#include "workbench/requests/settings.h"

#include "foundation/presentation.h"

namespace kiv::app {

using navigation::ConfigurationData;
using navigation::Navigator;

namespace {

struct DisplayOption {
    navigation::CurrencyDisplayOptions value = navigation::CurrencyDisplayOptions::IsoCode;
};

void readValue(const QString &text, DisplayOption &option)
{
    using enum navigation::CurrencyDisplayOptions;
    static const std::vector<std::pair<QString, navigation::CurrencyDisplayOptions>> words{
        {QStringLiteral("code"), IsoCode},
        {QStringLiteral("symbol"), Symbol},
        {QStringLiteral("both"), SymbolAndCode}};
    QStringList choices;
    for (const auto &[word, value] : words) {
        if (text == word) {
            option.value = value;
            return;
        }
        choices += word;
    }
    throw notAChoice(text, choices);
}

QJsonArray tagNames(const tagging::Tags &tags)
{
    QJsonArray names;
    for (const tagging::Tag &tag : tags)
        names.append(tag.name());
    return names;
}

Report configurationReport(Requests &requests)
{
    const ConfigurationData data = workbench::presentSettings(requests);
    QJsonArray usable;
    for (const numira::Currency &currency : data.usableCurrencies)
        usable.append(foundation::toQString(currency));
    const QJsonObject json{
        {QStringLiteral("preferredCurrency"), foundation::toQString(data.preferredCurrency)},
        {QStringLiteral("usableCurrencies"), usable},
        {QStringLiteral("currenciesDisplayAs"), navigation::toQString(data.currenciesDisplayAs)},
        {QStringLiteral("notifyDueWithinDays"), qint64{data.notifyDueWithin.count()}},
        {QStringLiteral("surveyWindowPercent"), data.surveyWindow.rate()},
        {QStringLiteral("hoursInWeek"), qint64{data.hoursInWeek.count()}},
        {QStringLiteral("daysInWeek"), qint64{data.daysInWeek.count()}}};
    const auto percent = [](const QJsonValue &value) {
        return presentationText(foundation::Percentage(value.toDouble(), 6));
    };
    return Report(json).list(
        {{QObject::tr("Preferred currency"), QStringLiteral("preferredCurrency")},
         {QObject::tr("Usable currencies"), QStringLiteral("usableCurrencies")},
         {QObject::tr("Display of currencies"), QStringLiteral("currenciesDisplayAs"), wordText},
         {QObject::tr("Due items shown ahead, in days"), QStringLiteral("notifyDueWithinDays")},
         {QObject::tr("Survey window"), QStringLiteral("surveyWindowPercent"), percent},
         {QObject::tr("Work hours a week"), QStringLiteral("hoursInWeek")},
         {QObject::tr("Work days a week"), QStringLiteral("daysInWeek")}},
        json);
}

struct ShowConfiguration {
    void declare(Arguments &) {}
    Report run(Call &call) const
    {
        // This request does not mute the warnings, so that the user sees those on the
        // settings.
        (void)call.requests.gather(&Navigator::showConfigure,
                                   [&call] { call.requests.navigator().onPrepareShowConfigure(); });
        return configurationReport(call.requests);
    }
};

struct SetConfiguration {
    std::optional<numira::Currency> preferred;
    std::vector<numira::Currency> usable;
    std::optional<DisplayOption> display;
    std::optional<std::chrono::days> notify;
    std::optional<foundation::Percentage> window;
    std::optional<std::chrono::hours> hours;
    std::optional<std::chrono::days> days;

    void declare(Arguments &arguments)
    {
        arguments
            .optional("--preferred", preferred,
                      QObject::tr("Preferred currency, used for amounts without one"))
            .several("--usable", usable,
                     QObject::tr("Usable currency; replaces the old list (repeatable)"))
            .optional("--display", display,
                      QObject::tr("Display of currencies: code, symbol or both"))
            .optional("--notify-within", notify, QObject::tr("Show due items this many days ahead"))
            .optional("--survey-window", window,
                      QObject::tr("Allowed difference between survey and statement, in percent"))
            .optional("--hours", hours, QObject::tr("Work hours a week"))
            .optional("--days", days, QObject::tr("Work days a week"));
    }
    Report run(Call &call) const
    {
        if (!preferred && usable.empty() && !display && !notify && !window && !hours && !days)
            throw nothingToChange();
        ConfigurationData data = workbench::presentSettings(call.requests);
        if (preferred)
            workbench::prefer(data, *preferred);
        if (!usable.empty())
            data.usableCurrencies = {usable.begin(), usable.end()};
        if (display)
            data.currenciesDisplayAs = display->value;
        data.notifyDueWithin = notify.value_or(data.notifyDueWithin);
        data.surveyWindow = window.value_or(data.surveyWindow);
        data.hoursInWeek = hours.value_or(data.hoursInWeek);
        data.daysInWeek = days.value_or(data.daysInWeek);
        workbench::storeSettings(call.requests, data);
        return configurationReport(call.requests);
    }
};

struct ListTags {
    void declare(Arguments &) {}
    Report run(Call &call) const
    {
        const QJsonArray names = tagNames(workbench::presentSettings(call.requests).tags);
        Report report{QJsonValue(names)};
        for (const QJsonValue name : names)
            report.line(name.toString());
        return names.isEmpty() ? report.line(QObject::tr("There are no tags.")) : report;
    }
};

struct RemoveTags {
    std::vector<QString> tags;

    void declare(Arguments &arguments)
    {
        arguments.severalRequired("TAG", tags, QObject::tr("Tags"));
    }
    Report run(Call &call) const
    {
        const tagging::Tags left = workbench::removeTags(call.requests, {tags.begin(), tags.end()});
        QStringList named(tags.begin(), tags.end());
        named.removeDuplicates();
        return Report(QJsonValue(tagNames(left)))
            .line(QObject::tr("Removed the tags %1.", nullptr, static_cast<int>(named.size()))
                      .arg(named.join(QStringLiteral(", "))));
    }
};

} // namespace

void addConfigurationCommands(CommandGroup &root)
{
    CommandGroup configure = root.group("configure", QObject::tr("Show or change the settings"));
    configure.add("show", QObject::tr("Show the settings"), CommandKind::Standalone,
                  ShowConfiguration{});
    configure.add("set", QObject::tr("Change the given settings"), CommandKind::Standalone,
                  SetConfiguration{});
}

void addTagCommands(CommandGroup &root)
{
    CommandGroup tags = root.group("tags", QObject::tr("List or remove tags"));
    tags.add("list", QObject::tr("List all tags"), CommandKind::Query, ListTags{});
    tags.add("remove", QObject::tr("Remove tags from all budget items"), CommandKind::Change,
             RemoveTags{});
}

} // namespace kiv::app
