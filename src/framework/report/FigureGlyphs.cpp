#include "FigureGlyphs.h"

int FigureGlyphs::indexOf(char16_t c)
{
    for (int index = 0; index < Count; ++index) {
        if (Figures[index] == c)
            return index;
    }
    return -1;
}

FigureGlyphs::FigureGlyphs(QPainter &painter)
{
    for (int index = 0; index < Count; ++index) {
        const TextLine single = TextLine::layOut(painter, QString(QChar(Figures[index])));
        if (single.runs.size() != 1 || single.runs.front().glyphIndexes().size() != 1)
            continue;
        const QGlyphRun &run = single.runs.front();
        if (!m_font.isValid()) {
            m_font = run.rawFont();
            m_baseline = run.positions().front().y();
            m_height = single.height;
        }
        // A figure the font lacks comes from another font: not composed.
        if (run.rawFont() != m_font || run.positions().front() != QPointF(0.0, m_baseline)
            || single.height != m_height)
            continue;
        m_figures[index] = {true, run.glyphIndexes().front(), single.advance};
    }
    // Any two of them side by side must be the two glyphs, the second one
    // advance away from the first, but for the kerning of the pair.
    for (int first = 0; first < Count; ++first) {
        for (int second = 0; second < Count; ++second) {
            Figure &a = m_figures[first];
            Figure &b = m_figures[second];
            if (!a.usable || !b.usable)
                continue;
            const QChar both[] = {QChar(Figures[first]), QChar(Figures[second])};
            const TextLine pair = TextLine::layOut(painter, QString(both, 2));
            const QGlyphRun *run = pair.runs.size() == 1 ? &pair.runs.front() : nullptr;
            const bool set = run && run->rawFont() == m_font
                && run->glyphIndexes() == QList<quint32>{a.glyph, b.glyph}
                && run->positions().size() == 2
                && run->positions().front() == QPointF(0.0, m_baseline)
                && run->positions().back().y() == m_baseline;
            if (!set) {
                a.usable = b.usable = false;
                continue;
            }
            const double kerning = run->positions().back().x() - a.advance;
            if (pair.advance != a.advance + kerning + b.advance) {
                a.usable = b.usable = false;
                continue;
            }
            m_kerning[first][second] = kerning;
        }
    }
}

std::optional<TextLine> FigureGlyphs::compose(const QString &text) const
{
    QList<quint32> glyphs;
    QList<QPointF> positions;
    glyphs.reserve(text.size());
    positions.reserve(text.size());
    double x = 0.0;
    int previous = -1;
    for (const QChar c : text) {
        const int index = indexOf(c.unicode());
        if (index < 0 || !m_figures[index].usable)
            return std::nullopt;
        if (previous >= 0)
            x += m_kerning[previous][index];
        glyphs.append(m_figures[index].glyph);
        positions.append(QPointF(x, m_baseline));
        x += m_figures[index].advance;
        previous = index;
    }
    QGlyphRun run;
    run.setRawFont(m_font);
    run.setGlyphIndexes(glyphs);
    run.setPositions(positions);
    return TextLine{true, x, x, m_height, {run}};
}
