#pragma once

#include "TextLine.h"

#include <QHash>
#include <QRectF>
#include <QString>

#include <memory>
#include <unordered_map>

class FigureGlyphs;
class QPainter;
struct ReportFont;

// Texts laid out once and drawn again from their glyphs. A long report
// prints the same names, dates, routes and headings thousands of times, and
// laying a text out costs more than drawing it. Only a text that fits its
// box on one line is kept; anything else QPainter lays out as ever. One
// cache serves one painter on one device.
class ReportTextCache
{
public:
    ReportTextCache();
    ~ReportTextCache();

    // Draws the text as QPainter::drawText(rect, flags, text) does, in the
    // painter's font, which must be font.
    void draw(QPainter &painter, const ReportFont &font, const QRectF &rect, int flags,
              const QString &text);

private:
    struct Key
    {
        const ReportFont *font;
        QString text;
        bool operator==(const Key &) const = default;
        friend size_t qHash(const Key &key, size_t seed = 0)
        {
            return qHashMulti(seed, key.font, key.text);
        }
    };
    static void paint(QPainter &painter, const TextLine &shape, const QRectF &rect, int flags,
                      const QString &text);

    QHash<Key, TextLine> m_shapes;
    std::unordered_map<const ReportFont *, std::unique_ptr<FigureGlyphs>> m_figures;
};
