// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/csv_columns.h"

#include "interchange/internal/csv_headings.h"
#include "interchange/internal/day_forms.h"
#include "interchange/internal/digits.h"
#include "interchange/internal/statement_faults.h"

#include "foundation/presentation.h"

#include <algorithm>
#include <functional>

namespace kiv::interchange::internal {

namespace {

using words::Column;

/// Columns show what they hold in their first rows.
constexpr std::size_t shownMax = 100;

/// An amount with its sign or cents, which no other number of an entry has.
bool isAmount(const QString &cell)
{
    const auto isPart = [](QChar unit) {
        return isDigit(unit) || QStringLiteral(".,'+-()−  ").contains(unit) ||
               unit.category() == QChar::Symbol_Currency;
    };
    const bool hasSign = cell.startsWith(u'-') || cell.startsWith(u'+') || cell.endsWith(u'-');
    const qsizetype mark = std::max(cell.lastIndexOf(u'.'), cell.lastIndexOf(u','));
    return std::ranges::any_of(cell, isDigit) && std::ranges::all_of(cell, isPart) &&
           (hasSign || (mark >= 0 && cell.size() - mark == 3));
}

class Finder {
public:
    Finder(const CsvSheet &sheet, const numira::Currency &currency)
        : m_sheet(sheet),
          m_profile(sheet.profile),
          m_place(sheet.headings.place),
          m_currency(currency)
    {
        m_columns.headings = sheet.headings.cells;
        for (const QString &heading : m_columns.headings)
            m_headings.push_back(headingOf(heading, currency));
    }

    CsvColumns find()
    {
        CsvColumns &found = m_columns;
        if (found.headings.contains(QStringLiteral("debitAccount")))
            throw faults::ownTable(m_place);
        findDates();
        findAmounts();
        found.sign = named(m_profile.signColumn, "--sign-column");
        findId();
        findCurrency();
        found.status = optional(m_profile.statusColumn, Column::Status, "--status-column");
        found.balance = optional(m_profile.balanceColumn, Column::Balance, "--balance-column");
        findTexts();
        if (!found.amount || !m_headings[index(*found.amount)].plain.startsWith(u"net"))
            found.fee = optional(m_profile.feeColumn, Column::Fee, "--profile");
        findAccount();
        // Where only some entries are marked, the cell may be missing.
        const bool isMarked = m_profile.negativeSigns.contains(QString());
        for (const auto &column : {found.amount, found.in, found.out,
                                   isMarked ? std::nullopt : found.sign, found.currency})
            found.needed = std::max(found.needed, column.value_or(0) + 1);
        found.needed = std::max(found.needed, found.date + 1);
        found.named = found.headings.size();
        while (found.named > found.needed && found.headings[found.named - 1].isEmpty())
            --found.named;
        return std::move(found);
    }

private:
    using Holds = std::function<bool(const QString &)>;

    // ---- days --------------------------------------------------------------------

    void findDates()
    {
        auto date = required(m_profile.dateColumn, Column::Date, "--date-column");
        std::vector<qsizetype> days;
        for (qsizetype column = 0; !date && column < m_columns.headings.size(); ++column) {
            if (holds(column, &DayForms::isDay))
                days.push_back(column);
        }
        // Without headings, banks write the day of booking before the other one.
        if (days.size() == 1 || (!days.empty() && !hasHeadings()))
            date = days.front();
        if (!date)
            throw faults::columnNotNamed(m_place, QLatin1String("--date-column"),
                                         m_columns.headings);
        m_columns.date = *date;
        m_columns.valueDate =
            optional(m_profile.valueDateColumn, Column::ValueDate, nullptr, &DayForms::isDay);
        if (m_columns.valueDate == m_columns.date)
            m_columns.valueDate.reset();
    }

    // ---- amounts -----------------------------------------------------------------

