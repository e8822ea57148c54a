// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtWidgets/QtWidgets>

namespace kiv::test {

/// What a widget paints: how many things of a kind with a pen and a brush, and the texts.
class Painted final : public QPaintDevice, private QPaintEngine {
public:
    explicit Painted(QWidget &widget) : QPaintEngine(AllFeatures), m_widget(widget)
    {
        widget.render(this);
    }
    [[nodiscard]] QStringList told() const
    {
        QStringList all;
        for (const auto &[thing, count] : m_things)
            all += u"%1 %2"_qs.arg(count).arg(thing);
        return all + m_texts;
    }

private:
    [[nodiscard]] QPaintEngine *paintEngine() const override { return const_cast<Painted *>(this); }
    [[nodiscard]] int metric(PaintDeviceMetric which) const override
    {
        return which == PdmWidth    ? m_widget.width()
               : which == PdmHeight ? m_widget.height()
                                    : QPaintDevice::metric(which);
    }
    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    [[nodiscard]] Type type() const override { return User; }
    void updateState(const QPaintEngineState &) override {}
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}
    void drawTextItem(const QPointF &, const QTextItem &item) override { m_texts += item.text(); }
    void drawRects(const QRectF *, int count) override { add(u"boxes"_qs, count); }
    void drawLines(const QLineF *, int count) override { add(u"lines"_qs, count); }
    void drawEllipse(const QRectF &) override { add(u"dots"_qs, 1); }
    void drawPath(const QPainterPath &) override { add(u"frames"_qs, 1); }
    void drawPolygon(const QPointF *, int, PolygonDrawMode mode) override
    {
        add(mode == PolylineMode ? u"courses"_qs : u"areas"_qs, 1);
    }
    void add(const QString &things, int count)
    {
        const QPen pen = painter()->pen();
        const QBrush brush = painter()->brush();
        m_things[u"%1 %2 %3 %4 %5"_qs.arg(things, pen.color().name())
                     .arg(pen.style())
                     .arg(brush.color().name())
                     .arg(brush.style())] += count;
    }

    QWidget &m_widget;
    std::map<QString, int> m_things;
    QStringList m_texts;
};

} // namespace kiv::test
