// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtWidgets/QtWidgets>

namespace kiv::test {

/// How the parts of a window are set: for each kind of part, how many have a property.
class Ways {
public:
    /// Counts the widget and all in it.
    void count(QWidget &root)
    {
        add(root);
        for (QWidget *part : root.findChildren<QWidget *>())
            add(*part);
        for (const QAction *action : root.findChildren<QAction *>())
            addProperties(*action, action->metaObject(), m_kinds[u"QAction"_qs]);
        for (const QCompleter *completer : root.findChildren<QCompleter *>())
            addProperties(*completer, completer->metaObject(), m_kinds[u"QCompleter"_qs]);
        for (const QLayout *layout : root.findChildren<QLayout *>())
            add(*layout);
    }

    /// A line of `lengthMax` or several for each kind.
    [[nodiscard]] QByteArray text(qsizetype lengthMax) const
    {
        QString all;
        for (const auto &[kind, ways] : m_kinds) {
            QString line = kind + u':';
            for (const auto &[way, count] : ways) {
                if (count == 0)
                    continue;
                const QString next = u" %1 %2,"_qs.arg(way).arg(count);
                if (line.size() + next.size() > lengthMax) {
                    all += line + u'\n';
                    line = u" "_qs;
                }
                line += next;
            }
            line.back() = u'\n';
            all += line;
        }
        return all.toUtf8();
    }

private:
    void add(const QWidget &widget)
    {
        static const QRegularExpression inner(
            u"^Q(ComboBox.+|ScrollBar|SizeGrip|LineEditIconButton|TableCornerButton)$"_qs);
        const QMetaObject *kind = widget.metaObject();
        while (*kind->className() != 'Q')
            kind = kind->superClass();
        const QString name = QString::fromLatin1(kind->className());
        if (inner.match(name).hasMatch())
            return;
        auto &ways = m_kinds[name];
        addProperties(widget, kind, ways);
        ways[u"bold"_qs] += widget.font().bold();
        const int usual = QFontInfo(QApplication::font()).pixelSize();
        const int size = QFontInfo(widget.font()).pixelSize();
        ways[u"text %1 %"_qs.arg(100 * size / usual)] += size != usual;
        ways[u"least"_qs] += widget.minimumWidth() > 0 || widget.minimumHeight() > 0;
        ways[u"most"_qs] +=
            std::min(widget.maximumWidth(), widget.maximumHeight()) < QWIDGETSIZE_MAX;
        const QSizePolicy policy = widget.sizePolicy();
        ++ways[u"%1×%2"_qs.arg(policy.horizontalPolicy()).arg(policy.verticalPolicy())];
        if (const auto *header = qobject_cast<const QHeaderView *>(&widget)) {
            ways[u"shown"_qs] += !header->isHidden();
            for (int section = 0; section < header->count(); ++section)
                ++ways[u"section %1"_qs.arg(header->sectionResizeMode(section))];
        }
    }
    void addProperties(const QObject &object, const QMetaObject *kind, std::map<QString, int> &ways)
    {
        // What a change of the household changes is no way.
        static const QSet<QByteArray> ignored{"enabled", "visible",       "checked", "down",
                                              "modal",   "mouseTracking", "default"};
        ++ways[u"all"_qs];
        for (int at = 0; at < kind->propertyCount(); ++at) {
            const QMetaProperty property = kind->property(at);
            const QVariant value = property.read(&object);
            if (!property.isWritable() || ignored.contains(property.name()) ||
                value == m_plain.property(property.name()))
                continue;
            const QString name = QString::fromLatin1(property.name());
            if (property.isEnumType() && (value.toInt() != 0 || name == u"textFormat"))
                ++ways[name + u' ' + namesOf(property, value.toInt())];
            else if (value.userType() == QMetaType::Bool && value.toBool())
                ++ways[name];
            else if (name == u"minimumContentsLength")
                ++ways[u"%1 %2"_qs.arg(name).arg(value.toInt())];
            else if (value.userType() == QMetaType::QString && name != u"text")
                ways[name] += !value.toString().isEmpty();
        }
    }
    static QString namesOf(const QMetaProperty &property, int value)
    {
        const QMetaEnum names = property.enumerator();
        return QString::fromLatin1(names.isFlag() ? names.valueToKeys(value)
                                                  : QByteArray(names.valueToKey(value)));
    }
    void add(const QLayout &layout)
    {
        auto &ways = m_kinds[QString::fromLatin1(layout.metaObject()->className())];
        ++ways[u"all"_qs];
        const QMargins edge = layout.contentsMargins();
        ++ways[u"edges %1+%2+%3+%4"_qs.arg(edge.left())
                   .arg(edge.top())
                   .arg(edge.right())
                   .arg(edge.bottom())];
        ++ways[u"gaps %1"_qs.arg(layout.spacing())];
        for (int at = 0; at < layout.count(); ++at) {
            const QSpacerItem *space = layout.itemAt(at)->spacerItem();
            const QSize size = space ? space->sizeHint() : QSize();
            ++ways[space ? u"space %1"_qs.arg(size.width() + size.height()) : u"held"_qs];
            if (const Qt::Alignment side = layout.itemAt(at)->alignment())
                ++ways[u"side %1"_qs.arg(side.toInt())];
            if (const auto *box = qobject_cast<const QBoxLayout *>(&layout))
                ways[u"stretch"_qs] += box->stretch(at);
        }
        if (const auto *grid = qobject_cast<const QGridLayout *>(&layout))
            addGrid(*grid, ways);
    }
    /// Sums in which no part can change its place, or a row its stretch, without being seen.
    static void addGrid(const QGridLayout &grid, std::map<QString, int> &ways)
    {
        int row = 0, column = 0, rows = 0, columns = 0;
        for (int at = 0; at < grid.count(); ++at) {
            grid.getItemPosition(at, &row, &column, &rows, &columns);
            ways[u"places"_qs] += 8 * row + column;
            ways[u"spans"_qs] += rows * columns;
        }
        for (int at = 0; at < grid.rowCount(); ++at)
            ways[u"row stretch"_qs] += at * grid.rowStretch(at);
        for (int at = 0; at < grid.columnCount(); ++at)
            ways[u"column stretch"_qs] += at * grid.columnStretch(at);
    }

    const QWidget m_plain; ///< without what is set
    std::map<QString, std::map<QString, int>> m_kinds;
};

} // namespace kiv::test
