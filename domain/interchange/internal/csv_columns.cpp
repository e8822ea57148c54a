// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/csv_columns.h"

#include "interchange/internal/statement_faults.h"
#include "interchange/internal/statement_words.h"

#include "foundation/presentation.h"

#include <QtCore/QRegularExpression>

namespace kiv::interchange::internal {

namespace {

/// "wahrung" of "Währung": in lower case and without the marks that banks often leave out.
QString plainHeading(const QString &heading)
{
    QString plain = heading.toLower().normalized(QString::NormalizationForm_D);
    plain.removeIf([](QChar letter) { return letter.isMark(); });
    return plain;
}

class Finder {
public:
    Finder(const CsvRecord &first, const CsvProfile &profile, const numira::Currency &currency)
        : m_profile(profile), m_place(first.place), m_currency(currency)
    {
        QStringList &headings = m_columns.headings;
        for (const QString &cell : first.cells)
            headings += profile.hasHeadings ? cell.trimmed() : QString::number(headings.size() + 1);
    }

    CsvColumns find()
    {
        CsvColumns &found = m_columns;
        if (found.headings.contains(QStringLiteral("debitAccount")))
            throw faults::ownTable(m_place);
        found.date = need(m_profile.dateColumn, words::date, "--date-column");
        findAmounts();
        found.sign = find(m_profile.signColumn, {}, "--sign-column");
        found.id = find(m_profile.idColumn, words::id, "--id-column");
        findCurrency();
        found.status = find(m_profile.statusColumn, words::status, "--status-column");
        if (m_profile.balanceColumn != u"-")
            found.balance = find(m_profile.balanceColumn, words::balance, "--balance-column");
        findTexts();
        for (const auto &column : {found.amount, found.in, found.out, found.sign, found.currency})
            found.needed = std::max(found.needed, column.value_or(0) + 1);
        found.needed = std::max(found.needed, found.date + 1);
        found.named = found.headings.size();
        while (found.named > found.needed && found.headings[found.named - 1].isEmpty())
            --found.named;
        return std::move(found);
    }

private:
    void findAmounts()
    {
        const auto findIn = [this](const QStringList &headings) {
            m_columns.in = find(m_profile.inColumn, headings, "--in-column");
        };
        const auto findOut = [this](const QStringList &headings) {
            m_columns.out = find(m_profile.outColumn, headings, "--out-column");
        };
        // A profile that names one of the two columns means both; the other is found by
        // heading.
        findIn(m_profile.outColumn.isEmpty() ? QStringList() : words::in);
        findOut(m_profile.inColumn.isEmpty() ? QStringList() : words::out);
        if (m_columns.in || m_columns.out) {
            requireOwnCurrency(m_columns.in);
            requireOwnCurrency(m_columns.out);
            return;
        }
        m_columns.amount = find(m_profile.amountColumn, words::amount, "--amount-column");
        requireOwnCurrency(m_columns.amount);
        if (m_columns.amount)
            return;
        // One column of the pair alone would lose the entries of the other.
        findIn(words::in);
        findOut(words::out);
        if (!m_columns.in || !m_columns.out)
            throw faults::columnNotNamed(
                m_place, QLatin1String("--amount-column (or --in-column and --out-column)"),
                m_columns.headings);
    }

    void findCurrency()
    {
        // A column of currencies next to "Amount in GBP" tells the currency of an amount
        // abroad.
        const QRegularExpression own(
            QStringLiteral("\\b%1\\b").arg(foundation::toQString(m_currency)));
        if (!m_profile.currencyColumn.isEmpty() || !m_columns.amount ||
            !m_columns.headings[*m_columns.amount].contains(own))
            m_columns.currency =
                find(m_profile.currencyColumn, words::currency, "--currency-column");
    }

    /// Several columns with the same common heading may hold parts of the text.
    void findTexts()
    {
        for (const QString &column : m_profile.textColumns)
            m_columns.texts.push_back(need(column, {}, "--text-column"));
        for (const QString &heading : words::text) {
            if (m_columns.texts.empty())
                m_columns.texts = under(heading);
        }
        if (m_columns.texts.empty())
            throw faults::columnNotNamed(m_place, QLatin1String("--text-column"),
                                         m_columns.headings);
    }

    [[nodiscard]] std::optional<qsizetype> find(const QString &column, const QStringList &headings,
                                                const char *option) const
    {
        if (column.isEmpty()) {
            for (const QString &heading : headings) {
                if (const auto found = only(under(heading), option))
                    return found;
            }
            return std::nullopt;
        }
        std::vector<qsizetype> same;
        for (qsizetype at = 0; at < m_columns.headings.size(); ++at) {
            if (m_columns.headings[at] == column)
                same.push_back(at);
        }
        if (const auto found = only(same, option))
            return found;
        const qsizetype number = column.toInt(); // 0 when it is none
        if (number < 1 || number > m_columns.headings.size())
            throw faults::noSuchColumn(m_place, column, m_columns.headings);
        return number - 1;
    }

    /// The columns with a common heading.
    [[nodiscard]] std::vector<qsizetype> under(const QString &heading) const
    {
        std::vector<qsizetype> found;
        for (qsizetype at = 0; at < m_columns.headings.size(); ++at) {
            const QString plain = plainHeading(m_columns.headings[at]);
            if (plain == heading || (plain.startsWith(heading + QStringLiteral(" (")) &&
                                     namesCurrency(plain.sliced(heading.size() + 2))))
                found.push_back(at);
        }
        return found;
    }

    [[nodiscard]] std::optional<qsizetype> only(const std::vector<qsizetype> &columns,
                                                const char *option) const
    {
        if (columns.size() > 1) {
            QStringList numbers;
            for (const qsizetype column : columns)
                numbers += QString::number(column + 1);
            throw faults::columnsAlike(m_place, numbers, m_columns.headings[columns[0]],
                                       QLatin1String(option));
        }
        return columns.empty() ? std::nullopt : std::optional(columns[0]);
    }

    /// A column of "Amount (EUR)" or "Amount in EUR" holds nothing else.
    void requireOwnCurrency(std::optional<qsizetype> column) const
    {
        if (!column)
            return;
        static const QRegularExpression pattern(
            QStringLiteral("\\(([^()]+)\\)$|\\bin ([A-Za-z]{3})$"));
        const auto match = pattern.match(m_columns.headings[*column]);
        const QString name = match.captured(1) + match.captured(2);
        const auto named = readCurrency(name.toUpper(), m_currency);
        if (named && *named != m_currency)
            throw faults::otherCurrency(m_place, foundation::toQString(*named),
                                        foundation::toQString(m_currency));
    }
    /// Whether it is the account's currency in brackets, as in "Betrag (EUR)".
    [[nodiscard]] bool namesCurrency(const QString &rest) const
    {
        const auto named = rest.endsWith(u')') ? readCurrency(rest.chopped(1).toUpper(), m_currency)
                                               : std::nullopt;
        return named == m_currency;
    }
    [[nodiscard]] qsizetype need(const QString &column, const QStringList &headings,
                                 const char *option) const
    {
        const auto found = find(column, headings, option);
        if (!found)
            throw faults::columnNotNamed(m_place, QLatin1String(option), m_columns.headings);
        return *found;
    }

    const CsvProfile &m_profile;
    const Place &m_place;
    const numira::Currency &m_currency;
    CsvColumns m_columns;
};

} // namespace

CsvColumns columnsOf(const CsvRecord &first, const CsvProfile &profile,
                     const numira::Currency &currency)
{
    return Finder(first, profile, currency).find();
}

} // namespace kiv::interchange::internal
