// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigation/currency_display.h"

#include "navigation/internal/faults.h"

#include "foundation/enum_table.h"
#include "foundation/presentation.h"

#include <QtCore/QObject>

#include <array>

namespace kiv::navigation {

namespace {

/// By value.
constexpr std::array optionNames{
    QT_TRANSLATE_NOOP("QObject", "ISO-4217 Code"),
    QT_TRANSLATE_NOOP("QObject", "Symbol"),
    QT_TRANSLATE_NOOP("QObject", "Symbol and Code"),
};

const char *nameOf(CurrencyDisplayOptions option)
{
    if (const auto *name = foundation::entryOf(optionNames, option))
        return *name;
    throw internal::faults::unknownStrongValue(QString::number(static_cast<std::size_t>(option)),
                                               QStringLiteral("QString"));
}

std::optional<QString> symbolOf(const numira::Currency &currency)
{
    const auto symbol = numira::currencySymbol(currency);
    return symbol ? std::optional(QString::fromStdString(*symbol)) : std::nullopt;
}

} // namespace

QString toQString(const CurrencyDisplayOptions &option)
{
    return QString::fromLatin1(nameOf(option));
}

QString presentationText(const CurrencyDisplayOptions &option)
{
    return QObject::tr(nameOf(option));
}

CurrencyDisplayOptions toCurrencyDisplayOptions(const QString &text)
{
    // A translation may use one option's English name for another, so all
    // translated names come first.
    for (const auto toText : {&presentationText, &toQString}) {
        for (std::size_t value = 0; value < optionNames.size(); ++value) {
            const auto option = static_cast<CurrencyDisplayOptions>(value);
            if (toText(option) == text)
                return option;
        }
    }
    throw internal::faults::unknownWeakValue(
        text, QStringLiteral("kiv::navigation::CurrencyDisplayOptions"));
}

QString toDisplayable(const numira::Currency &currency, CurrencyDisplayOptions option)
{
    QString code = foundation::toQString(currency);
    switch (option) {
    case CurrencyDisplayOptions::IsoCode:
        return code;
    case CurrencyDisplayOptions::Symbol:
        return symbolOf(currency).value_or(code);
    case CurrencyDisplayOptions::SymbolAndCode: {
        const auto symbol = symbolOf(currency);
        return symbol ? QStringLiteral("%1 [%2]").arg(code, *symbol) : code;
    }
    }
    throw internal::faults::unknownWayToDisplayCurrency();
}

numira::Currency toCurrencyFromDisplayable(const QString &text,
                                           const std::set<numira::Currency> &usable,
                                           CurrencyDisplayOptions option)
{
    if (text.isEmpty())
        return {};
    switch (option) {
    case CurrencyDisplayOptions::IsoCode:
        return numira::toCurrency(text.toStdString());
    case CurrencyDisplayOptions::Symbol:
        for (const auto &currency : usable) {
            if (symbolOf(currency) == text)
                return currency;
        }
        throw internal::faults::unknownCurrencySymbol();
    case CurrencyDisplayOptions::SymbolAndCode:
        return numira::toCurrency(text.left(3).toStdString());
    }
    throw internal::faults::unknownWayCurrencyWasDisplayed();
}

std::ostream &operator<<(std::ostream &out, CurrencyDisplayOptions option)
{
    if (const auto *name = foundation::entryOf(optionNames, option))
        return out << *name;
    return out << "Unknown currency display option: " << static_cast<std::size_t>(option);
}

} // namespace kiv::navigation
