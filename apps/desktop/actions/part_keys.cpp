// SPDX-License-Identifier: GPL-3.0-or-later
#include "actions/part_keys.h"

#include <QtCore/QObject>
#include <QtGui/QKeySequence>

namespace kiv::desktop {
namespace {

/// What the keys do, after the part that takes them.
PaletteEntry told(const QString &text, std::initializer_list<QKeyCombination> keys)
{
    QStringList names;
    for (const QKeyCombination key : keys)
        names += QKeySequence(key).toString(QKeySequence::NativeText);
    return {text, names.join(QStringLiteral(", "))};
}

} // namespace

std::vector<PaletteEntry> partKeys()
{
    using namespace Qt;
    return {
        {QObject::tr("Everywhere: the field or button with the underlined letter"),
         QObject::tr("%1+letter")
             .arg(QKeySequence(ALT).toString(QKeySequence::NativeText).chopped(1))},
        told(QObject::tr("Everywhere: the next field or button, or the one before"),
             {Key_Tab, SHIFT | Key_Tab}),
        told(QObject::tr("In a form: do what its first button does"), {Key_Enter}),
        told(QObject::tr("In a form: give up"), {Key_Escape}),
        told(QObject::tr("In a field with a day: a day on"), {Key_Plus, Key_Up}),
        told(QObject::tr("In a field with a day: a day back"), {Key_Minus, Key_Down}),
        told(QObject::tr("In a field with a day: today"), {Key_T}),
        told(QObject::tr("In a field with names: take the marked one, or the only one"), {Key_Tab}),
        told(QObject::tr("In a table: open or change the row"), {Key_Enter}),
        told(QObject::tr("In a table: change the row"), {Key_F2}),
        told(QObject::tr("In a table: remove the row"), {Key_Delete}),
        told(QObject::tr("In “Due” and in the register: choose several rows"),
             {SHIFT | Key_Up, SHIFT | Key_Down}),
        told(QObject::tr("In the register: all that can be done with the row"), {SHIFT | Key_F10}),
        told(QObject::tr("In the search of the register: search now"), {Key_Enter}),
        told(QObject::tr("In the search of the register: on to the rows"), {Key_Down}),
        told(QObject::tr("In the search of the register: show all rows again"), {Key_Escape}),
        told(QObject::tr("In the entry row: enter"), {Key_Enter}),
        told(QObject::tr("In the entry row: give up"), {Key_Escape}),
        told(QObject::tr("In a survey: tick the row, and go down"), {Key_Space}),
        told(QObject::tr("In an import: take the row, or leave it out"), {Key_Space}),
        told(QObject::tr("In the payments of the outlook: leave the item out"), {Key_Delete}),
        told(QObject::tr("In a chart: the next point, or the one before"), {Key_Right, Key_Left}),
        told(QObject::tr("In a chart: the first point, the last point"), {Key_Home, Key_End}),
        told(QObject::tr("In a chart of a report: the entries behind the point"), {Key_Enter}),
        told(QObject::tr("In the explanation of a number: open the transaction"), {Key_Enter}),
        told(QObject::tr("In the explanation of a number: close it"), {Key_Escape}),
    };
}

} // namespace kiv::desktop
