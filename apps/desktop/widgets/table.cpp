// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/table.h"

#include "models/table_model.h"
#include "widgets/outline_style.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyleOption>

namespace kiv::desktop {
namespace {

/// So many rows decide how wide a column is: to ask all would take seconds in a long table.
constexpr int measuredRows = 200;

/// Keeps the texts of neighbouring cells apart, and headings above their columns.
class CellStyle final : public OutlineStyle {
public:
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        const auto *heading = qstyleoption_cast<const QStyleOptionHeader *>(option);
        if (element != CE_HeaderLabel || !heading)
            return OutlineStyle::drawControl(element, option, painter, widget);
        QStyleOptionHeader above = *heading;
        const int extra = extraOfHeading(option, widget);
        above.rect.adjust(extra, 0, -extra, 0);
        OutlineStyle::drawControl(element, &above, painter, widget);
    }
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                           const QWidget *widget) const override
    {
        const QSize usual = OutlineStyle::sizeFromContents(type, option, size, widget);
        return type == CT_HeaderSection ? usual + QSize(2 * extraOfHeading(option, widget), 0)
                                        : usual;
    }
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        const int usual = OutlineStyle::pixelMetric(metric, option, widget);
        if (metric != PM_FocusFrameHMargin || !widget)
            return usual;
        return usual + widget->fontMetrics().averageCharWidth() / 2;
    }

private:
    /// What a heading lacks at each side to have the margin of a cell.
    int extraOfHeading(const QStyleOption *option, const QWidget *widget) const
    {
        const int cells = pixelMetric(PM_FocusFrameHMargin, option, widget) + 1;
        return std::max(0, cells - pixelMetric(PM_HeaderMargin, option, widget));
    }
};

} // namespace

Table::Table(TableModel &model, const QString &name, QWidget *parent)
    : FollowedView<QTableView>(parent), m_rows(model)
{
    auto *style = new CellStyle;
    style->setParent(this);
    setStyle(style);
    horizontalHeader()->setStyle(style);
    setModel(&model);
    setAccessibleName(name);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setAlternatingRowColors(true);
    setWordWrap(false);
    setHorizontalScrollMode(ScrollPerPixel);
    setCornerButtonEnabled(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setResizeContentsPrecision(measuredRows);
    setHeights();
    connect(this, &QTableView::activated, this,
            [this](const QModelIndex &index) { emit opened(m_rows.key(index)); });
}

void Table::setHeights()
{
    const int height = fontMetrics().height() + fontMetrics().height() / 2;
    verticalHeader()->setMinimumSectionSize(height);
    verticalHeader()->setDefaultSectionSize(height);
    horizontalHeader()->setMaximumSectionSize(fontMetrics().averageCharWidth() * 60);
}

void Table::setWidths()
{
    clearSpans();
    resizeColumnsToContents();
    int heading = 0; // the widest
    for (int row = 0; row < m_rows.rowCount(); ++row) {
        const QModelIndex first = m_rows.index(row, 0);
        if (!m_rows.rows()[static_cast<std::size_t>(row)].isHeading)
            continue;
        const QFontMetrics metrics(first.data(Qt::FontRole).value<QFont>());
        heading = std::max(
            heading, metrics.horizontalAdvance(first.data().toString() + QStringLiteral("mm")));
        if (m_rows.columnCount() > 1)
            setSpan(row, 0, 1, m_rows.columnCount());
    }
    if (const int missing = heading - horizontalHeader()->length(); missing > 0)
        setColumnWidth(0, columnWidth(0) + missing);
}

void Table::chooseSeveral()
{
    setSelectionMode(ExtendedSelection);
}

void Table::fit(int rowsMax)
{
    m_fits = rowsMax;
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    updateGeometry();
}

QStringList Table::chosen() const
{
    QModelIndexList rows = selectionModel()->selectedRows();
    std::ranges::sort(rows, {}, &QModelIndex::row);
    QStringList keys;
    for (const QModelIndex &row : rows)
        keys += m_rows.key(row);
    return keys;
}

void Table::choose(const QString &key)
{
    if (const int row = m_rows.place(key); row >= 0)
        setCurrentIndex(m_rows.index(row, 0)); // which chooses it
}

void Table::settle()
{
    setWidths();
    updateGeometry();
    if (selectionModel()->hasSelection())
        return;
    // Rows that went leave the current row near their place.
    int row = std::max(0, currentIndex().row());
    while (row < m_rows.rowCount() && m_rows.rows()[static_cast<std::size_t>(row)].isHeading)
        ++row;
    if (row < m_rows.rowCount())
        setCurrentIndex(m_rows.index(row, 0));
}

int Table::heightOf(int rows) const
{
    const int header = horizontalHeader()->isVisible() || !isVisible()
                           ? horizontalHeader()->sizeHint().height()
                           : 0;
    return header + rows * verticalHeader()->defaultSectionSize() + 2 * frameWidth() +
           horizontalScrollBar()->sizeHint().height();
}

QSize Table::sizeHint() const
{
    const QSize usual = QTableView::sizeHint();
    return m_fits ? QSize(usual.width(), heightOf(std::clamp(m_rows.rowCount(), 1, m_fits)))
                  : usual;
}

QSize Table::minimumSizeHint() const
{
    return {QTableView::minimumSizeHint().width(), m_fits ? sizeHint().height() : heightOf(4)};
}

void Table::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::ApplicationFontChange) {
        setHeights();
        setWidths();
    }
}

void Table::keyPressEvent(QKeyEvent *event)
{
    const QString key = chosen().value(0);
    if (event->key() == Qt::Key_F2 && !key.isEmpty())
        emit changeWanted(key);
    else if (event->key() == Qt::Key_Delete && !key.isEmpty())
        emit removalWanted(key);
    else
        QTableView::keyPressEvent(event);
}

void Table::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected)
{
    QTableView::selectionChanged(selected, deselected);
    emit chosenChanged();
}

} // namespace kiv::desktop
