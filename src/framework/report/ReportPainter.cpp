#include "ReportPainter.h"

#include "PdfDocument.h"
#include "ReportError.h"
#include "ReportTextCache.h"

#include <QDir>
#include <QFileInfo>
#include <QPainter>
#include <QPrinter>
#include <QSaveFile>

namespace {

constexpr double mmPerInch = 25.4;

QRectF scaled(const QRectF &rectMm, double dotsPerMm)
{
    return QRectF(rectMm.x() * dotsPerMm, rectMm.y() * dotsPerMm, rectMm.width() * dotsPerMm,
                  rectMm.height() * dotsPerMm);
}

QPen pen(double widthMm, double dotsPerMm)
{
    QPen pen(Qt::black);
    pen.setWidthF(qMax(widthMm * dotsPerMm, 1.0));
    return pen;
}

struct ItemPainter
{
    QPainter &painter;
    double dotsPerMm;
    ReportTextCache *texts;
    // Setting the painter's font is dear; texts in a row mostly share one.
    mutable const ReportFont *currentFont = nullptr;

    void operator()(const ReportTextItem &item) const
    {
        if (item.text.isEmpty())
            return;
        painter.setPen(Qt::black);
        if (!currentFont || !(*currentFont == *item.font)) {
            painter.setFont(item.font->toQFont());
            currentFont = item.font.get();
        }
        const int flags = static_cast<int>(item.alignment) | (item.wordWrap ? Qt::TextWordWrap : 0);
        if (texts)
            texts->draw(painter, *item.font, scaled(item.rectMm, dotsPerMm), flags, item.text);
        else
            painter.drawText(scaled(item.rectMm, dotsPerMm), flags, item.text);
    }
    void operator()(const ReportLineItem &item) const
    {
        painter.setPen(pen(item.widthMm, dotsPerMm));
        painter.drawLine(item.fromMm * dotsPerMm, item.toMm * dotsPerMm);
    }
    void operator()(const ReportBoxItem &item) const
    {
        painter.setPen(pen(item.widthMm, dotsPerMm));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(scaled(item.rectMm, dotsPerMm));
    }
    void operator()(const ReportDrawingItem &item) const
    {
        painter.save();
        item.drawing->paint(painter, scaled(item.rectMm, dotsPerMm));
        painter.restore();
        currentFont = nullptr;
    }
};

} // namespace

void ReportPainter::paintPage(QPainter &painter, const ReportPage &page, double dotsPerMm,
                              ReportTextCache *texts)
{
    painter.save();
    const ItemPainter itemPainter{painter, dotsPerMm, texts};
    for (const ReportItem &item : page.items)
        std::visit(itemPainter, item);
    painter.restore();
}

void ReportPainter::setUpPrinter(QPrinter &printer, const ReportPageSetup &setup,
                                 const QString &title)
{
    printer.setFullPage(true);
    printer.setPageLayout(setup.pageLayout());
    printer.setDocName(title);
}

void ReportPainter::paintPages(QPagedPaintDevice &device, const std::vector<ReportPage> &pages)
{
    QPainter painter;
    if (!painter.begin(&device))
        throw ReportError(QStringLiteral("Nie można rozpocząć drukowania."));
    const double dotsPerMm = device.logicalDpiX() / mmPerInch;
    ReportTextCache texts;
    for (size_t index = 0; index < pages.size(); ++index) {
        if (index > 0 && !device.newPage())
            throw ReportError(QStringLiteral("Nie można rozpocząć nowej strony wydruku."));
        paintPage(painter, pages[index], dotsPerMm, &texts);
    }
    painter.end();
}

void ReportPainter::writePdf(const QString &path, const std::vector<ReportPage> &pages,
                             const ReportPageSetup &setup, const QString &title)
{
    const QFileInfo target(path);
    const auto failed = [&] {
        return ReportError(QStringLiteral("Nie można zapisać pliku %1.").arg(path));
    };
    if (!target.absoluteDir().exists() || (target.exists() && !target.isWritable()))
        throw failed();
    PdfDocument document(title);
    document.addPages(pages, setup.pageLayout());
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        throw failed();
    document.write(file);
    if (!file.commit())
        throw failed();
}
