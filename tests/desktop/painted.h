// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtWidgets/QtWidgets>

namespace kiv::test {

/// What a widget and all in it paint: things with a pen and a brush, and texts; and what is wrong
/// with their places.
class Painted final : public QPaintDevice, private QPaintEngine {
public:
    explicit Painted(QWidget &widget) : QPaintEngine(AllFeatures), m_widget(widget)
    {
        m_all = widget.rect();
        widget.render(this);
    }
    /// At the size that it would like.
    [[nodiscard]] static Painted atItsSize(QWidget &widget)
    {
        const QSize size = widget.size();
        widget.resize(widget.sizeHint());
        const auto back = qScopeGuard([&] { widget.resize(size); });
        return Painted(widget);
    }
    /// Whether sum() is what it is elsewhere: it holds for one font and version of Qt alone.
    [[nodiscard]] static bool isKnown()
    {
        const QFont font = QApplication::font();
        return QLatin1String(qVersion()) == u"6.4.2" &&
               QFontInfo(font).family() == u"DejaVu Sans" &&
               qRound(100 * QFontMetricsF(font).horizontalAdvance(u"Wäge 0,19 €"_qs)) == 7536;
    }
    /// A sum over all that is painted and where.
    [[nodiscard]] QString sum() const
    {
        QStringList all = m_places;
        all.sort(); // tables paint cells that span several columns in any order
        const auto sum =
            QCryptographicHash::hash(all.join(u'\n').toUtf8(), QCryptographicHash::Md5);
        return QString::fromLatin1(sum.toHex().first(8));
    }
    [[nodiscard]] QStringList told() const
    {
        QStringList all;
        for (const auto &[thing, count] : m_things)
            all += u"%1: %2"_qs.arg(thing).arg(count);
        for (const auto &[text, box] : m_boxes) {
            const bool isApart = std::ranges::none_of(m_boxes, [&box](const auto &other) {
                return &other.second != &box && other.second.intersects(box);
            });
            all += isApart && m_all.contains(box) ? text : text + u" does not fit"_qs;
        }
        return all;
    }

private:
    [[nodiscard]] QPaintEngine *paintEngine() const override { return const_cast<Painted *>(this); }
    [[nodiscard]] int metric(PaintDeviceMetric which) const override
    {
        return which == PdmWidth                    ? m_widget.width()
               : which == PdmHeight                 ? m_widget.height()
               : which == PdmDevicePixelRatio       ? 1
               : which == PdmDevicePixelRatioScaled ? static_cast<int>(devicePixelRatioFScale())
                                                    : m_widget.logicalDpiX();
    }
    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    [[nodiscard]] Type type() const override { return User; }
    void updateState(const QPaintEngineState &) override {}
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}
    void drawTextItem(const QPointF &at, const QTextItem &item) override
    {
        const QRectF box(at.x(), at.y() - item.ascent(), item.width(), item.ascent());
        m_boxes.emplace_back(item.text(), painter()->transform().mapRect(box));
        note(box);
    }
    void drawRects(const QRectF *boxes, int count) override
    {
        const bool isWithin = std::all_of(boxes, boxes + count, [this](const QRectF &box) {
            return m_all.united(painter()->transform().mapRect(box)) == m_all;
        });
        add(isWithin ? u"boxes"_qs : u"boxes outside"_qs, count);
        std::for_each(boxes, boxes + count, [this](const QRectF &box) { note(box); });
    }
    void drawLines(const QLineF *lines, int count) override
    {
        add(u"lines"_qs, count);
        std::for_each(lines, lines + count, [this](const QLineF &line) {
            note({line.p1(), line.p2()});
        });
    }
    void drawEllipse(const QRectF &box) override
    {
        note(box);
        add(box.width() == box.height() ? u"dots"_qs : u"flat dots"_qs, 1);
    }
    void drawPath(const QPainterPath &path) override
    {
        note(path.boundingRect());
        add(u"frames"_qs, 1);
    }
    void drawPolygon(const QPointF *points, int count, PolygonDrawMode mode) override
    {
        std::for_each(points, points + count, [this](QPointF point) { note({point, QSizeF()}); });
        add(mode == PolylineMode ? u"courses"_qs : u"areas"_qs, 1);
    }
    void add(QString things, int count)
    {
        // Nothing for no pen and no brush, and their styles unless they are solid.
        const auto named = [](const auto &ink) {
            const auto names = QMetaEnum::fromType<decltype(ink.style())>();
            const QString style =
                ink.style() == 1 ? QString() : QLatin1String(names.valueToKey(ink.style()));
            const bool isOpaque = ink.color().alpha() == 255;
            return ink.style() == 0
                       ? QString()
                       : style + ink.color().name(isOpaque ? QColor::HexRgb : QColor::HexArgb);
        };
        const QString width = painter()->pen().widthF() == 1
                                  ? QString()
                                  : u" of %1"_qs.arg(painter()->pen().widthF());
        const QString fill = named(painter()->brush());
        things += u' ' + named(painter()->pen()) + width + (fill.isEmpty() ? fill : u'+' + fill);
        m_things[things.trimmed()] += count;
        m_places += things + u" joined %1, smooth %2"_qs.arg(painter()->pen().joinStyle())
                                 .arg(painter()->testRenderHint(QPainter::Antialiasing));
    }
    void note(const QRectF &box)
    {
        const QRect at = painter()->transform().mapRect(box).toRect();
        m_places += u"%1 %2 %3 %4"_qs.arg(at.left()).arg(at.top()).arg(at.width()).arg(at.height());
    }

    QWidget &m_widget;
    std::map<QString, int> m_things;
    QStringList m_places; ///< of all things, as they are painted
    QRectF m_all;
    std::vector<std::pair<QString, QRectF>> m_boxes; ///< of the texts
};

} // namespace kiv::test
