#include "PdfDocument.h"

#include "PdfJoin.h"
#include "ReportError.h"
#include "ReportPainter.h"
#include "ReportTextCache.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QThread>

#include <algorithm>
#include <future>
#include <optional>

namespace {

constexpr double MmPerInch = 25.4;
// Fine enough for hairlines, small enough to keep files quick to write.
constexpr int Resolution = 600;

size_t end(const std::vector<size_t> &starts, size_t part, size_t sheets)
{
    return part + 1 < starts.size() ? starts[part + 1] : sheets;
}

} // namespace

PdfDocument::PdfDocument(const QString &title)
    : m_title(title), m_parts(QThread::idealThreadCount())
{
}

void PdfDocument::addPages(const std::vector<ReportPage> &pages, const QPageLayout &layout)
{
    for (const ReportPage &page : pages)
        m_sheets.push_back({&page, layout});
}

void PdfDocument::setParts(int parts, int minimumPartPages)
{
    m_parts = parts;
    m_minimumPartPages = minimumPartPages;
}

std::vector<size_t> PdfDocument::partStarts() const
{
    const size_t parts = std::clamp<size_t>(m_sheets.size() / std::max(m_minimumPartPages, 1), 1,
                                            std::max(m_parts, 1));
    size_t items = 0;
    for (const Sheet &sheet : m_sheets)
        items += sheet.page->items.size() + 1;
    std::vector<size_t> starts{0};
    size_t painted = 0;
    for (size_t index = 0; index < m_sheets.size() && starts.size() < parts; ++index) {
        painted += m_sheets[index].page->items.size() + 1;
        if (painted * parts >= items * starts.size() && index + 1 < m_sheets.size())
            starts.push_back(index + 1);
    }
    return starts;
}

bool PdfDocument::hasDrawings(size_t from, size_t to) const
{
    for (size_t index = from; index < to; ++index) {
        if (!m_sheets[index].page->drawings().empty())
            return true;
    }
    return false;
}

void PdfDocument::paint(QIODevice &device, size_t from, size_t to) const
{
    QPdfWriter writer(&device);
    writer.setResolution(Resolution);
    writer.setTitle(m_title);
    writer.setCreator(QStringLiteral("Haulix Zlecenia"));
    QPainter painter;
    ReportTextCache texts;
    for (size_t index = from; index < to; ++index) {
        // The sheet of the next page is set before it is started.
        writer.setPageLayout(m_sheets[index].layout);
        if (index == from) {
            if (!painter.begin(&writer))
                throw ReportError(QStringLiteral("Nie można rozpocząć zapisu pliku PDF."));
        } else if (!writer.newPage()) {
            throw ReportError(QStringLiteral("Nie można rozpocząć nowej strony wydruku."));
        }
        ReportPainter::paintPage(painter, *m_sheets[index].page,
                                 writer.logicalDpiX() / MmPerInch, &texts);
    }
    if (painter.isActive())
        painter.end();
}

void PdfDocument::write(QIODevice &device) const
{
    const std::vector<size_t> starts = partStarts();
    if (starts.size() == 1) {
        paint(device, 0, m_sheets.size());
        return;
    }
    // Drawings go through widgets, which live on the GUI thread: the part
    // that has them is painted here, the others on threads of their own.
    std::optional<size_t> drawingPart;
    for (size_t part = 0; part < starts.size(); ++part) {
        if (!hasDrawings(starts[part], end(starts, part, m_sheets.size())))
            continue;
        if (drawingPart) {
            paint(device, 0, m_sheets.size());
            return;
        }
        drawingPart = part;
    }
    const size_t here = drawingPart.value_or(0);
    std::vector<QByteArray> parts(starts.size());
    const auto paintPart = [&](size_t part) {
        QBuffer buffer(&parts[part]);
        buffer.open(QIODevice::WriteOnly);
        paint(buffer, starts[part], end(starts, part, m_sheets.size()));
    };
    {
        // A future of std::async waits for its thread when destroyed, so an
        // exception here still leaves no thread painting into parts.
        std::vector<std::future<void>> later;
        for (size_t part = 0; part < starts.size(); ++part) {
            if (part != here)
                later.push_back(std::async(std::launch::async, paintPart, part));
        }
        paintPart(here);
        for (std::future<void> &part : later)
            part.get();
    }
    PdfJoin::join(parts, device);
}
