// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/report_output.h"

#include "widgets/chart_view.h"

#include "workbench/exports/export.h"

#include <QtCore/QBuffer>
#include <QtCore/QRegularExpression>
#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>
#include <QtGui/QTextDocument>
#include <QtPrintSupport/QPrinter>
#include <QtWidgets/QApplication>

namespace kiv::desktop {

using workbench::BudgetReport;
using workbench::Grouping;

namespace {

/// A chart of this size fills the width of a page; it is drawn finer than a screen would.
constexpr QSize chartSize(620, 200);
constexpr int finer = 4;
constexpr int resolution = 300;

/// The chart below its title, which no page break can part from it then.
QImage pictureOf(const interchange::Chart &chart, navigation::CurrencyDisplayOptions displayAs)
{
    ChartView view(nullptr);
    const QPalette light = paletteFor(Appearance::Light, QApplication::palette());
    view.setPalette(light);
    view.setFixedSize(chartSize);
    view.setChart(chart, displayAs);
    QFont bold = view.font();
    bold.setBold(true);
    const int title = 2 * QFontMetrics(bold).height();
    QImage picture((chartSize + QSize(0, title)) * finer, QImage::Format_RGB32);
    picture.fill(light.color(QPalette::Base));
    picture.setDevicePixelRatio(finer);
    {
        QPainter painter(&picture);
        painter.setPen(light.color(QPalette::Text));
        painter.setFont(bold);
        painter.drawText(QRect(0, 0, chartSize.width(), title), Qt::AlignLeft | Qt::AlignVCenter,
                         chart.title);
        view.render(&painter, QPoint(0, title));
    }
    picture.setDevicePixelRatio(1);
    return picture;
}

/// The page in the words of HTML 4, which is all that a QTextDocument knows: attributes in place of
/// styles, and no folded tables.
QString inPlainHtml(QString html)
{
    static const QRegularExpression left(
        QStringLiteral("(?s)<style>.*?</style>|<summary>.*?</summary>|<svg.*?</svg>|"
                       "<figcaption>.*?</figcaption>"));
    html.remove(left);
    for (const auto &[from, to] :
         {std::pair("<td class=\"n", "<td align=\"right\" class=\"n"),
          {"<th scope=\"col\" class=\"n", "<th align=\"right\" class=\"n"},
          {"<th scope=\"col\"", "<th align=\"left\""},
          {"<th scope=\"row\"", "<th align=\"left\" style=\"font-weight: normal\""},
          {"<table", "<table width=\"100%\" cellpadding=\"2\""},
          {"<div class=\"card\"><span", "<p class=\"card\"><span"},
          {"</span><strong", ": </span><strong"},
          {"</strong></div>", "</strong></p>"}})
        html.replace(QLatin1String(from), QLatin1String(to));
    return html;
}

QByteArray pdfOf(const BudgetReport &report, Grouping grouping)
{
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&bytes);
        writer.setResolution(resolution);
        writer.setPageSize(QPageSize(QPageSize::A4));
        writer.setTitle(workbench::reportTitle());
        reportDocument(report, grouping)->print(&writer);
    }
    return bytes.data();
}

} // namespace

std::unique_ptr<QTextDocument> reportDocument(const BudgetReport &report, Grouping grouping)
{
    auto document = std::make_unique<QTextDocument>();
    const auto draw = [&](const interchange::Chart &chart, const QString &id) {
        document->addResource(QTextDocument::ImageResource, QUrl(id),
                              pictureOf(chart, report.displayAs()));
        return QStringLiteral("<img src=\"%1\" width=\"%2\">")
            .arg(id, QString::number(chartSize.width()));
    };
    document->setHtml(
        inPlainHtml(QString::fromUtf8(report.page(grouping, workbench::reportTitle(), {}, draw))));
    return document;
}

void saveReport(Desk &desk, QWidget *window, const BudgetReport &report, Grouping grouping)
{
    const std::optional<qsizetype> chosen = desk.questions().choose(
        window, QObject::tr("In which form is the report saved?"),
        {QObject::tr("Document (PDF)"), QObject::tr("Page (HTML)"), QObject::tr("Table (CSV)")});
    if (!chosen)
        return;
    constexpr std::array suffixes{"pdf", "html", "csv"};
    const auto form = static_cast<std::size_t>(*chosen);
    const QString file = desk.questions().fileToExport(window, QLatin1String(suffixes.at(form)));
    if (file.isEmpty())
        return;
    desk.writeOut(QStringLiteral("report"), file, [&] {
        QByteArray bytes;
        if (form == 0)
            bytes = pdfOf(report, grouping);
        else if (form == 1)
            bytes = report.page(grouping, workbench::reportTitle(),
                                [&] { return comingChart(report, desk.document()); });
        else
            bytes = interchange::toCsv(report.groups(grouping));
        workbench::writeFile(file, bytes);
    });
}

void printReport(Desk &desk, QWidget *window, const BudgetReport &report, Grouping grouping)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(workbench::reportTitle());
    if (!desk.questions().printer(window, printer))
        return;
    if (desk.tryWork(QStringLiteral("report"),
                     [&] { reportDocument(report, grouping)->print(&printer); }))
        desk.say(QObject::tr("Printed."));
}

} // namespace kiv::desktop
