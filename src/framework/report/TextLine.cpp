#include "TextLine.h"

#include <QPainter>
#include <QTextLayout>

TextLine TextLine::layOut(QPainter &painter, const QString &text)
{
    QTextLayout layout(text, painter.font(), painter.device());
    // The glyphs are kept from the layout for glyphRuns(), not shaped again.
    layout.setCacheEnabled(true);
    QTextOption option;
    option.setTextDirection(painter.layoutDirection());
    option.setFlags(QTextOption::IncludeTrailingSpaces);
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(0x01000000);
    line.setPosition(QPointF(0.0, 0.0));
    const bool single = !layout.createLine().isValid();
    layout.endLayout();
    return {single, line.naturalTextWidth(), line.horizontalAdvance(),
            line.ascent() + line.descent(), layout.glyphRuns()};
}
