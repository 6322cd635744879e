#include "ReportTextCache.h"

#include "FigureGlyphs.h"

#include <QPainter>

namespace {

// Enough for a report's repeated texts, little enough that texts printed
// once (order numbers, amounts) cost no memory worth counting: the cache
// starts again when full.
constexpr qsizetype MaxShapes = 8192;

bool isPlainLine(const QString &text)
{
    if (text.isEmpty() || text.front().isSpace() || text.back().isSpace())
        return false;
    for (const QChar c : text) {
        if (c == u'\n' || c == u'\t' || c == u'\r' || c == QChar::LineSeparator
            || c == QChar::ParagraphSeparator)
            return false;
    }
    return true;
}

bool isPlainFont(const QFont &font)
{
    return !font.underline() && !font.strikeOut() && !font.overline();
}

constexpr int DrawnByPainter = Qt::TextWordWrap | Qt::TextWrapAnywhere
    | Qt::TextJustificationForced | Qt::AlignJustify | Qt::TextShowMnemonic | Qt::TextExpandTabs;

} // namespace

ReportTextCache::ReportTextCache() = default;
ReportTextCache::~ReportTextCache() = default;

void ReportTextCache::draw(QPainter &painter, const ReportFont &font, const QRectF &rect,
                           int flags, const QString &text)
{
    if ((flags & DrawnByPainter) || !isPlainLine(text) || !isPlainFont(painter.font())) {
        painter.drawText(rect, flags, text);
        return;
    }
    const Key key{&font, text};
    if (const auto found = m_shapes.constFind(key); found != m_shapes.constEnd()) {
        paint(painter, *found, rect, flags, text);
        return;
    }
    // Amounts and numbers rarely repeat: they are set from their glyphs
    // and not kept.
    std::unique_ptr<FigureGlyphs> &figures = m_figures[&font];
    if (!figures)
        figures = std::make_unique<FigureGlyphs>(painter);
    if (const std::optional<TextLine> line = figures->compose(text)) {
        paint(painter, *line, rect, flags, text);
        return;
    }
    if (m_shapes.size() >= MaxShapes)
        m_shapes.clear();
    paint(painter, *m_shapes.insert(key, TextLine::layOut(painter, text)), rect, flags, text);
}

void ReportTextCache::paint(QPainter &painter, const TextLine &shape, const QRectF &rect,
                            int flags, const QString &text)
{
    // What QPainter::drawText does with one line that fits its box; a line
    // that does not fit is clipped, which is left to it.
    if (!shape.single || shape.width > rect.width() || shape.height > rect.height()) {
        painter.drawText(rect, flags, text);
        return;
    }
    double x = 0.0;
    if (flags & Qt::AlignRight)
        x = rect.width() - shape.advance;
    else if (flags & Qt::AlignHCenter)
        x = (rect.width() - shape.advance) / 2;
    double y = 0.0;
    if (flags & Qt::AlignBottom)
        y = rect.height() - shape.height;
    else if (flags & Qt::AlignVCenter)
        y = (rect.height() - shape.height) / 2;
    for (const QGlyphRun &run : shape.runs)
        painter.drawGlyphRun(rect.topLeft() + QPointF(x, y), run);
}
