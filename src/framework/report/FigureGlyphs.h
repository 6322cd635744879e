#pragma once

#include "TextLine.h"

#include <QRawFont>
#include <QString>

#include <array>
#include <optional>

class QPainter;

// The glyphs of the figures amounts, dates and numbers are written with, in
// one font on one device, with the kerning of every pair of them as the
// shaper sets it; a figure that the shaper joins with another or takes from
// another font is left out. A text made of them only is then set glyph
// after glyph, pair kerning included, without shaping it: a long report
// prints hundreds of thousands of different amounts.
class FigureGlyphs
{
public:
    // Measures the figures in the painter's font on the painter's device.
    explicit FigureGlyphs(QPainter &painter);

    // None when a character of the text is not a checked figure.
    std::optional<TextLine> compose(const QString &text) const;

private:
    static constexpr char16_t Figures[] = u"0123456789 \u00a0,.-+%:/()";
    static constexpr int Count = sizeof(Figures) / sizeof(char16_t) - 1;

    static int indexOf(char16_t c);

    struct Figure
    {
        bool usable = false;
        quint32 glyph = 0;
        double advance = 0.0;
    };
    std::array<Figure, Count> m_figures;
    std::array<std::array<double, Count>, Count> m_kerning{};
    QRawFont m_font;
    double m_baseline = 0.0;
    double m_height = 0.0;
};
