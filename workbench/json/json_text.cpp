// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/json/json_text.h"

#include "foundation/streams.h"

#include <QtCore/QLocale>

namespace kiv::workbench {
namespace {

constexpr qsizetype blockSize = qsizetype{64} << 10;

/// The letter of a short escape such as \n, or 0.
char shortEscape(char16_t unit)
{
    switch (unit) {
    case u'"':
    case u'\\':
        return static_cast<char>(unit);
    case u'\b':
        return 'b';
    case u'\f':
        return 'f';
    case u'\n':
        return 'n';
    case u'\r':
        return 'r';
    case u'\t':
        return 't';
    default:
        return 0;
    }
}

} // namespace

JsonText::JsonText(Layout layout, Sink sink) : m_layout(layout), m_sink(std::move(sink)) {}

JsonText &JsonText::add(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        m_text += value.toBool() ? "true" : "false";
        break;
    case QJsonValue::Double:
        addNumber(value);
        break;
    case QJsonValue::String:
        addText(value.toString());
        break;
    case QJsonValue::Array:
        add(Rows(value.toArray()));
        break;
    case QJsonValue::Object:
        addObject(value.toObject());
        break;
    default:
        m_text += "null";
    }
    return *this;
}

JsonText &JsonText::add(const Rows &list)
{
    addAll('[', list.size(), ']', [&](qsizetype at) {
        add(list[at]);
        if (m_text.size() >= blockSize) {
            m_sink(m_text);
            m_text.resize(0); // keeps the memory
        }
    });
    return *this;
}

JsonText &JsonText::add(const QJsonObject &object, const QString &key, const Rows &list)
{
    QJsonObject whole = object;
    whole.insert(key, QJsonValue::Null); // in its place among the keys
    const QStringList keys = whole.keys();
    addAll('{', keys.size(), '}', [&](qsizetype at) {
        addText(keys[at]);
        m_text += ": ";
        if (keys[at] == key)
            add(list);
        else
            add(whole.value(keys[at]));
    });
    return *this;
}

void JsonText::finish()
{
    m_text += '\n';
    m_sink(m_text);
}

void JsonText::addObject(const QJsonObject &object)
{
    auto member = object.begin();
    addAll('{', object.size(), '}', [&](qsizetype) {
        addText(member.key());
        m_text += m_layout == Layout::OneLine ? ":" : ": ";
        add(*member);
        ++member;
    });
}

void JsonText::addText(const QString &text)
{
    m_text += '"';
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar unit = text[at];
        if (const char letter = shortEscape(unit.unicode())) {
            m_text += '\\';
            m_text += letter;
        } else if (unit.unicode() >= 0x20 && unit.unicode() < 0x7F) {
            m_text += unit.toLatin1();
        } else if (unit.isHighSurrogate() && at + 1 < text.size() &&
                   text[at + 1].isLowSurrogate()) {
            m_text += text.mid(at++, 2).toUtf8();
        } else if (foundation::escaped(unit) != unit) {
            m_text +=
                QStringLiteral("\\u%1").arg(ushort{unit.unicode()}, 4, 16, QChar(u'0')).toUtf8();
        } else {
            m_text += QString(unit).toUtf8();
        }
    }
    m_text += '"';
}

void JsonText::addNumber(const QJsonValue &number)
{
    const qint64 whole = number.toInteger();
    const double value = number.toDouble();
    m_text += static_cast<double>(whole) == value
                  ? QByteArray::number(whole)
                  : QByteArray::number(value, 'g', QLocale::FloatingPointShortest);
}

template <typename AddElement>
void JsonText::addAll(char opening, qsizetype size, char closing, AddElement addElement)
{
    m_text += opening;
    ++m_depth;
    for (qsizetype at = 0; at < size; ++at) {
        if (at > 0)
            m_text += ',';
        breakLine();
        addElement(at);
    }
    --m_depth;
    breakLine();
    m_text += closing;
}

void JsonText::breakLine()
{
    if (m_layout == Layout::OneLine)
        return;
    m_text += '\n';
    m_text.append(qsizetype{4} * m_depth, ' ');
}

} // namespace kiv::workbench
