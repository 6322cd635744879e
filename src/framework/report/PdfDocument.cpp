#include "PdfDocument.h"

#include "PdfJoin.h"
#include "ReportError.h"
#include "ReportPainter.h"
#include "ReportTextCache.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QThread>
#include <QThreadPool>

#include <algorithm>

namespace {

constexpr double MmPerInch = 25.4;
// Fine enough for hairlines, small enough to keep files quick to write.
constexpr int Resolution = 600;

} // namespace

PdfDocument::PdfDocument(const QString &title)
    : m_title(title), m_maximumParts(QThread::idealThreadCount()),
      m_threads(std::make_unique<QThreadPool>())
{
    m_threads->setMaxThreadCount(m_maximumParts);
}

PdfDocument::~PdfDocument()
{
    m_threads->waitForDone();
}

void PdfDocument::addPages(const std::vector<ReportPage> &pages, const QPageLayout &layout)
{
    for (const ReportPage &page : pages)
        m_sheets.push_back({&page, layout, nullptr});
    m_pageCount += static_cast<int>(pages.size());
}

void PdfDocument::takePage(ReportPage &&page, const QPageLayout &layout)
{
    auto owned = std::make_unique<const ReportPage>(std::move(page));
    const ReportPage *kept = owned.get();
    m_sheets.push_back({kept, layout, std::move(owned)});
    ++m_pageCount;
    if (m_sheets.size() < static_cast<size_t>(std::max(m_minimumPartPages, 1)))
        return;
    Part &part = formPart(m_sheets.size());
    if (!hasDrawings(part))
        paintOnThread(part);
}

void PdfDocument::setParts(int parts, int minimumPartPages)
{
    m_maximumParts = std::max(parts, 1);
    m_minimumPartPages = minimumPartPages;
    m_threads->setMaxThreadCount(m_maximumParts);
}

std::vector<size_t> PdfDocument::partStarts() const
{
    const size_t parts = std::clamp<size_t>(m_sheets.size() / std::max(m_minimumPartPages, 1), 1,
                                            static_cast<size_t>(m_maximumParts));
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

PdfDocument::Part &PdfDocument::formPart(size_t count)
{
    Part &part = m_parts.emplace_back();
    const auto end = m_sheets.begin() + static_cast<std::ptrdiff_t>(count);
    part.sheets.assign(std::make_move_iterator(m_sheets.begin()), std::make_move_iterator(end));
    m_sheets.erase(m_sheets.begin(), end);
    return part;
}

bool PdfDocument::hasDrawings(const Part &part)
{
    return std::any_of(part.sheets.begin(), part.sheets.end(),
                       [](const Sheet &sheet) { return !sheet.page->drawings().empty(); });
}

void PdfDocument::paintOnThread(Part &part)
{
    part.onThread = true;
    // A part stays where it is in the deque, and the caller leaves it alone
    // until every thread is done.
    m_threads->start([&part, title = m_title] {
        try {
            QBuffer buffer(&part.pdf);
            buffer.open(QIODevice::WriteOnly);
            paint(buffer, part.sheets, title);
        } catch (...) {
            part.failure = std::current_exception();
        }
        // A long report is not held longer than it takes to paint it.
        part.sheets.clear();
    });
}

void PdfDocument::paint(QIODevice &device, const std::vector<Sheet> &sheets,
                        const QString &title)
{
    QPdfWriter writer(&device);
    writer.setResolution(Resolution);
    writer.setTitle(title);
    writer.setCreator(QStringLiteral("Haulix Zlecenia"));
    QPainter painter;
    ReportTextCache texts;
    for (const Sheet &sheet : sheets) {
        // The sheet of the next page is set before it is started.
        writer.setPageLayout(sheet.layout);
        if (!painter.isActive()) {
            if (!painter.begin(&writer))
                throw ReportError(QStringLiteral("Nie można rozpocząć zapisu pliku PDF."));
        } else if (!writer.newPage()) {
            throw ReportError(QStringLiteral("Nie można rozpocząć nowej strony wydruku."));
        }
        ReportPainter::paintPage(painter, *sheet.page, writer.logicalDpiX() / MmPerInch, &texts);
    }
    if (painter.isActive())
        painter.end();
}

void PdfDocument::write(QIODevice &device)
{
    std::vector<size_t> starts = partStarts();
    if (m_parts.empty() && starts.size() == 1) {
        paint(device, m_sheets, m_title);
        return;
    }
    if (!m_sheets.empty()) {
        starts.push_back(m_sheets.size());
        for (size_t part = 1; part < starts.size(); ++part)
            formPart(starts[part] - starts[part - 1]);
    }
    for (Part &part : m_parts) {
        if (!part.onThread && !hasDrawings(part))
            paintOnThread(part);
    }
    // Drawings go through widgets, which live on the GUI thread: the parts
    // that have them are painted here.
    for (Part &part : m_parts) {
        if (!part.onThread) {
            QBuffer buffer(&part.pdf);
            buffer.open(QIODevice::WriteOnly);
            paint(buffer, part.sheets, m_title);
        }
    }
    m_threads->waitForDone();
    std::vector<QByteArray> parts;
    for (const Part &part : m_parts) {
        if (part.failure)
            std::rethrow_exception(part.failure);
        parts.push_back(part.pdf);
    }
    PdfJoin::join(parts, device);
}
