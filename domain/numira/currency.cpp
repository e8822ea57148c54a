// SPDX-License-Identifier: GPL-3.0-or-later
#include "numira/currency.h"

#include "numira/internal/faults.h"
#include "numira/locale.h"

#include <unicode/ucurr.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <array>
#include <map>
#include <memory>
#include <ostream>
#include <utility>
#include <vector>

namespace numira {
namespace {

constexpr std::uint16_t noCurrency = 999;

/// Currencies that ISO 4217 lists, or listed while budgets were already kept
/// with this library, but that ICU, depending on its version, takes for
/// withdrawn. They stay known, so that a budget in them can always be opened.
constexpr std::array<std::string_view, 8> kept{"ANG", "BGN", "CUC", "HRK",
                                               "SLL", "SVC", "VEF", "ZWL"};

struct Listed {
    std::string_view code;
    std::uint16_t number;
    std::uint8_t digits;
};

/// Currencies of ISO 4217 that are newer than the ICU of some systems.
constexpr std::array<Listed, 1> recent{{{"ZWG", 924, 2}}};

/// Where ISO 4217 gives other minor-unit digits than ICU, whose digits follow
/// what people still use in cash. From the standard's list one (current
/// currency and funds codes); "not applicable" counts as 0.
unsigned digitsOfTheStandard(std::string_view code, unsigned digitsOfIcu)
{
    constexpr auto two =
        std::to_array<std::string_view>({"AFN", "ALL", "IRR", "KPW", "LAK", "LBP", "MGA", "MMK",
                                         "RSD", "SLL", "SOS", "SYP", "YER"});
    constexpr auto three = std::to_array<std::string_view>({"IQD"});
    constexpr auto notApplicable =
        std::to_array<std::string_view>({"XAG", "XAU", "XBA", "XBB", "XBC", "XBD", "XDR", "XPD",
                                         "XPT", "XSU", "XTS", "XUA", "XXX"});
    if (std::ranges::binary_search(two, code))
        return 2;
    if (std::ranges::binary_search(three, code))
        return 3;
    if (std::ranges::binary_search(notApplicable, code))
        return 0;
    return digitsOfIcu;
}

icu::UnicodeString unicodeCode(std::string_view code)
{
    return icu::UnicodeString::fromUTF8(
        icu::StringPiece(code.data(), static_cast<int32_t>(code.size())));
}

/// The codes that ICU lists for a kind of currencies.
std::vector<std::string> listedCodes(std::uint32_t kind)
{
    std::vector<std::string> codes;
    UErrorCode status = U_ZERO_ERROR;
    UEnumeration *all = ucurr_openISOCurrencies(kind, &status);
    while (const char *code = uenum_next(all, nullptr, &status))
        codes.emplace_back(code);
    uenum_close(all);
    return codes;
}

struct Entry {
    std::array<char, 3> code{};
    std::uint8_t digits = 0;
    bool isKnown = false;

    [[nodiscard]] std::string_view text() const noexcept { return {code.data(), code.size()}; }
};

/// All known currencies, found by either code. Built once, at the first use.
class CurrencyTable {
public:
    CurrencyTable()
    {
        for (const std::string &code : listedCodes(UCURR_NON_DEPRECATED))
            add(code);
        // After the active ones: a withdrawn currency may have left its number
        // to its successor.
        for (const std::string &code : listedCodes(UCURR_ALL)) {
            if (std::ranges::binary_search(kept, std::string_view(code)))
                add(code);
        }
        for (const Listed &currency : recent)
            add(currency);
        std::ranges::sort(m_numbers);
    }

    [[nodiscard]] const Entry *find(std::uint16_t number) const noexcept
    {
        return number < m_entries.size() && m_entries[number].isKnown ? &m_entries[number]
                                                                      : nullptr;
    }
    /// 0, which no currency has, when there is no such code.
    [[nodiscard]] std::uint16_t numberOf(std::string_view code) const noexcept
    {
        const auto found = std::ranges::lower_bound(m_numbers, code, {}, &Numbered::first);
        return found != m_numbers.end() && found->first == code ? found->second : std::uint16_t{0};
    }

private:
    using Numbered = std::pair<std::string, std::uint16_t>;

