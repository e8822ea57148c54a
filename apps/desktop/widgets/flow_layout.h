// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtWidgets/QLayout>

namespace kiv::desktop {

/// Puts widgets side by side, and into another row where there is no more room, as words
/// stand in a text.
class FlowLayout final : public QLayout {
    Q_OBJECT

public:
    explicit FlowLayout(QWidget *parent = nullptr);
    ~FlowLayout() override;
    Q_DISABLE_COPY_MOVE(FlowLayout)

    void addItem(QLayoutItem *item) override;
    [[nodiscard]] int count() const override;
    [[nodiscard]] QLayoutItem *itemAt(int index) const override;
    QLayoutItem *takeAt(int index) override;
    [[nodiscard]] Qt::Orientations expandingDirections() const override;
    [[nodiscard]] bool hasHeightForWidth() const override;
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSize() const override;
    void setGeometry(const QRect &rect) override;

private:
    /// Places the items if they are to be moved; returns the height that they need.
    int flow(const QRect &rect, bool isToMove) const;

    QList<QLayoutItem *> m_items;
};

} // namespace kiv::desktop
