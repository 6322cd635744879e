#include "ReportFont.h"

#include "TahomaFont.h"

QFont ReportFont::toQFont() const
{
    QFont font = family == QLatin1String("Tahoma") ? tahomaFont() : QFont(family);
    font.setStyleHint(QFont::SansSerif);
    font.setPointSizeF(pointSize);
    font.setBold(bold);
    font.setItalic(italic);
    font.setUnderline(underline);
    return font;
}

ReportFont ReportFont::sized(double pointSize, bool bold)
{
    ReportFont font;
    font.pointSize = pointSize;
    font.bold = bold;
    return font;
}
