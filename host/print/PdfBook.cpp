#include "PdfBook.h"

#include "Report.h"
#include "ReportError.h"

#include <QSaveFile>

PdfBook::PdfBook() : m_document(QString())
{
}

void PdfBook::add(Report &report)
{
    const bool first = m_reports++ == 0;
    const QPageLayout layout = report.pageSetup().pageLayout();
    report.prepare([&](ReportPage &&page) {
        // The title is the report's own once its data has been read, which
        // is before its first page is done.
        if (first && m_document.pageCount() == 0)
            m_document.setTitle(report.title());
        m_document.takePage(std::move(page), layout);
    });
    if (first && m_document.pageCount() == 0)
        m_document.setTitle(report.title());
}

void PdfBook::write(QIODevice &device)
{
    m_document.write(device);
}

void PdfBook::save(const QString &path)
{
    QSaveFile file(path);
    const auto failed = [&] {
        return ReportError(
            QStringLiteral("Nie można zapisać pliku %1: %2").arg(path, file.errorString()));
    };
    if (!file.open(QIODevice::WriteOnly))
        throw failed();
    write(file);
    if (!file.commit())
        throw failed();
}