    void findAmounts()
    {
        const auto findIn = [this](bool byHeading) {
            m_columns.in = byHeading ? required(m_profile.inColumn, Column::In, "--in-column")
                                     : named(m_profile.inColumn, "--in-column");
        };
        const auto findOut = [this](bool byHeading) {
            m_columns.out = byHeading ? required(m_profile.outColumn, Column::Out, "--out-column")
                                      : named(m_profile.outColumn, "--out-column");
        };
        // A profile that names one of the two columns means both; the other is found by
        // heading.
        findIn(!m_profile.outColumn.isEmpty());
        findOut(!m_profile.inColumn.isEmpty());
        if (!m_columns.in && !m_columns.out) {
            m_columns.amount = m_profile.amountColumn.isEmpty()
                                   ? foundAmount()
                                   : named(m_profile.amountColumn, "--amount-column");
            // One column of the pair alone would lose the entries of the other.
            const bool isUnsigned = m_columns.amount && m_profile.amountColumn.isEmpty() &&
                                    !hasMinus(*m_columns.amount) && !only(Column::In).empty() &&
                                    !only(Column::Out).empty();
            if (!m_columns.amount || isUnsigned) {
                findIn(true);
                findOut(true);
            }
            if (!m_columns.amount && (!m_columns.in || !m_columns.out))
                refuseAmount();
            if (m_columns.in && m_columns.out)
                m_columns.amount.reset();
        }
        for (const auto &column : {m_columns.amount, m_columns.in, m_columns.out})
            requireOwnCurrency(column);
    }

    [[nodiscard]] std::optional<qsizetype> foundAmount() const
    {
        const auto found = foundBy(Column::Amount, "--amount-column", {});
        if (found || hasHeadings())
            return found;
        std::vector<qsizetype> amounts;
        for (qsizetype column = 0; column < m_columns.headings.size(); ++column) {
            if (column != m_columns.date && holds(column, &isAmount) && isFull(column))
                amounts.push_back(column);
        }
        // One that never has a minus may be a balance, or tell its sign elsewhere.
        const bool isOnly = amounts.size() == 1 && hasMinus(amounts.front());
        return isOnly ? std::optional(amounts.front()) : std::nullopt;
    }

    [[noreturn]] void refuseAmount() const
    {
        for (const QString &word : words::headingsOf(Column::Amount)) {
            for (const CsvHeading &heading : m_headings) {
                if (heading.base == word && heading.currency && *heading.currency != m_currency)
                    throw faults::otherCurrency(m_place, foundation::toQString(*heading.currency),
                                                foundation::toQString(m_currency));
            }
        }
        throw faults::columnNotNamed(
            m_place, QLatin1String("--amount-column (or --in-column and --out-column)"),
            m_columns.headings);
    }

    /// A column of "Amount (EUR)" or "Amount in EUR" holds nothing else.
    void requireOwnCurrency(std::optional<qsizetype> column) const
    {
        const auto other = column ? m_headings[index(*column)].currency : std::nullopt;
        if (other && *other != m_currency)
            throw faults::otherCurrency(m_place, foundation::toQString(*other),
                                        foundation::toQString(m_currency));
    }

    void findId()
    {
        m_columns.id = optional(m_profile.idColumn, Column::Id, "--id-column");
        for (const qsizetype column : under(QStringLiteral("id"))) {
            const auto isLong = [](const QString &id) { return id.size() >= 8; };
            // A shorter one counts the lines.
            if (!m_columns.id && m_profile.idColumn.isEmpty() && holds(column, isLong))
                m_columns.id = column;
        }
    }

    void findCurrency()
    {
        // A column of currencies next to "Amount in GBP" tells the currency of an amount
        // abroad.
        const bool isTold =
            m_columns.amount && m_headings[index(*m_columns.amount)].currency == m_currency;
        if (!m_profile.currencyColumn.isEmpty() || !isTold)
            m_columns.currency =
                optional(m_profile.currencyColumn, Column::Currency, "--currency-column",
                         [](const QString &cell) { return !DayForms::isDay(cell); });
    }

    // ---- texts -------------------------------------------------------------------

    /// Several columns with the same common heading may hold parts of the text.
    void findTexts()
    {
        for (const QString &column : m_profile.textColumns)
            m_columns.texts.push_back(*named(column, "--text-column"));
        m_columns.payee =
            m_profile.payeeColumn.isEmpty() ? foundPayee() : named(m_profile.payeeColumn, nullptr);
        for (const bool mayBeEmpty : {false, true}) {
            for (const QString &heading : words::headingsOf(Column::Text)) {
                if (m_columns.texts.empty())
                    m_columns.texts = under(heading);
                if (!mayBeEmpty)
                    std::erase_if(m_columns.texts, [this](qsizetype column) {
                        return m_profile.textColumns.isEmpty() && !holds(column, {});
                    });
            }
        }
        m_firstPayee = m_columns.payee;
        // What there is alone tells all that the bank says about an entry.
        if (m_columns.texts.empty() && m_columns.payee)
            m_columns.texts = {*std::exchange(m_columns.payee, std::nullopt)};
        if (m_columns.texts.empty())
            findTextsByContents();
        if (m_columns.texts.empty())
            throw faults::columnNotNamed(m_place, QLatin1String("--text-column"),
                                         m_columns.headings);
        const auto isText = [this](qsizetype column) {
            return std::ranges::find(m_columns.texts, column) != m_columns.texts.end();
        };
        if (m_columns.payee && isText(*m_columns.payee))
            m_columns.payee.reset();
    }

