// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/report.h"

#include "output/table.h"

#include "workbench/entry/kind_words.h"
#include "workbench/entry/money_text.h"

#include "foundation/local_dates.h"
#include "foundation/streams.h"
#include "numira/error.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QObject>

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

} // namespace

QByteArray safeJson(const QByteArray &json)
{
    const QString text = QString::fromUtf8(json);
    QString safe;
    safe.reserve(text.size());
    for (const QChar unit : text) {
        // Qt escapes the characters below U+0020 itself.
        const bool isPlain =
            unit.unicode() < 0x7F || unit.isSurrogate() || foundation::escaped(unit) == unit;
        safe += isPlain ? QString(unit)
                        : QStringLiteral("\\u%1").arg(ushort{unit.unicode()}, 4, 16, QChar(u'0'));
    }
    return safe.toUtf8();
}

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

Report &Report::line(const QString &text)
{
    m_blocks.emplace_back(Line{text, false});
    return *this;
}

Report &Report::heading(const QString &text)
{
    m_blocks.emplace_back(Line{text, true});
    return *this;
}

Report &Report::table(std::vector<Column> columns, const QJsonArray &rows, const QString &whenEmpty)
{
    m_blocks.emplace_back(Table{std::move(columns), rows, whenEmpty});
    return *this;
}

Report &Report::list(std::vector<Column> columns, const QJsonObject &values)
{
    m_blocks.emplace_back(List{std::move(columns), values});
    return *this;
}

Report &Report::raw(const QByteArray &document)
{
    m_raw += document;
    return *this;
}

QByteArray Report::toJson() const
{
    if (!m_raw.isEmpty() || m_data.isUndefined())
        return m_raw;
    const QJsonDocument document =
        m_data.isArray() ? QJsonDocument(m_data.toArray()) : QJsonDocument(m_data.toObject());
    return safeJson(document.toJson(QJsonDocument::Indented));
}

QByteArray Report::toText(const Terminal &terminal,
                          navigation::CurrencyDisplayOptions displayAs) const
{
    QString text;
    for (const auto &block : m_blocks) {
        if (const auto *line = std::get_if<Line>(&block)) {
            const QString safe = foundation::escaped(line->text);
            text += (line->isHeading ? terminal.bold(safe) : safe) + u'\n';
        } else if (const auto *list = std::get_if<List>(&block)) {
            std::vector<std::vector<Cell>> rows;
            rows.reserve(list->columns.size());
            for (const Column &column : list->columns)
                rows.push_back({Cell{column.title}, cellOf(column, list->values, displayAs)});
            for (auto &row : rows)
                row.back().isNumber = false;
            text += tableText({}, rows, terminal);
        } else {
            const auto *table = &std::get<Table>(block);
            if (table->rows.isEmpty()) {
                text += foundation::escaped(table->whenEmpty) + u'\n';
                continue;
            }
            QStringList titles;
            for (const Column &column : table->columns)
                titles += column.title;
            std::vector<std::vector<Cell>> rows;
            for (const QJsonValue row : table->rows) {
                std::vector<Cell> &cells = rows.emplace_back();
                cells.reserve(table->columns.size());
                for (const Column &column : table->columns)
                    cells.push_back(cellOf(column, row.toObject(), displayAs));
            }
            text += tableText(titles, rows, terminal);
        }
    }
    return text.toUtf8() + m_raw;
}

} // namespace kiv::app
