#include "ReportPreRenderer.h"

#include "Report.h"

#include <QFontMetricsF>
#include <QImage>

namespace {

// Text is measured on a fine grid so that the layout does not depend on the
// screen the program happens to run on.
constexpr double measuringDpi = 1200.0;
constexpr double mmPerInch = 25.4;

const QPaintDevice &measuringDevice()
{
    static const QImage device = [] {
        QImage image(1, 1, QImage::Format_ARGB32);
        const int dotsPerMeter = qRound(measuringDpi / mmPerInch * 1000.0);
        image.setDotsPerMeterX(dotsPerMeter);
        image.setDotsPerMeterY(dotsPerMeter);
        return image;
    }();
    return device;
}

double footerReserve(const Report &report)
{
    double height = 0.0;
    for (const ReportBand *band : report.bands(BandType::PageFooter)) {
        if (band->isEnabled())
            height += band->height();
    }
    return height;
}

} // namespace

ReportPreRenderer::ReportPreRenderer(Report &report, PageHandler takePage)
    : m_report(report), m_takePage(std::move(takePage))
{
}

namespace {

double heightIn(const QFontMetricsF &metrics, double widthMm, bool wordWrap, const QString &text)
{
    const double pxPerMm = measuringDpi / mmPerInch;
    const int flags = wordWrap ? Qt::TextWordWrap : 0;
    const QRectF bounds = metrics.boundingRect(QRectF(0, 0, widthMm * pxPerMm, 1.0e7), flags,
                                               text.isEmpty() ? QStringLiteral(" ") : text);
    return bounds.height() / pxPerMm;
}

} // namespace

double ReportPreRenderer::textHeight(const ReportFont &font, double widthMm, bool wordWrap,
                                     const QString &text)
{
    return heightIn(QFontMetricsF(font.toQFont(), &measuringDevice()), widthMm, wordWrap, text);
}

const ReportPreRenderer::FontInUse &ReportPreRenderer::fontInUse(const ReportFont &font)
{
    for (const FontInUse &used : m_fonts) {
        if (*used.font == font)
            return used;
    }
    m_fonts.push_back({std::make_shared<const ReportFont>(font),
                       QFontMetricsF(font.toQFont(), &measuringDevice())});
    return m_fonts.back();
}

std::vector<ReportPage> ReportPreRenderer::run()
{
    for (const auto &sum : m_report.sums())
        sum->reset();
    ReportDataSource *source = m_report.dataSource();
    const bool hasRows = source && source->first();
    if (!hasRows && !m_report.printIfEmpty())
        return {};

    startPage();
    if (hasRows)
        printRows();
    for (ReportBand *band : m_report.bands(BandType::Summary))
        printBodyBand(*band);
    finishPage(true);
    resolvePageTexts();
    handOverFinishedPages();
    return std::move(m_pages);
}

void ReportPreRenderer::printRows()
{
    const std::vector<ReportBand *> details = m_report.bands(BandType::Detail);
    ReportDataSource &source = *m_report.dataSource();
    QVariantList keys = groupKeys();
    printGroupHeaders(0);
    for (;;) {
        if (details.empty())
            addRowToSums();
        for (size_t i = 0; i < details.size(); ++i)
            printBodyBand(*details[i], i == 0);
        if (!source.next())
            break;
        const QVariantList nextKeys = groupKeys();
        qsizetype changed = 0;
        while (changed < keys.size() && keys.at(changed) == nextKeys.at(changed))
            ++changed;
        if (changed < keys.size()) {
            printGroupFooters(static_cast<size_t>(changed));
            keys = nextKeys;
            printGroupHeaders(static_cast<size_t>(changed));
        }
    }
    printGroupFooters(0);
}

QVariantList ReportPreRenderer::groupKeys() const
{
    QVariantList keys;
    for (const auto &group : m_report.groups())
        keys << group->key();
    return keys;
}

void ReportPreRenderer::addRowToSums()
{
    for (const auto &sum : m_report.sums())
        sum->addCurrentRow();
}

void ReportPreRenderer::printGroupHeaders(size_t fromLevel)
{
    const auto &groups = m_report.groups();
    for (size_t level = fromLevel; level < groups.size(); ++level) {
        if (ReportBand *header = groups[level]->header())
            printBodyBand(*header);
        m_openGroups = level + 1;
    }
}

void ReportPreRenderer::printGroupFooters(size_t fromLevel)
{
    const auto &groups = m_report.groups();
    for (size_t level = groups.size(); level-- > fromLevel;) {
        if (ReportBand *footer = groups[level]->footer())
            printBodyBand(*footer);
        m_openGroups = level;
        resetSumsOf(level);
    }
}

void ReportPreRenderer::resetSumsOf(size_t level)
{
    const ReportGroup *group = m_report.groups()[level].get();
    for (const auto &sum : m_report.sums()) {
        if (sum->resetGroup() == group)
            sum->reset();
    }
}

void ReportPreRenderer::handOverFinishedPages()
{
    // A page waiting for the number of pages, and every page after it, is
    // kept until the end.
    if (!m_takePage || !m_pendingPageTexts.empty())
        return;
    for (ReportPage &page : m_pages)
        m_takePage(std::move(page));
    m_pagesHandedOver += static_cast<int>(m_pages.size());
    m_pages.clear();
}