    void add(const std::string &code)
    {
        const icu::UnicodeString wide = unicodeCode(code);
        const int32_t number = ucurr_getNumericCode(icu::UnicodeString(wide).getTerminatedBuffer());
        if (number <= 0 || number >= static_cast<int32_t>(m_entries.size()) || code.size() != 3)
            return;
        UErrorCode status = U_ZERO_ERROR;
        const int32_t digits =
            ucurr_getDefaultFractionDigits(icu::UnicodeString(wide).getTerminatedBuffer(), &status);
        add(Listed{code, static_cast<std::uint16_t>(number),
                   static_cast<std::uint8_t>(
                       digitsOfTheStandard(code, digits > 0 ? static_cast<unsigned>(digits) : 0))});
    }

    /// A number that is taken stays with the currency that has it.
    void add(const Listed &currency)
    {
        Entry &entry = m_entries[currency.number];
        if (entry.isKnown)
            return;
        std::ranges::copy(currency.code, entry.code.begin());
        entry.digits = currency.digits;
        entry.isKnown = true;
        m_numbers.emplace_back(currency.code, currency.number);
    }

    std::array<Entry, 1000> m_entries{};
    std::vector<Numbered> m_numbers;
};

const CurrencyTable &table()
{
    static const CurrencyTable theTable;
    return theTable;
}

std::string nameOf(std::string_view code, const std::string &locale, UCurrNameStyle style)
{
    icu::UnicodeString wide = unicodeCode(code);
    UErrorCode status = U_ZERO_ERROR;
    int32_t length = 0;
    const char16_t *name =
        ucurr_getName(wide.getTerminatedBuffer(), locale.c_str(), style, nullptr, &length, &status);
    std::string text;
    if (U_SUCCESS(status) && name != nullptr)
        icu::UnicodeString(name, length).toUTF8String(text);
    return text.empty() ? std::string(code) : text;
}

} // namespace

Currency::Currency(std::uint16_t numericCode) : m_numericCode(numericCode)
{
    const Entry *entry = table().find(numericCode);
    if (entry == nullptr)
        throw internal::unknownNumericCode(numericCode);
    std::ranges::copy(entry->code, m_code);
}

Currency toCurrency(const std::string &code)
{
    const std::uint16_t number = table().numberOf(code);
    if (number == 0)
        throw internal::unknownCode(code);
    return Currency(number);
}

std::string toStdString(const Currency &currency)
{
    return std::string(currency.code());
}

std::optional<std::string> currencySymbol(const Currency &currency)
{
    if (currency.numericCode() == noCurrency)
        return std::nullopt;
    // Readers of statements ask for each amount, and ICU takes long for an answer.
    thread_local std::string locale;
    thread_local std::map<Currency, std::string> symbols;
    if (locale != libraryLocale()) {
        symbols.clear();
        locale = libraryLocale();
    }
    auto found = symbols.find(currency);
    if (found == symbols.end())
        found = symbols.emplace(currency, nameOf(currency.code(), locale, UCURR_SYMBOL_NAME)).first;
    const std::string &symbol = found->second;
    if (symbol == currency.code())
        return std::nullopt;
    return symbol;
}

std::string currencyName(const Currency &currency)
{
    return nameOf(currency.code(), "en_US", UCURR_LONG_NAME);
}

unsigned minorUnitDigits(const Currency &currency)
{
    return table().find(currency.numericCode())->digits;
}

const std::set<Currency> &activeCurrencies()
{
    static const std::set<Currency> active = [] {
        std::set<Currency> currencies;
        for (const std::string &code : listedCodes(UCURR_COMMON | UCURR_NON_DEPRECATED)) {
            if (const std::uint16_t number = table().numberOf(code); number != 0)
                currencies.emplace(number);
        }
        for (const Listed &currency : recent)
            currencies.emplace(currency.number);
        return currencies;
    }();
    return active;
}

std::ostream &operator<<(std::ostream &out, const Currency &currency)
{
    return out << currency.code();
}

} // namespace numira
