// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/report_output.h"

#include "widgets/chart_view.h"

#include "workbench/exports/export.h"
#include "workbench/outlook/outlook_chart.h"

#include <QtCore/QBuffer>
#include <QtGui/QPdfWriter>
#include <QtGui/QTextDocument>
#include <QtPrintSupport/QPrinter>
#include <QtWidgets/QApplication>

namespace kiv::desktop {

using workbench::BudgetReport;
using workbench::Grouping;

namespace {

/// A chart of this size fills the width of a page; it is drawn finer than a screen would.
constexpr QSize chartSize(680, 260);
constexpr int finer = 4;
constexpr int resolution = 300;

QImage pictureOf(const interchange::Chart &chart, navigation::CurrencyDisplayOptions displayAs)
{
    ChartView view(nullptr);
    view.setPalette(paletteFor(Appearance::Light, QApplication::palette()));
    view.setFixedSize(chartSize);
    view.setChart(chart, displayAs);
    QImage picture(chartSize * finer, QImage::Format_RGB32);
    picture.setDevicePixelRatio(finer);
    view.render(&picture);
    picture.setDevicePixelRatio(1);
    return picture;
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
    document->setHtml(QString::fromUtf8(
        report.page(grouping, workbench::reportTitle(), {}, draw)));
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
                                workbench::outlookUntil(desk.document(), report.period().to()));
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
    reportDocument(report, grouping)->print(&printer);
    desk.say(QObject::tr("Printed."));
}

} // namespace kiv::desktop
