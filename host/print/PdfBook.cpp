#include "PdfBook.h"

#include "PdfDocument.h"
#include "Report.h"
#include "ReportError.h"

#include <QSaveFile>

void PdfBook::add(Report &report)
{
    // The title is the report's own once its data has been read.
    report.prepare();
    m_sections.push_back({report.title(), report.pageSetup(), report.takePages()});
}

int PdfBook::pageCount() const
{
    int count = 0;
    for (const Section &section : m_sections)
        count += static_cast<int>(section.pages.size());
    return count;
}

void PdfBook::write(QIODevice &device) const
{
    PdfDocument document(m_sections.empty() ? QString() : m_sections.front().title);
    for (const Section &section : m_sections)
        document.addPages(section.pages, section.setup.pageLayout());
    document.write(device);
}

void PdfBook::save(const QString &path) const
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
