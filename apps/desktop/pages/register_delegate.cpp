// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/register_delegate.h"

#include "models/register_model.h"
#include "widgets/colours.h"

#include <QtGui/QPainter>

namespace kiv::desktop {

RegisterDelegate::RegisterDelegate(QObject *parent) : QStyledItemDelegate(parent) {}

void RegisterDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (index.data(RegisterModel::NegativeRole).toBool())
        option->palette.setColor(QPalette::Text, colour(Colour::Negative, option->palette));
    else if (index.data(RegisterModel::AheadRole).toBool())
        option->palette.setColor(QPalette::Text, colour(Colour::Faint, option->palette));
}

void RegisterDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                             const QModelIndex &index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    const auto isAhead = [](const QModelIndex &row) {
        return row.data(RegisterModel::AheadRole).toBool();
    };
    if (!isAhead(index) || (index.row() > 0 && isAhead(index.siblingAtRow(index.row() - 1))))
        return;
    painter->save();
    painter->setPen(QPen(colour(Colour::Heading, option.palette), 2));
    painter->drawLine(option.rect.topLeft(), option.rect.topRight());
    painter->restore();
}

} // namespace kiv::desktop