    /// Beside another payee, a mere name is that of the account's holder.
    [[nodiscard]] std::optional<qsizetype> foundPayee() const
    {
        const auto hasCells = [](const QString &) { return true; };
        const auto filled = foundBy(Column::Payee, nullptr, hasCells);
        const bool isName = filled && QStringList{QStringLiteral("name"), QStringLiteral("naam"),
                                                  QStringLiteral("navn"), QStringLiteral("namn")}
                                          .contains(m_headings[index(*filled)].plain);
        return filled && !isName ? filled : foundBy(Column::Payee, nullptr, {});
    }

    void findTextsByContents()
    {
        const std::initializer_list<std::optional<qsizetype>> others{
            m_columns.date,   m_columns.valueDate, m_columns.amount, m_columns.in,
            m_columns.out,    m_columns.sign,      m_columns.id,     m_columns.currency,
            m_columns.status, m_columns.balance};
        for (qsizetype column = 0; column < m_columns.headings.size(); ++column) {
            const auto isWords = [](const QString &cell) {
                return std::ranges::count_if(cell, [](QChar unit) { return unit.isLetter(); }) >
                           0 &&
                       !DayForms::isDay(cell);
            };
            if (std::ranges::find(others, std::optional(column)) == others.end() &&
                !words::isHeading(m_headings[index(column)].plain) && holds(column, isWords))
                m_columns.texts.push_back(column);
        }
    }

    /// The statement's own account stands on each line, before the other side's.
    void findAccount()
    {
        const auto isNumber = [](const QString &cell) {
            return std::ranges::count_if(cell, &isDigit) >= 4;
        };
        m_columns.account = optional(m_profile.accountColumn, Column::Account, nullptr, isNumber);
        const auto &account = m_columns.account;
        if (!account || !m_profile.accountColumn.isEmpty())
            return;
        const auto isOther = [&, first = QString()](const CsvRecord &row) mutable {
            const QString number = row.cells.value(*account).trimmed();
            if (first.isEmpty())
                first = number;
            return !number.isEmpty() && number != first;
        };
        if (*account > m_firstPayee.value_or(*account) ||
            std::any_of(m_sheet.rows.begin(), m_sheet.rows.end(), isOther))
            m_columns.account.reset();
    }

    // ---- finding -----------------------------------------------------------------

    [[nodiscard]] bool hasHeadings() const { return m_profile.hasHeadings.value_or(true); }
    static std::size_t index(qsizetype column) { return static_cast<std::size_t>(column); }

    /// Whether the column has cells in the first rows, and all of them are so.
    [[nodiscard]] bool holds(qsizetype column, const Holds &isSo) const
    {
        bool hasCells = false;
        for (std::size_t row = 0; row < std::min(m_sheet.rows.size(), shownMax); ++row) {
            const QString cell = m_sheet.rows[row].cells.value(column).trimmed();
            if (cell.isEmpty() || words::saysPending(cell))
                continue;
            if (isSo && !isSo(cell))
                return false;
            hasCells = true;
        }
        return hasCells;
    }
    [[nodiscard]] bool isFull(qsizetype column) const
    {
        return std::ranges::none_of(m_sheet.rows, [column](const CsvRecord &row) {
            return row.cells.value(column).trimmed().isEmpty();
        });
    }
    [[nodiscard]] bool hasMinus(qsizetype column) const
    {
        return std::ranges::any_of(m_sheet.rows, [column](const CsvRecord &row) {
            const QString cell = row.cells.value(column);
            return cell.contains(u'-') || cell.contains(u'(') || cell.contains(QChar(0x2212));
        });
    }

    /// The column that the profile names; nothing where it names none.
    [[nodiscard]] std::optional<qsizetype> named(const QString &name, const char *option) const
    {
        if (name.isEmpty() || name == u"-")
            return std::nullopt;
        std::vector<qsizetype> same;
        for (qsizetype at = 0; at < m_columns.headings.size(); ++at) {
            if (m_columns.headings[at] == name)
                same.push_back(at);
        }
        if (const auto found = one(same, option ? option : "--profile"))
            return found;
        const qsizetype number = name.toInt(); // 0 when it is none
        if (number < 1 || number > m_columns.headings.size())
            throw faults::noSuchColumn(m_place, name, m_columns.headings);
        return number - 1;
    }

