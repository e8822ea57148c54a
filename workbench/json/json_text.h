// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"
#include "workbench/json/rows.h"

namespace kiv::workbench {

/// Takes text, part by part.
using Sink = std::function<void(const QByteArray &)>;

/// JSON as text: indented, or on one line. Control and other unsafe characters are
/// written by their numbers, as in "\\u001b".
class KIV_WORKBENCH_EXPORT JsonText {
public:
    /// How it is laid out.
    enum class Layout { Indented, OneLine };

    /// The text goes to `sink` in blocks.
    JsonText(Layout layout, Sink sink);

    /// Adds a value.
    JsonText &add(const QJsonValue &value);
    /// Adds a list.
    JsonText &add(const Rows &list);
    /// Adds the object with the list as its member `key`.
    JsonText &add(const QJsonObject &object, const QString &key, const Rows &list);

    /// Ends the text with a line feed, and hands over the last block.
    void finish();

private:
    void addText(const QString &text);
    void addNumber(const QJsonValue &number);
    void addObject(const QJsonObject &object);
    /// Calls `addElement` for each of `size` elements, between the brackets.
    template <typename AddElement>
    void addAll(char opening, qsizetype size, char closing, AddElement addElement);
    void breakLine();

    Layout m_layout;
    Sink m_sink;
    QByteArray m_text;
    int m_depth = 0;
};

} // namespace kiv::workbench
