#include "QtReportOutput.h"

#include "MessageService.h"
#include "Report.h"
#include "ReportCsvExport.h"
#include "ReportError.h"
#include "ReportPainter.h"

#include <QApplication>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QToolBar>

namespace {

bool paintReporting(QPrinter &printer, const Report &report)
{
    try {
        ReportPainter::paintPages(printer, report.pages());
        return true;
    } catch (const ReportError &error) {
        Messages::error(error.message());
        return false;
    }
}

} // namespace

bool QtReportOutput::preview(Report &report)
{
    if (!report.prepareShowingErrors())
        return false;
    // A report that prints nothing when empty has nothing to show either.
    if (report.pages().empty())
        return true;
    QPrinter printer(QPrinter::HighResolution);
    ReportPainter::setUpPrinter(printer, report.pageSetup(), report.title());
    QPrintPreviewDialog dialog(&printer, QApplication::activeWindow());
    dialog.setWindowTitle(QStringLiteral("Podgląd wydruku"));
    // The first painting shows the pages just laid out; printing from the
    // preview lays the report out again, reading its data afresh.
    bool laidOut = true;
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog,
                     [&report, &laidOut](QPrinter *target) {
                         if (!laidOut && !report.prepareShowingErrors())
                             return;
                         laidOut = false;
                         paintReporting(*target, report);
                     });
    if (report.hasTable()) {
        if (auto *toolBar = dialog.findChild<QToolBar *>()) {
            toolBar->addSeparator();
            QAction *csv = toolBar->addAction(QStringLiteral("Zapisz jako CSV"));
            csv->setObjectName(QStringLiteral("acZapiszCsv"));
            csv->setToolTip(QStringLiteral("Zapisz pozycje zestawienia do pliku CSV"));
            QObject::connect(csv, &QAction::triggered, &dialog,
                             [&dialog, &report] { ReportCsvExport::save(&dialog, report); });
        }
    }
    dialog.exec();
    return true;
}

bool QtReportOutput::print(Report &report)
{
    if (!report.prepareShowingErrors())
        return false;
    if (report.pages().empty())
        return true;
    QPrinter printer(QPrinter::HighResolution);
    if (!printer.isValid()) {
        Messages::error(QStringLiteral("Brak dostępnej drukarki. Wydruk nie został wykonany."));
        return false;
    }
    ReportPainter::setUpPrinter(printer, report.pageSetup(), report.title());
    return paintReporting(printer, report);
}
