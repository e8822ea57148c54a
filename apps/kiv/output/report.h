// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "output/json.h"
#include "output/terminal.h"

#include "workbench/entry/account_index.h"

#include "navigation/currency_display.h"

#include <QtCore/QStringList>

#include <variant>
#include <vector>

namespace kiv::app {

/// A column of a table or a line of a list: a title and a key of the row's JSON object.
/// Amounts and numbers are right-aligned.
struct Column {
    QString title;
    QString key;
    /// Makes text of the value; without it, the value is shown as it is.
    std::function<QString(const QJsonValue &)> words = {};
};

/// Formats an amount's JSON object with the chosen currency display: "$1,234.50",
/// "1234.50 USD" or "$1,234.50 USD". Numbers follow the locale.
[[nodiscard]] QString amountText(const QJsonValue &amount,
                                 navigation::CurrencyDisplayOptions displayAs);
/// Several amounts, separated by commas; "0" for none.
[[nodiscard]] QString amountsText(const QJsonArray &amounts,
                                  navigation::CurrencyDisplayOptions displayAs);

/// An ISO date in the form of the locale. This function and the next two are for
/// columns.
[[nodiscard]] QString dayText(const QJsonValue &isoDate);
/// A coded word such as "monthly", in the user's language.
[[nodiscard]] QString wordText(const QJsonValue &word);
/// The status of a transaction ("cleared", "reconciled" or "none"), in the user's
/// language.
[[nodiscard]] QString statusText(const QJsonValue &status);

/// A text without the marks of the accounts of budget items.
[[nodiscard]] QString plainText(const QJsonValue &text);
/// Payee and reason of a description.
[[nodiscard]] QString descriptionText(const QJsonValue &description);
/// For a column with numbers of accounts: their plain names.
[[nodiscard]] std::function<QString(const QJsonValue &)>
accountText(std::shared_ptr<const workbench::AccountIndex> index);

/// The result of a command: JSON for programs, and lines, tables and lists for people.
/// Both are made from the same values, so they always agree. All texts are escaped when
/// written, except raw().
class Report {
public:
    Report() = default;
    explicit Report(QJsonValue data) : m_data(std::move(data)) {}
    /// The data is a list of these rows.
    explicit Report(Rows rows) : m_list(List{{}, std::move(rows)}) {}
    /// The data is an object with a list of these rows as its member `key`.
    Report(QJsonObject data, QString key, Rows rows)
        : m_data(std::move(data)), m_list(List{std::move(key), std::move(rows)})
    {
    }
    /// The data is a list of these rows, and its text the table of them.
    [[nodiscard]] static Report listing(std::vector<Column> columns, const Rows &rows,
                                        const QString &whenEmpty);

    Report &line(const QString &text);
    Report &heading(const QString &text);
    /// `whenEmpty` replaces a table without rows.
    Report &table(std::vector<Column> columns, const Rows &rows, const QString &whenEmpty);
    Report &list(std::vector<Column> columns, const QJsonObject &values);
    /// A document that is written byte for byte, in place of everything else.
    Report &raw(const QByteArray &document);
    /// The JSON is written for people, too.
    Report &setAlwaysJson()
    {
        m_isAlwaysJson = true;
        return *this;
    }

    /// The exit status, if it is not success.
    void setStatus(int status) noexcept { m_status = status; }
    [[nodiscard]] int status() const noexcept { return m_status; }

    /// Says that a changing command found nothing to change, so nothing is saved.
    void setUnchanged() noexcept { m_isUnchanged = true; }
    [[nodiscard]] bool isUnchanged() const noexcept { return m_isUnchanged; }

    /// Names the change that is saved, for the list of versions. Without it, the first
    /// line does.
    void setChange(const QString &change) { m_change = change; }
    [[nodiscard]] QString change() const;

    /// Called after the budget was saved; not called if saving failed.
    void setFinish(std::function<void()> finish) { m_finish = std::move(finish); }
    void finish() const
    {
        if (m_finish)
            m_finish();
    }

    void setData(QJsonValue data) { m_data = std::move(data); }

    /// Writes the result as one JSON document.
    void writeJson(const Terminal &terminal) const;
    /// Writes the result as text for people.
    void writeText(const Terminal &terminal, navigation::CurrencyDisplayOptions displayAs) const;

private:
    struct Line {
        QString text;
        bool isHeading;
    };
    struct Table {
        std::vector<Column> columns;
        Rows rows;
        QString whenEmpty;
    };
    struct ValueList {
        std::vector<Column> columns;
        QJsonObject values;
    };
    /// A list in the data, under its key; without one, it is all the data.
    struct List {
        QString key;
        Rows rows;
    };

    QJsonValue m_data = QJsonValue::Undefined;
    std::optional<List> m_list;
    std::vector<std::variant<Line, Table, ValueList>> m_blocks;
    QByteArray m_raw;
    bool m_isAlwaysJson = false;
    int m_status = 0;
    bool m_isUnchanged = false;
    QString m_change;
    std::function<void()> m_finish;
};

} // namespace kiv::app