    /// The column that the profile names, or else one with a common heading.
    [[nodiscard]] std::optional<qsizetype> required(const QString &name, Column column,
                                                    const char *option) const
    {
        return name.isEmpty() ? foundBy(column, option, {}) : named(name, option);
    }
    /// The same, of columns that hold such cells. Without an option, several are none.
    [[nodiscard]] std::optional<qsizetype>
    optional(const QString &name, Column column, const char *option, const Holds &isSo = {}) const
    {
        return name.isEmpty() ? foundBy(column, option, isSo) : named(name, option);
    }

    [[nodiscard]] std::optional<qsizetype> foundBy(Column column, const char *option,
                                                   const Holds &isSo) const
    {
        for (const QString &heading : words::headingsOf(column)) {
            std::vector<qsizetype> found = under(heading);
            if (column != Column::Date && column != Column::ValueDate) // "Value" may be either
                std::erase_if(found, [this](qsizetype at) { return at == m_columns.valueDate; });
            if (isSo && !m_sheet.rows.empty())
                std::erase_if(found, [&](qsizetype at) { return !holds(at, isSo); });
            if (const auto only = one(found, option))
                return only;
        }
        return std::nullopt;
    }

    /// The columns with a common heading of the kind.
    [[nodiscard]] std::vector<qsizetype> only(Column column) const
    {
        for (const QString &heading : words::headingsOf(column)) {
            if (auto found = under(heading); !found.empty())
                return found;
        }
        return {};
    }

    /// The columns with the heading; those that name the account's currency go before others.
    [[nodiscard]] std::vector<qsizetype> under(const QString &heading) const
    {
        std::vector<qsizetype> found;
        std::vector<qsizetype> own;
        for (qsizetype at = 0; at < m_columns.headings.size(); ++at) {
            const CsvHeading &known = m_headings[index(at)];
            if (known.plain == heading)
                found.push_back(at);
            else if (known.base == heading && known.currency == m_currency)
                own.push_back(at);
        }
        return own.empty() ? found : own;
    }

    [[nodiscard]] std::optional<qsizetype> one(const std::vector<qsizetype> &columns,
                                               const char *option) const
    {
        if (columns.size() > 1 && !option)
            return std::nullopt;
        if (columns.size() > 1) {
            QStringList numbers;
            for (const qsizetype column : columns)
                numbers += QString::number(column + 1);
            throw faults::columnsAlike(m_place, numbers, m_columns.headings[columns[0]],
                                       QLatin1String(option));
        }
        return columns.empty() ? std::nullopt : std::optional(columns[0]);
    }

    const CsvSheet &m_sheet;
    const CsvProfile &m_profile;
    const Place &m_place;
    const numira::Currency &m_currency;
    std::vector<CsvHeading> m_headings;
    std::optional<qsizetype> m_firstPayee; ///< also where it makes the text
    CsvColumns m_columns;
};

} // namespace

CsvColumns columnsOf(const CsvSheet &sheet, const numira::Currency &currency)
{
    return Finder(sheet, currency).find();
}

CsvProfile withColumns(CsvProfile profile, const CsvColumns &columns)
{
    const auto name = [&columns](std::optional<qsizetype> column) {
        if (!column)
            return QString();
        const QString &heading = columns.headings[*column];
        return heading.isEmpty() || heading == u"-" || columns.headings.count(heading) > 1
                   ? QString::number(*column + 1)
                   : heading;
    };
    for (const auto &[member, column] :
         {std::pair(&CsvProfile::dateColumn, std::optional(columns.date)),
          {&CsvProfile::valueDateColumn, columns.valueDate},
          {&CsvProfile::amountColumn, columns.amount},
          {&CsvProfile::inColumn, columns.in},
          {&CsvProfile::outColumn, columns.out},
          {&CsvProfile::signColumn, columns.sign},
          {&CsvProfile::feeColumn, columns.fee},
          {&CsvProfile::payeeColumn, columns.payee},
          {&CsvProfile::idColumn, columns.id},
          {&CsvProfile::currencyColumn, columns.currency},
          {&CsvProfile::statusColumn, columns.status},
          {&CsvProfile::balanceColumn, columns.balance},
          {&CsvProfile::accountColumn, columns.account}}) {
        if ((profile.*member).isEmpty())
            profile.*member = name(column);
    }
    if (profile.textColumns.isEmpty()) {
        for (const qsizetype column : columns.texts)
            profile.textColumns += name(column);
    }
    return profile;
}

} // namespace kiv::interchange::internal
