// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "desktop/household_window.h"

#include <QtWidgets/QtWidgets>

/// A window that a test uses by keys alone.
class ByKeys {
protected:
    /// What gets the keys. A list of names that is open takes all of them; when it has
    /// closed, a desktop makes the window active again, and here nobody else does.
    QWidget *target()
    {
        if (QWidget *popup = QApplication::activePopupWidget())
            return popup;
        QApplication::setActiveWindow(&m_desk.window());
        return QApplication::focusWidget();
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(target(), key, modifiers);
        QCoreApplication::processEvents();
    }
    void type(const QString &text)
    {
        for (const QChar letter : text) {
            QTest::keyClick(target(), letter.toLatin1());
            QCoreApplication::processEvents();
        }
    }
    /// The button or field with this letter. A button goes up a moment later.
    void letter(Qt::Key key)
    {
        press(key, Qt::AltModifier);
        QTRY_VERIFY(std::ranges::none_of(
            m_desk.window().findChildren<QAbstractButton *>(),
            [](const QAbstractButton *button) { return button->isVisible() && button->isDown(); }));
    }
    void fill(const std::vector<std::pair<Qt::Key, QString>> &fields)
    {
        for (const auto &[key, text] : fields) {
            letter(key);
            const auto *box = qobject_cast<QComboBox *>(QApplication::focusWidget());
            if (box && !box->isEditable()) {
                press(Qt::Key_Home);
                for (int left = box->count(); left > 0 && !box->currentText().startsWith(text);
                     --left)
                    press(Qt::Key_Down);
                QVERIFY2(box->currentText().startsWith(text), qPrintable(text));
                continue;
            }
            press(Qt::Key_A, Qt::ControlModifier);
            press(Qt::Key_Delete);
            type(text);
        }
    }
    /// A page by its number.
    void open(const QString &id)
    {
        const auto &pages = m_desk.window().pages();
        const auto found = std::ranges::find(pages, id, &kiv::desktop::Page::id);
        press(static_cast<Qt::Key>(Qt::Key_1 + (found - pages.begin())), Qt::ControlModifier);
        QCOMPARE(m_desk.window().page()->id(), id);
    }
    /// All that is in the books, as the command tells it.
    static QByteArray figures(const QString &file)
    {
        KivCommand kiv(file);
        QByteArray all;
        for (const char *list : {"accounts", "transactions", "banks", "due", "bill list",
                                 "debt list", "goal list", "wage list"})
            all += kiv.run(QString::fromLatin1(list).split(u' ') +
                           QStringList{QStringLiteral("--json")}) +
                   '\n';
        return all;
    }

    HouseholdWindow m_desk;
};
