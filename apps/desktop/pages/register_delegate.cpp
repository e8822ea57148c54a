// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/register_delegate.h"

#include "models/register_model.h"
#include "widgets/colours.h"

#include <QtGui/QPainter>

namespace kiv::desktop {
namespace {

int sectionOf(const QModelIndex &index)
{
    return index.data(RegisterModel::SectionRole).toInt();
}

} // namespace

RegisterDelegate::RegisterDelegate(QObject *parent) : QStyledItemDelegate(parent) {}

void RegisterDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                             const QModelIndex &index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    if (index.row() == 0 || sectionOf(index) == sectionOf(index.siblingAtRow(index.row() - 1)))
        return;
    painter->save();
    painter->setPen(QPen(colour(Colour::Heading, option.palette), 2));
    painter->drawLine(option.rect.topLeft(), option.rect.topRight());
    painter->restore();
}

} // namespace kiv::desktop
