// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "desktop/small_household.h"
#include "models/table_model.h"
#include "widgets/table.h"

#include "foundation/presentation.h"

#include <QtTest/QAbstractItemModelTester>
#include <QtWidgets/QtWidgets>

/// How tests use a page: its keys, and what it shows.
namespace kiv::test {

/// Begins the household and shows a page.
inline void show(SmallHousehold &home, const char *page)
{
    home.begin();
    home.show();
    home.trigger(QByteArray("page ") + page);
    for (auto *model : home.window().findChildren<desktop::TableModel *>())
        new QAbstractItemModelTester(model, model);
}
inline desktop::Table &table(HouseholdWindow &home, const char *name = "")
{
    return *home.window().page()->findChild<desktop::Table *>(QLatin1String(name));
}
/// The texts of a column.
inline QStringList texts(HouseholdWindow &home, int column, const char *name = "")
{
    const QAbstractItemModel &model = *table(home, name).model();
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row)
        texts += model.index(row, column).data().toString();
    return texts;
}
/// A field or button of the page.
template <typename Widget>
Widget &part(HouseholdWindow &home, const char *name)
{
    return *home.window().page()->findChild<Widget *>(QLatin1String(name));
}
/// What is refused on the page; empty if nothing is.
inline QString message(HouseholdWindow &home)
{
    for (const auto *message : home.window().page()->findChildren<desktop::FieldMessage *>()) {
        if (!message->text().isEmpty())
            return message->text();
    }
    return {};
}
inline QString dollars(const char *text)
{
    return foundation::presentationText(usd(text));
}
inline void press(HouseholdWindow &home, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    QTest::keyClick(home.keyTarget(), key, modifiers);
    // A button that was pressed by its letter is released a moment later.
    QTRY_VERIFY(std::ranges::none_of(home.window().findChildren<QAbstractButton *>(),
                                     &QAbstractButton::isDown));
}
/// Types the text in place of what the field has, or chooses it in its box.
inline void enter(HouseholdWindow &home, const QString &text)
{
    auto *box = qobject_cast<QComboBox *>(QApplication::focusWidget());
    if (auto *edit = qobject_cast<QLineEdit *>(QApplication::focusWidget())) {
        edit->clear();
    } else if (box && box->isEditable()) {
        box->clearEditText();
    } else if (box) {
        press(home, Qt::Key_Home);
        for (int left = box->count(); left > 0 && !box->currentText().startsWith(text); --left)
            press(home, Qt::Key_Down);
        return;
    }
    home.type(text);
}
/// Presses keys in turn: "Alt+N; Alt+A=20; Return" with 20 for what the field of Alt+A has.
inline void keys(HouseholdWindow &home, const QString &steps)
{
    for (const QString &step : steps.split(u"; "_qs)) {
        const QKeyCombination combination = QKeySequence(step.section(u'=', 0, 0))[0];
        press(home, combination.key(), combination.keyboardModifiers());
        if (step.contains(u'='))
            enter(home, step.section(u'=', 1));
    }
}

} // namespace kiv::test
