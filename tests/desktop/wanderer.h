// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "main_window.h"
#include "widgets/chart_view.h"
#include "widgets/day_edit.h"
#include "widgets/money_edit.h"

#include <QtWidgets/QtWidgets>

#include <random>

namespace kiv::test {

/// Chooses steps as somebody does who tries out what a page has, the same for the same seed; see
/// StepRunner for what steps can be.
class Wanderer {
public:
    /// `place` is the seed, and where the way leads back to now and then.
    explicit Wanderer(const QString &place) : m_place(place), m_chance(qChecksum(place.toUtf8())) {}

    [[nodiscard]] QString step(desktop::MainWindow &window, const QWidget &page)
    {
        static const QStringList keys =
            u"Return Return Escape Space Delete F2 F6 F9 Up Down Down Home End Tab Shift+Tab Left "
            "Right + - 7 menu"_qs.split(u' ');
        static const QStringList sizes{u"size 1024 600"_qs, u"size 1280 720"_qs,
                                       u"size 1040 900"_qs};
        QStringList fields, buttons, tables, pressed, actions, files, places, back;
        for (QWidget *part : page.findChildren<QWidget *>()) {
            if (!part->isVisible() || !part->isEnabled())
                continue;
            if (const auto *label = qobject_cast<const QLabel *>(part); label && label->buddy()) {
                // One after the other: a compiler may begin a sum at either side.
                const QString end = next(3) == 0 ? u"; Return"_qs : QString();
                fields += keysOf(label->text(), u'=' + valueFor(*label->buddy()) + end);
            } else if (qobject_cast<const QAbstractButton *>(part) &&
                       part->focusPolicy() != Qt::NoFocus && !nameOf(*part).contains(u"; "))
                buttons += answers({}) + u"at %1; Space"_qs.arg(nameOf(*part));
            else if (part->focusPolicy() != Qt::NoFocus && !part->accessibleName().isEmpty() &&
                     (qobject_cast<const QAbstractItemView *>(part) ||
                      qobject_cast<const desktop::ChartView *>(part))) {
                tables += u"at "_qs + part->accessibleName();
                const QString how = next(3) == 0 ? u"twice"_qs : u"press"_qs;
                pressed += u"%1 %2 %3 %4"_qs.arg(how, part->accessibleName())
                               .arg(next(100))
                               .arg(next(100) * next(100) / 100); // most rows are at the top
            }
        }
        using Group = desktop::ActionCollection::Group;
        for (const Group group :
             {Group::Edit, Group::Transaction, Group::Go, Group::View, Group::File}) {
            for (const QAction *action : window.desk().actions().actions(group)) {
                if (action->isEnabled() && !action->objectName().startsWith(u"page") &&
                    action->objectName() != u"quit")
                    (group == Group::File ? files : actions) +=
                        answers(action->objectName()) + u"do "_qs + action->objectName();
            }
        }
        if (const auto *one = qobject_cast<const desktop::Page *>(&page)) {
            back += u"go "_qs + m_place;
            for (const QString &part : one->parts())
                places += u"go "_qs + desktop::Place{one->id(), part}.text();
        }
        QList<const QStringList *> kinds{&fields,  &fields, &fields, &fields, &buttons, &buttons,
                                         &keys,    &keys,   &keys,   &keys,   &tables,  &pressed,
                                         &actions, &places, &back,   &sizes,  &files};
        kinds.removeIf([](const QStringList *kind) { return kind->isEmpty(); });
        return any(*kinds.at(next(kinds.size())));
    }

private:
    [[nodiscard]] qsizetype next(qsizetype count) { return m_chance() % count; }
    [[nodiscard]] QString any(const QStringList &texts) { return texts.at(next(texts.size())); }
    /// To what may be asked for: a budget that is there, or a file that is not.
    [[nodiscard]] QString answers(const QString &action)
    {
        const QString file = u"out%1.txt"_qs.arg(next(100));
        return u"choose %1; file %2; "_qs.arg(next(3)).arg(action == u"open" ? u"home.budget"_qs
                                                                             : file);
    }
    /// What may be typed into a field, right or wrong, or is among what a box has.
    [[nodiscard]] QString valueFor(const QWidget &field)
    {
        static const QStringList amounts = u"1|250|10+5|-3|12.345|"_qs.split(u'|');
        static const QStringList days = u"2026-02-28|2026-03-05|+7|today|2026-02-30"_qs.split(u'|');
        static const QStringList names = u"New|Car|x y|fun, Car|Rent|Checking|7|"_qs.split(u'|');
        const auto *box = qobject_cast<const QComboBox *>(&field);
        if (box && box->count() > 0 && (!box->isEditable() || next(2) == 0))
            return box->itemText(static_cast<int>(next(box->count())));
        return any(qobject_cast<const desktop::MoneyEdit *>(&field) ? amounts
                   : qobject_cast<const desktop::DayEdit *>(&field) ? days
                                                                    : names);
    }
    [[nodiscard]] static QString nameOf(const QWidget &button)
    {
        const QString name = button.accessibleName();
        return name.isEmpty() ? static_cast<const QAbstractButton &>(button).text() : name;
    }
    /// A step with the letter of the text, if it has one.
    [[nodiscard]] static QStringList keysOf(const QString &text, const QString &more = {})
    {
        const QString keys = QKeySequence::mnemonic(text).toString();
        return keys.isEmpty() ? QStringList() : QStringList(keys + more);
    }

    const QString m_place;
    std::mt19937 m_chance;
};

} // namespace kiv::test