void ReportPreRenderer::startPage()
{
    const ReportPageSetup &setup = m_report.pageSetup();
    const int number = m_pagesHandedOver + static_cast<int>(m_pages.size()) + 1;
    m_pages.push_back(ReportPage{number, setup.pageSizeMm(), {}});
    m_report.m_pageNumber = number;
    const QRectF content = setup.contentRectMm();
    m_y = content.top();
    m_bodyBottom = content.bottom() - footerReserve(m_report);
    m_bodyStarted = false;

    const bool firstPage = number == 1;
    for (ReportBand *band : m_report.bands(BandType::PageHeader)) {
        if (!firstPage || band->printOnFirstPage())
            printFixedBand(*band);
    }
    if (firstPage) {
        for (ReportBand *band : m_report.bands(BandType::Title))
            printFixedBand(*band);
    }
    for (ReportBand *band : m_report.bands(BandType::ColumnHeader))
        printFixedBand(*band);
    if (!firstPage) {
        const auto &groups = m_report.groups();
        for (size_t level = 0; level < m_openGroups; ++level) {
            ReportBand *header = groups[level]->header();
            if (header && groups[level]->reprintHeaderOnNewPage())
                printFixedBand(*header);
        }
    }
}

void ReportPreRenderer::finishPage(bool lastPage)
{
    const bool firstPage = page().number == 1;
    m_y = m_report.pageSetup().contentRectMm().bottom() - footerReserve(m_report);
    for (ReportBand *band : m_report.bands(BandType::PageFooter)) {
        const bool wanted = (!firstPage || band->printOnFirstPage())
            && (!lastPage || band->printOnLastPage());
        if (wanted && band->runBeforePrint())
            place(*band, resolveTexts(*band), band->height());
        else if (band->isEnabled())
            m_y += band->height(); // a footer left out keeps its place
    }
}

void ReportPreRenderer::printFixedBand(ReportBand &band)
{
    if (!band.runBeforePrint())
        return;
    const QStringList texts = resolveTexts(band);
    place(band, texts, bandHeight(band, texts));
}

void ReportPreRenderer::printBodyBand(ReportBand &band, bool takesRow)
{
    if (!band.runBeforePrint())
        return;
    // Sums take in the row after the detail's own callback had its say and
    // before its labels are read, so a running sum includes the row.
    if (takesRow)
        addRowToSums();
    const QStringList texts = resolveTexts(band);
    const double height = bandHeight(band, texts);
    if (m_bodyStarted && (band.forceNewPage() || m_y + height > m_bodyBottom)) {
        finishPage(false);
        handOverFinishedPages();
        startPage();
    }
    place(band, texts, height);
    m_bodyStarted = true;
}

QStringList ReportPreRenderer::resolveTexts(const ReportBand &band)
{
    QStringList texts;
    texts.reserve(qsizetype(band.labels().size()));
    for (const ReportLabel &label : band.labels()) {
        if (!label.isVisible() || label.pageText()) {
            texts << QString();
            continue;
        }
        QString text = label.currentText();
        QString &last = m_lastTexts[&label];
        if (text == last)
            text = last;
        else
            last = text;
        texts << text;
    }
    return texts;
}

double ReportPreRenderer::bandHeight(const ReportBand &band, const QStringList &texts)
{
    double height = band.height();
    qsizetype index = 0;
    for (const ReportLabel &label : band.labels()) {
        const QString &text = texts.at(index++);
        if (!label.isVisible() || !label.stretch())
            continue;
        const QRectF &box = label.geometry();
        const double needed = heightIn(fontInUse(label.font()).metrics, box.width(), label.wordWrap(), text)
            + label.bottomMargin();
        height = qMax(height, box.top() + qMax(box.height(), needed));
    }
    return height;
}

void ReportPreRenderer::place(const ReportBand &band, const QStringList &texts, double height)
{
    const QPointF origin(m_report.pageSetup().leftMm, m_y);
    std::vector<ReportItem> &items = page().items;
    qsizetype index = 0;
    for (const ReportLabel &label : band.labels()) {
        const QString &text = texts.at(index++);
        if (!label.isVisible())
            continue;
        QRectF box = label.geometry().translated(origin);
        if (label.stretch())
            box.setHeight(qMax(box.height(), origin.y() + height - box.top()));
        if (label.pageText())
            m_pendingPageTexts.push_back({m_pages.size() - 1, items.size(), label.pageText()});
        items.push_back(
            ReportTextItem{box, text, fontInUse(label.font()).font, label.alignment(), label.wordWrap()});
        const Qt::Edges frame = label.frame();
        const double width = label.frameWidth();
        if (frame & Qt::TopEdge)
            items.push_back(ReportLineItem{box.topLeft(), box.topRight(), width});
        if (frame & Qt::BottomEdge)
            items.push_back(ReportLineItem{box.bottomLeft(), box.bottomRight(), width});
        if (frame & Qt::LeftEdge)
            items.push_back(ReportLineItem{box.topLeft(), box.bottomLeft(), width});
        if (frame & Qt::RightEdge)
            items.push_back(ReportLineItem{box.topRight(), box.bottomRight(), width});
    }
    for (const ReportLineItem &line : band.lines())
        items.push_back(ReportLineItem{line.fromMm + origin, line.toMm + origin, line.widthMm});
    for (const ReportBoxItem &boxItem : band.boxes())
        items.push_back(ReportBoxItem{boxItem.rectMm.translated(origin), boxItem.widthMm});
    for (const ReportBand::Drawing &drawing : band.drawings()) {
        if (std::shared_ptr<const ReportDrawing> picture = drawing.drawing())
            items.push_back(
                ReportDrawingItem{drawing.rectMm.translated(origin), std::move(picture)});
    }
    m_y += height;
}

void ReportPreRenderer::resolvePageTexts()
{
    const int pageCount = m_pagesHandedOver + static_cast<int>(m_pages.size());
    for (const PendingPageText &pending : m_pendingPageTexts) {
        auto &item = std::get<ReportTextItem>(m_pages[pending.page].items[pending.item]);
        item.text = pending.text(m_pages[pending.page].number, pageCount);
    }
    m_pendingPageTexts.clear();
}
