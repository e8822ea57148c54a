// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/accessibility.h"

#include "widgets/colours.h"
#include "widgets/table.h"

#include <QtGui/QAccessible>
#include <QtGui/QKeySequence>
#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>

namespace kiv::test {
namespace {

QString described(const QWidget &widget)
{
    QString text =
        QString::fromLatin1(widget.metaObject()->className()) + u' ' + widget.objectName();
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        text += u' ' + label->text();
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        text += u' ' + button->text();
    return text;
}

/// Whether Tab stops here.
bool isStop(const QWidget &widget)
{
    return widget.isVisible() && widget.isEnabled() &&
           (widget.focusPolicy() & Qt::TabFocus) == Qt::TabFocus && !widget.focusProxy();
}

QList<QWidget *> within(QWidget &root)
{
    QList<QWidget *> widgets = root.findChildren<QWidget *>();
    widgets.prepend(&root);
    return widgets;
}

void judgeCells(const QAbstractItemView &view, QStringList &faults)
{
    const QAbstractItemModel *model = view.model();
    if (!model)
        return;
    const auto says = [](const QVariant &text, const QVariant &spoken) {
        return !spoken.toString().trimmed().isEmpty() || !text.toString().trimmed().isEmpty();
    };
    const auto *table = qobject_cast<const QTableView *>(&view);
    const auto *tree = qobject_cast<const QTreeView *>(&view);
    const auto isHidden = [&](int column) {
        return (table && table->isColumnHidden(column)) || (tree && tree->isColumnHidden(column));
    };
    for (int column = 0; column < model->columnCount(); ++column) {
        if (isHidden(column))
            continue;
        const bool hasHeader =
            (table && !table->horizontalHeader()->isHidden()) || (tree && !tree->isHeaderHidden());
        if (hasHeader && !says(model->headerData(column, Qt::Horizontal),
                               model->headerData(column, Qt::Horizontal, Qt::AccessibleTextRole)))
            faults += described(view) + QStringLiteral(": header %1 is empty").arg(column);
        for (int row = 0; row < std::min(model->rowCount(), 30); ++row) {
            const QModelIndex cell = model->index(row, column);
            if (!says(cell.data(Qt::DisplayRole), cell.data(Qt::AccessibleTextRole)))
                faults +=
                    described(view) + QStringLiteral(": cell %1,%2 is empty").arg(row).arg(column);
        }
    }
}

/// Rows are neither low nor high, and columns as wide as what they have, within a limit.
void judgeSizes(const QTableView &table, QStringList &faults)
{
    const int line = table.fontMetrics().height();
    for (int row = 0; row < std::min(table.model()->rowCount(), 30); ++row) {
        if (table.rowHeight(row) < line + 4 || table.rowHeight(row) > 2 * line)
            faults += described(table) + QStringLiteral(": row %1 is low or high").arg(row);
        for (int column = 0; column < table.model()->columnCount(); ++column) {
            const QModelIndex cell = table.model()->index(row, column);
            const QVariant font = cell.data(Qt::FontRole);
            const QFontMetrics metrics(font.isValid() ? font.value<QFont>() : table.font());
            int width = 0;
            for (int part = 0; part < table.columnSpan(row, column); ++part)
                width += table.columnWidth(column + part);
            if (qobject_cast<const desktop::Table *>(&table) &&
                width < table.horizontalHeader()->maximumSectionSize() &&
                width < metrics.horizontalAdvance(cell.data().toString()) + line / 2)
                faults += described(table) + QStringLiteral(": cut: ") + cell.data().toString();
        }
    }
}

/// Whether its text would be cut when it is narrower than its hint.
bool isRigid(const QWidget &widget)
{
    const auto *label = qobject_cast<const QLabel *>(&widget);
    if (label)
        return !label->wordWrap() && label->sizePolicy().horizontalPolicy() != QSizePolicy::Ignored;
    return qobject_cast<const QAbstractButton *>(&widget) ||
           qobject_cast<const QLineEdit *>(&widget) || qobject_cast<const QComboBox *>(&widget);
}

/// Whether a layout or one in it has the widget.
bool holds(const QLayout &layout, const QWidget &widget)
{
    if (layout.indexOf(&widget) >= 0)
        return true;
    for (int at = 0; at < layout.count(); ++at) {
        if (const QLayout *inner = layout.itemAt(at)->layout(); inner && holds(*inner, widget))
            return true;
    }
    return false;
}

/// The part of a page that is seen without scrolling, or the window.
const QWidget &viewportOf(const QWidget &widget)
{
    const QWidget *at = &widget;
    while (!at->isWindow() && !qobject_cast<const QScrollArea *>(at->parentWidget()))
        at = at->parentWidget();
    return *at;
}

} // namespace

QStringList nameless(QWidget &root)
{
    QStringList faults;
    for (QWidget *widget : within(root)) {
        if (isStop(*widget)) {
            QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(widget);
            const QString name = spoken ? spoken->text(QAccessible::Name) : QString();
            if (name.trimmed().isEmpty() ||
                name == QString::fromLatin1(widget->metaObject()->className()))
                faults += described(*widget) + QStringLiteral(": no name");
        }
        if (const auto *view = qobject_cast<QAbstractItemView *>(widget); view && view->isVisible())
            judgeCells(*view, faults);
    }
    return faults;
}

QStringList mnemonicsTwice(QWidget &root)
{
    std::map<QString, QStringList> claims;
    for (const QWidget *widget : within(root)) {
        if (!widget->isVisible())
            continue;
        QString text;
        if (const auto *label = qobject_cast<const QLabel *>(widget); label && label->buddy())
            text = label->text();
        else if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
            text = button->text();
        else if (const auto *group = qobject_cast<const QGroupBox *>(widget))
            text = group->title();
        const QKeySequence letter = QKeySequence::mnemonic(text);
        if (!letter.isEmpty())
            claims[letter.toString()] += text;
        if (const auto *bar = qobject_cast<const QMenuBar *>(widget)) {
            for (const QAction *menu : bar->actions())
                claims[QKeySequence::mnemonic(menu->text()).toString()] += menu->text();
        }
    }
    QStringList faults;
    for (const auto &[letter, texts] : claims) {
        if (texts.size() > 1)
            faults += letter + QStringLiteral(": ") + texts.join(QStringLiteral(" and "));
    }
    return faults;
}

QStringList unreached(QWidget &root, QWidget &first)
{
    QSet<QWidget *> wanted;
    for (QWidget *widget : within(root)) {
        if (isStop(*widget))
            wanted.insert(widget);
    }
    QStringList faults;
    first.setFocus(Qt::TabFocusReason);
    QSet<QWidget *> reached;
    for (QWidget *at = QApplication::focusWidget(); at && !wanted.isEmpty();
         at = QApplication::focusWidget()) {
        if (reached.contains(at))
            break;
        reached.insert(at);
        wanted.remove(at);
        QTest::keyClick(at, Qt::Key_Tab, Qt::ControlModifier); // tables keep a plain Tab
        if (QApplication::focusWidget() == at)
            QTest::keyClick(at, Qt::Key_Tab);
    }
    for (const QWidget *widget : wanted)
        faults += described(*widget) + QStringLiteral(": Tab does not reach it");
    return faults;
}

int tabsUp(const QWidget &root, const QWidget &first)
{
    const auto top = [&root](const QWidget &at) { return at.mapTo(&root, QPoint(0, 0)).y(); };
    int ups = 0;
    const QWidget *last = &first;
    for (QWidget *at = first.nextInFocusChain(); at != &first; at = at->nextInFocusChain()) {
        if (!root.isAncestorOf(at) || !isStop(*at))
            continue;
        ups += top(*at) + at->height() <= top(*last);
        last = at;
    }
    return ups;
}

QStringList pale(const QPalette &palette, double wanted)
{
    using desktop::Colour;
    QStringList faults;
    const auto judge = [&](const QString &what, const QColor &front, const QColor &back) {
        if (desktop::contrast(front, back) < wanted)
            faults += QStringLiteral("%1: %2 on %3").arg(what, front.name(), back.name());
    };
    for (const auto &[front, back] : {std::pair(QPalette::WindowText, QPalette::Window),
                                      {QPalette::Text, QPalette::Base},
                                      {QPalette::Text, QPalette::AlternateBase},
                                      {QPalette::ButtonText, QPalette::Button},
                                      {QPalette::HighlightedText, QPalette::Highlight},
                                      {QPalette::PlaceholderText, QPalette::Base},
                                      {QPalette::Link, QPalette::Window},
                                      {QPalette::ToolTipText, QPalette::ToolTipBase}}) {
        judge(QStringLiteral("palette %1").arg(front), palette.color(front), palette.color(back));
        if (desktop::contrast(palette.color(QPalette::Disabled, front), palette.color(back)) < 3)
            faults += QStringLiteral("palette %1 is too faint when it is off").arg(front);
    }
    for (const Colour meaning : {Colour::Faint, Colour::Negative, Colour::Good, Colour::Warning,
                                 Colour::Wrong, Colour::Heading}) {
        for (const QPalette::ColorRole back :
             {QPalette::Base, QPalette::Window, QPalette::AlternateBase})
            judge(QStringLiteral("colour %1").arg(static_cast<int>(meaning)),
                  desktop::colour(meaning, palette), palette.color(back));
    }
    judge(QStringLiteral("notice"), palette.color(QPalette::WindowText),
          desktop::colour(Colour::NoticeBack, palette));
    return faults;
}

QStringList misfits(QWidget &root)
{
    QStringList faults;
    for (const QWidget *widget : root.findChildren<QWidget *>()) {
        if (const auto *table = qobject_cast<const QTableView *>(widget);
            table && table->isVisible() && table->model())
            judgeSizes(*table, faults);
        // A field cuts its own button to its size.
        if (!widget->isVisible() || qobject_cast<const QLineEdit *>(widget->parentWidget()))
            continue;
        const QSize needed = widget->minimumSizeHint();
        if (isRigid(*widget) &&
            (widget->width() < needed.width() || widget->height() < needed.height()))
            faults += described(*widget) + QStringLiteral(": %1x%2 of %3x%4")
                                               .arg(widget->width())
                                               .arg(widget->height())
                                               .arg(needed.width())
                                               .arg(needed.height());
        if (qobject_cast<const QAbstractButton *>(widget)) {
            const QWidget &seen = viewportOf(*widget);
            const int left = widget->mapTo(&seen, QPoint(0, 0)).x();
            if (left < 0 || left + widget->width() > seen.width())
                faults += described(*widget) + QStringLiteral(": beyond the side");
        }
        if (const auto *label = qobject_cast<const QLabel *>(widget); label && !label->buddy()) {
            const bool isCut = label->text().endsWith(u'.') && !label->wordWrap() &&
                               !qobject_cast<const QStatusBar *>(label->parentWidget());
            const int high = std::max(label->heightForWidth(label->width()), needed.height());
            if (label->textFormat() != Qt::PlainText || isCut || label->height() > 3 * high)
                faults += described(*widget) + QStringLiteral(": markup, cut or stretched");
        }
        if (const auto *list = qobject_cast<const QListWidget *>(widget);
            list && list->isVisible() && list->horizontalScrollBar()->maximum() > 0)
            faults += described(*widget) + QStringLiteral(": its lines are cut off");
        if (widget->layout() && widget->layout()->isEmpty() && !widget->size().isEmpty())
            faults += described(*widget) + QStringLiteral(": room for nothing");
        // Parts of a table or a combo box overlap rightly.
        const QWidget *parent = widget->parentWidget();
        if (!parent->layout() || qobject_cast<const QMainWindow *>(parent) || widget->isWindow())
            continue;
        if (!holds(*parent->layout(), *widget))
            faults += described(*widget) + QStringLiteral(": no layout has it");
        for (const QObject *child : parent->children()) {
            const auto *other = qobject_cast<const QWidget *>(child);
            if (other && other > widget && other->isVisible() && !other->isWindow() &&
                other->geometry().intersects(widget->geometry()))
                faults += described(*widget) + QStringLiteral(" lies over ") + described(*other);
        }
    }
    return faults;
}

} // namespace kiv::test
