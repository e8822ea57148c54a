// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "output/terminal.h"

#include "navigation/currency_display.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QStringList>

#include <functional>
#include <variant>
#include <vector>

namespace kiv::app {

/// One column of a table, or one line of a list: its title, and which value of
/// the row's JSON object it shows. Amounts and numbers stand to the right.
struct Column {
    QString title;
    QString key;
    /// How the value is worded; as it stands without one.
    std::function<QString(const QJsonValue &)> words = {};
};

/// An amount's JSON object as the user wants currencies to be shown:
/// "$1,234.50", "1234.50 USD" or "$1,234.50 USD" in English; with a locale for
/// numbers, as that one writes them.
[[nodiscard]] QString amountText(const QJsonValue &amount,
                                 navigation::CurrencyDisplayOptions displayAs);
/// The texts of several, with commas between them; "0" for none.
[[nodiscard]] QString amountsText(const QJsonArray &amounts,
                                  navigation::CurrencyDisplayOptions displayAs);

/// A day as people read it. For columns, like the next two.
[[nodiscard]] QString dayText(const QJsonValue &isoDate);
/// A word of the command's own, such as "monthly", in the user's language.
[[nodiscard]] QString wordText(const QJsonValue &word);
/// "cleared", "reconciled" or "none" of a transaction, likewise.
[[nodiscard]] QString statusText(const QJsonValue &status);

/// The same JSON with everything that a terminal would obey as \uXXXX.
[[nodiscard]] QByteArray safeJson(const QByteArray &json);

/// What a command has to tell: values for programs, and the same for people as
/// lines, tables and lists. Both are made from the same JSON, so that they
/// cannot disagree. Everything is escaped when it is written, but for raw().
class Report {
public:
    Report() = default;
    explicit Report(QJsonValue data) : m_data(std::move(data)) {}

    Report &line(const QString &text);
    Report &heading(const QString &text);
    /// `whenEmpty` is said in place of a table without rows.
    Report &table(std::vector<Column> columns, const QJsonArray &rows, const QString &whenEmpty);
    Report &list(std::vector<Column> columns, const QJsonObject &values);
    /// A document for another program, byte for byte, whatever the format.
    Report &raw(const QByteArray &document);

    /// The exit status, where a command has more to say than that it went well.
    void setStatus(int status) noexcept { m_status = status; }
    [[nodiscard]] int status() const noexcept { return m_status; }

    /// The command, one that changes the budget, has found nothing to change.
    void setUnchanged() noexcept { m_isUnchanged = true; }
    [[nodiscard]] bool isUnchanged() const noexcept { return m_isUnchanged; }

    /// What is left to be done once the budget is saved; not called when it could not be.
    void setFinish(std::function<void()> finish) { m_finish = std::move(finish); }
    void finish() const
    {
        if (m_finish)
            m_finish();
    }

    [[nodiscard]] const QJsonValue &data() const noexcept { return m_data; }
    void setData(QJsonValue data) { m_data = std::move(data); }

    /// As one JSON document.
    [[nodiscard]] QByteArray toJson() const;
    /// For people.
    [[nodiscard]] QByteArray toText(const Terminal &terminal,
                                    navigation::CurrencyDisplayOptions displayAs) const;

private:
    struct Line {
        QString text;
        bool isHeading;
    };
    struct Table {
        std::vector<Column> columns;
        QJsonArray rows;
        QString whenEmpty;
    };
    struct List {
        std::vector<Column> columns;
        QJsonObject values;
    };

    QJsonValue m_data = QJsonValue::Undefined;
    std::vector<std::variant<Line, Table, List>> m_blocks;
    QByteArray m_raw;
    int m_status = 0;
    bool m_isUnchanged = false;
    std::function<void()> m_finish;
};

} // namespace kiv::app
