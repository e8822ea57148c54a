// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtWidgets/QWidget>

// moc reads standard headers only after one of Qt's.
#include "interchange/chart.h"
#include "navigation/currency_display.h"

namespace kiv::desktop {

/// Draws a chart. The arrow keys and the mouse go through its values one by one. Whoever shows it
/// has a table with the same numbers beside it.
class ChartView final : public QWidget {
    Q_OBJECT

public:
    explicit ChartView(QWidget *parent);

    /// Shows a chart. Without labels or series there is only the background.
    void setChart(interchange::Chart chart, navigation::CurrencyDisplayOptions displayAs);
    /// The label whose values are looked at; nothing at first.
    [[nodiscard]] std::optional<std::size_t> point() const noexcept { return m_point; }
    /// Looks at the values of this label.
    void lookAt(std::size_t label);
    /// Looks at them without telling it, because somebody else has.
    void setPoint(std::optional<std::size_t> label);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    /// The values of another label are looked at: "3 March: $12.00".
    void told(const QString &values);
    /// Enter was pressed on a label, or it was double-clicked.
    void opened();

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    [[nodiscard]] bool isEmpty() const;
    [[nodiscard]] interchange::ChartPlane plane() const;
    [[nodiscard]] QString tickText(const numira::Decimal &tick) const;
    /// The values of a label in words.
    [[nodiscard]] QString valuesText(std::size_t label) const;
    void nameIt();

    interchange::Chart m_chart;
    navigation::CurrencyDisplayOptions m_displayAs{};
    std::optional<std::size_t> m_point;
};

} // namespace kiv::desktop
