// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "desktop/painted.h"
#include "widgets/chart_view.h"
#include "widgets/money_edit.h"

#include "foundation/presentation.h"
#include "numira/library.h"

#include <QtWidgets/QtWidgets>

/// What a window tells: its texts, the values of its fields, and its tables.
namespace kiv::test {

/// The lines of a file; none of one that cannot be read.
inline QStringList linesOf(const char *path)
{
    QFile file(QString::fromLatin1(path));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).split(u'\n')
                                          : QStringList();
}

/// The texts of the columns that a view shows; a cell's are those of `cell`.
inline QString rowText(const QAbstractItemView &view, const std::function<QVariant(int)> &cell)
{
    QStringList cells;
    const auto *table = qobject_cast<const QTableView *>(&view);
    for (int column = 0; column < view.model()->columnCount(); ++column) {
        if (!table || !table->isColumnHidden(column))
            cells += cell(column).toString();
    }
    return cells.join(u" | "_qs);
}

/// Its text and what one would not expect: that a number stands left («) or another text right (»),
/// that it is bold (*) or has a colour (°).
inline QString cellText(const QModelIndex &cell)
{
    static const QRegularExpression number(u"^[-+]?[^\\w\\s]?[\\d.,]+( [A-Z]{3}| %)?$"_qs);
    QString text = cell.data().toString();
    const bool isRight = cell.data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight;
    if (text.isEmpty())
        return text;
    if (isRight != number.match(text).hasMatch())
        text += isRight ? u'»' : u'«';
    if (cell.data(Qt::FontRole).value<QFont>().bold())
        text += u'*';
    return cell.data(Qt::ForegroundRole).isValid() ? text + u'°' : text;
}

inline QStringList rowsOf(const QAbstractItemView &view, int rowsMax)
{
    const QAbstractItemModel &model = *view.model();
    QStringList rows;
    if (qobject_cast<const QTableView *>(&view))
        rows += rowText(view, [&](int column) { return model.headerData(column, Qt::Horizontal); });
    const int chosen = view.currentIndex().row();
    for (int row = 0; row < model.rowCount(); ++row) {
        if (row < rowsMax || row == chosen)
            rows += (row == chosen ? u"> "_qs : QString()) +
                    rowText(view, [&](int column) { return cellText(model.index(row, column)); });
    }
    if (model.rowCount() > rowsMax)
        rows += u"… %1"_qs.arg(model.rowCount());
    return rows;
}

/// Whether its text has another colour than that of most.
inline bool hasInk(const QWidget &widget)
{
    const auto inks = [](const QPalette &palette) {
        return std::pair(palette.color(QPalette::Active, QPalette::Text),
                         palette.color(QPalette::Active, QPalette::WindowText));
    };
    return inks(widget.palette()) != inks(QApplication::palette());
}

/// What a field has; nothing for what is none.
inline QString valueOf(const QWidget &widget)
{
    const auto *edit = qobject_cast<const QLineEdit *>(&widget);
    if (edit && edit->echoMode() != QLineEdit::Normal)
        return u"hidden"_qs;
    QString mark = hasInk(widget) ? u"°"_qs : QString();
    const auto *money = qobject_cast<const desktop::MoneyEdit *>(&widget);
    if (money && money->currency() != numira::toCurrency("USD"))
        mark += u" in "_qs + foundation::toQString(money->currency());
    if (edit)
        return (edit->text().isEmpty() ? edit->placeholderText() : edit->text()) + mark;
    if (const auto *box = qobject_cast<const QComboBox *>(&widget))
        return u"%1 (of %2)"_qs.arg(box->currentText()).arg(box->count()) + mark;
    return {};
}

/// What a widget itself tells; nothing for what only holds others.
inline QStringList toldBy(const QWidget &widget, int rowsMax)
{
    const QString value = valueOf(widget);
    QString text = widget.accessibleDescription();
    if (const auto *view = qobject_cast<const QAbstractItemView *>(&widget))
        return rowsOf(*view, rowsMax);
    if (qobject_cast<const desktop::ChartView *>(&widget))
        return Painted::atItsSize(const_cast<QWidget &>(widget)).told();
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        text = (label->text().isEmpty() ? u"empty "_qs + label->objectName() : label->text()) +
               (label->buddy() ? u' ' + valueOf(*label->buddy()) : QString());
    else if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        text = (button->isChecked() ? u"[x "_qs : u"["_qs) + button->text() + u']';
    else if (const auto *group = qobject_cast<const QGroupBox *>(&widget))
        text = group->title();
    else if (const auto *tabs = qobject_cast<const QTabBar *>(&widget))
        text = u"tab "_qs + tabs->tabText(tabs->currentIndex());
    else if (!value.isEmpty() && !widget.accessibleName().isEmpty())
        text = widget.accessibleName() + u": "_qs + value; // without a label
    if (text.trimmed().isEmpty())
        return {};
    // What is refused has a colour; its field is marked where its value is told.
    if (value.isEmpty() && hasInk(widget) != text.startsWith(u"⚠ "))
        text += u'°';
    return {text + (widget.isEnabled() ? QString() : u" (off)"_qs)};
}

/// What is shown, in its order, with so many rows of each table and the one that is chosen. What
/// stands inside a field or a table is told by it.
inline void tell(const QWidget &widget, int rowsMax, QStringList &told)
{
    if (!widget.isVisible())
        return;
    for (const QString &part : toldBy(widget, rowsMax)) {
        // What a field is refused for stands beside it, too.
        if (!told.contains(u"⚠ "_qs + part))
            told += part;
    }
    if (qobject_cast<const QComboBox *>(&widget) || qobject_cast<const QLineEdit *>(&widget) ||
        qobject_cast<const QAbstractItemView *>(&widget) || qobject_cast<const QTabBar *>(&widget))
        return;
    for (const QObject *child : widget.children()) {
        if (const auto *part = qobject_cast<const QWidget *>(child); part && !part->isWindow())
            tell(*part, rowsMax, told);
    }
}

} // namespace kiv::test
