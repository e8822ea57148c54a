// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtWidgets/QStyledItemDelegate>

namespace kiv::desktop {

/// Paints the cells of the register as usual, and a line below the last reconciliation and
/// below today.
class RegisterDelegate final : public QStyledItemDelegate {
    Q_OBJECT

public:
    explicit RegisterDelegate(QObject *parent);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
};

} // namespace kiv::desktop
