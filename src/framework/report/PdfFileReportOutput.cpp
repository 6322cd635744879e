#include "PdfFileReportOutput.h"

#include "MessageService.h"
#include "Report.h"
#include "ReportError.h"
#include "ReportPainter.h"

#include <QDir>

PdfFileReportOutput::PdfFileReportOutput(const QString &directory) : m_directory(directory)
{
}

bool PdfFileReportOutput::preview(Report &report)
{
    return deliver(report, Kind::Preview);
}

bool PdfFileReportOutput::print(Report &report)
{
    return deliver(report, Kind::Print);
}

bool PdfFileReportOutput::deliver(Report &report, Kind kind)
{
    if (!report.prepareShowingErrors())
        return false;
    if (report.pages().empty()) {
        // Nothing printed, so no file either.
        m_deliveries.push_back(Delivery{kind, report.title(), QString(), 0});
        return true;
    }
    const QString name = QStringLiteral("%1-%2.pdf")
                             .arg(m_deliveries.size() + 1, 3, 10, QLatin1Char('0'))
                             .arg(kind == Kind::Preview ? QStringLiteral("podglad")
                                                        : QStringLiteral("wydruk"));
    const QString path = QDir(m_directory).filePath(name);
    try {
        ReportPainter::writePdf(path, report.pages(), report.pageSetup(), report.title());
    } catch (const ReportError &error) {
        Messages::error(error.message());
        return false;
    }
    m_deliveries.push_back(
        Delivery{kind, report.title(), path, static_cast<int>(report.pages().size())});
    return true;
}
