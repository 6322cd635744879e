#include "PdfBook.h"

#include "Report.h"
#include "ReportError.h"
#include "ReportPainter.h"

#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

namespace {

constexpr double MmPerInch = 25.4;
// As the engine's own PDF files: fine enough for hairlines.
constexpr int Resolution = 600;

} // namespace

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
    QPdfWriter writer(&device);
    writer.setResolution(Resolution);
    if (!m_sections.empty())
        writer.setTitle(m_sections.front().title);
    writer.setCreator(QStringLiteral("Haulix Zlecenia"));
    bool first = true;
    QPainter painter;
    for (const Section &section : m_sections) {
        for (const ReportPage &page : section.pages) {
            // The sheet of the next page is set before it is started.
            writer.setPageLayout(section.setup.pageLayout());
            if (first) {
                if (!painter.begin(&writer))
                    throw ReportError(QStringLiteral("Nie można rozpocząć zapisu pliku PDF."));
                first = false;
            } else if (!writer.newPage()) {
                throw ReportError(QStringLiteral("Nie można rozpocząć nowej strony wydruku."));
            }
            ReportPainter::paintPage(painter, page, writer.logicalDpiX() / MmPerInch);
        }
    }
    if (!first)
        painter.end();
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
