// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/report.h"

#include "output/json.h"
#include "output/table.h"

#include "workbench/entry/description.h"
#include "workbench/entry/kind_words.h"
#include "workbench/entry/money_text.h"

#include "foundation/local_dates.h"
#include "foundation/streams.h"
#include "numira/error.h"

#include <QtCore/QObject>

#include <algorithm>

namespace kiv::app {
namespace {

Cell cellOf(const Column &column, const QJsonObject &row,
            navigation::CurrencyDisplayOptions displayAs)
{
    const QJsonValue value = row.value(column.key);
    Cell cell;
    if (column.words) {
        cell.text = column.words(value);
    } else if (value.isObject()) {
        cell.text = amountText(value, displayAs);
        cell.isNumber = true;
        cell.isNegative = value[QLatin1String("amount")].toString().startsWith(u'-');
    } else if (value.isDouble()) {
        cell.text = QString::number(value.toInteger());
        cell.isNumber = true;
    } else if (value.isArray()) {
        QStringList texts;
        for (const QJsonValue element : value.toArray())
            texts += element.toString();
        cell.text = texts.join(QStringLiteral(", "));
    } else {
        cell.text = value.toString();
    }
    cell.text = foundation::escaped(cell.text);
    return cell;
}

Table tableOf(const std::vector<Column> &columns, const Rows &rows,
              navigation::CurrencyDisplayOptions displayAs)
{
    QStringList titles;
    for (const Column &column : columns)
        titles += column.title;
    Table table(titles, columns.size());
    for (qsizetype at = 0; at < rows.size(); ++at) {
        const QJsonObject row = rows[at].toObject();
        for (const Column &column : columns)
            table.add(cellOf(column, row, displayAs));
    }
    return table;
}

} // namespace

QString amountText(const QJsonValue &value, navigation::CurrencyDisplayOptions displayAs)
{
    const QString amount = value[QLatin1String("amount")].toString();
    const QString code = value[QLatin1String("currency")].toString();
    try {
        return workbench::amountText(
            numira::toMoney(numira::toCurrency(code.toStdString()), amount.toStdString()),
            displayAs);
    } catch (const numira::Error &) {
        // An amount in an unknown currency is shown as it is.
        return amount + u' ' + code;
    }
}

QString amountsText(const QJsonArray &amounts, navigation::CurrencyDisplayOptions displayAs)
{
    QStringList texts;
    for (const QJsonValue amount : amounts)
        texts += amountText(amount, displayAs);
    return texts.isEmpty() ? QStringLiteral("0") : texts.join(QStringLiteral(", "));
}

QString dayText(const QJsonValue &isoDate)
{
    const QDate date = QDate::fromString(isoDate.toString(), Qt::ISODate);
    return date.isValid() ? foundation::localText(date) : isoDate.toString();
}

QString wordText(const QJsonValue &word)
{
    const QString text = word.toString();
    // The only kind whose coded word is not an English word.
    constexpr auto nontrack = budgeting::BudgetItemTypes::Nontrack;
    if (text == workbench::kindWord(nontrack))
        return workbench::kindText(nontrack);
    return QObject::tr(text.toUtf8().constData());
}

QString statusText(const QJsonValue &status)
{
    const QString word = status.toString();
    if (word == u"cleared")
        return QObject::tr("cleared");
    if (word == u"reconciled")
        return QObject::tr("reconciled");
    return QObject::tr("none", "the status of a transaction");
}

QString plainText(const QJsonValue &text)
{
    return workbench::inPlainWords(text.toString());
}

QString descriptionText(const QJsonValue &description)
{
    return workbench::Description::of(description.toString()).shown();
}

std::function<QString(const QJsonValue &)>
accountText(std::shared_ptr<const workbench::AccountIndex> index)
{
    return [index = std::move(index)](const QJsonValue &number) {
        return index->plainName(
            accounting::AccountNumber(static_cast<std::uint32_t>(number.toInteger())));
    };
}

Report &Report::line(const QString &text)
{
    m_blocks.emplace_back(Line{text, false});
    return *this;
}

QString Report::change() const
{
    const auto first = std::ranges::find_if(
        m_blocks, [](const auto &block) { return std::holds_alternative<Line>(block); });
    if (!m_change.isEmpty() || first == m_blocks.end())
        return m_change;
    const QString &line = std::get<Line>(*first).text;
    return line.endsWith(u'.') ? line.chopped(1) : line;
}

Report &Report::heading(const QString &text)
{
    m_blocks.emplace_back(Line{text, true});
    return *this;
}

Report Report::listing(std::vector<Column> columns, const Rows &rows, const QString &whenEmpty)
{
    Report report(rows);
    report.table(std::move(columns), rows, whenEmpty);
    return report;
}

Report &Report::table(std::vector<Column> columns, const Rows &rows, const QString &whenEmpty)
{
    m_blocks.emplace_back(Table{std::move(columns), rows, whenEmpty});
    return *this;
}

Report &Report::list(std::vector<Column> columns, const QJsonObject &values)
{
    m_blocks.emplace_back(ValueList{std::move(columns), values});
    return *this;
}

Report &Report::raw(const QByteArray &document)
{
    m_raw += document;
    return *this;
}

void Report::writeJson(const Terminal &terminal) const
{
    if (!m_raw.isEmpty() || (m_data.isUndefined() && !m_list)) {
        terminal.write(m_raw);
        return;
    }
    JsonText text(JsonText::Layout::Indented,
                  [&terminal](const QByteArray &block) { terminal.write(block); });
    if (!m_list)
        text.add(m_data);
    else if (m_list->key.isEmpty())
        text.add(m_list->rows);
    else
        text.add(m_data.toObject(), m_list->key, m_list->rows);
    text.finish();
}

void Report::writeText(const Terminal &terminal, navigation::CurrencyDisplayOptions displayAs) const
{
    if (m_isAlwaysJson) {
        writeJson(terminal);
        return;
    }
    const Sink sink = [&terminal](const QByteArray &text) { terminal.writeLater(text); };
    for (const auto &block : m_blocks) {
        if (const auto *line = std::get_if<Line>(&block)) {
            const QString safe = foundation::escaped(line->text);
            sink(((line->isHeading ? terminal.bold(safe) : safe) + u'\n').toUtf8());
        } else if (const auto *list = std::get_if<ValueList>(&block)) {
            app::Table table({}, 2);
            for (const Column &column : list->columns) {
                table.add({column.title});
                Cell value = cellOf(column, list->values, displayAs);
                value.isNumber = false;
                table.add(value);
            }
            table.write(terminal, sink);
        } else if (const auto &[columns, rows, whenEmpty] = std::get<Table>(block);
                   rows.size() > 0) {
            tableOf(columns, rows, displayAs).write(terminal, sink);
        } else {
            sink((foundation::escaped(whenEmpty) + u'\n').toUtf8());
        }
    }
    terminal.write(m_raw);
}

} // namespace kiv::app
