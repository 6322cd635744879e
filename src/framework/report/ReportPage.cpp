#include "ReportPage.h"

#include <QTextStream>

namespace {

QString mm(double value)
{
    // Avoids "-0.00" for values that only differ from zero by noise.
    if (qAbs(value) < 0.005)
        value = 0.0;
    return QString::number(value, 'f', 2);
}

QString alignmentName(Qt::Alignment alignment)
{
    QString horizontal = QStringLiteral("left");
    if (alignment & Qt::AlignRight)
        horizontal = QStringLiteral("right");
    else if (alignment & Qt::AlignHCenter)
        horizontal = QStringLiteral("center");
    else if (alignment & Qt::AlignJustify)
        horizontal = QStringLiteral("justify");
    QString vertical = QStringLiteral("vcenter");
    if (alignment & Qt::AlignTop)
        vertical = QStringLiteral("top");
    else if (alignment & Qt::AlignBottom)
        vertical = QStringLiteral("bottom");
    return horizontal + QLatin1Char('|') + vertical;
}

QString styleName(const ReportFont &font)
{
    QString style;
    if (font.bold)
        style += QLatin1Char('b');
    if (font.italic)
        style += QLatin1Char('i');
    if (font.underline)
        style += QLatin1Char('u');
    return style.isEmpty() ? QStringLiteral("-") : style;
}

QString quoted(QString text)
{
    text.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    text.replace(QLatin1Char('"'), QLatin1String("\\\""));
    text.replace(QLatin1Char('\n'), QLatin1String("\\n"));
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QString rect(const QRectF &r)
{
    return mm(r.x()) + QLatin1Char(' ') + mm(r.y()) + QLatin1Char(' ') + mm(r.width())
        + QLatin1Char(' ') + mm(r.height());
}

struct ItemLine
{
    QString operator()(const ReportTextItem &item) const
    {
        return QStringLiteral("text ") + rect(item.rectMm) + QLatin1Char(' ')
            + alignmentName(item.alignment)
            + (item.wordWrap ? QStringLiteral(" wrap ") : QStringLiteral(" "))
            + quoted(item.font->family) + QLatin1Char(' ') + QString::number(item.font->pointSize)
            + QLatin1Char(' ') + styleName(*item.font) + QLatin1Char(' ') + quoted(item.text);
    }
    QString operator()(const ReportLineItem &item) const
    {
        return QStringLiteral("line ") + mm(item.fromMm.x()) + QLatin1Char(' ')
            + mm(item.fromMm.y()) + QLatin1Char(' ') + mm(item.toMm.x()) + QLatin1Char(' ')
            + mm(item.toMm.y()) + QLatin1Char(' ') + mm(item.widthMm);
    }
    QString operator()(const ReportBoxItem &item) const
    {
        return QStringLiteral("box ") + rect(item.rectMm) + QLatin1Char(' ') + mm(item.widthMm);
    }
    QString operator()(const ReportDrawingItem &item) const
    {
        return QStringLiteral("drawing ") + rect(item.rectMm) + QLatin1Char(' ')
            + quoted(item.drawing->description());
    }
};

} // namespace

QStringList ReportPage::texts() const
{
    QStringList result;
    for (const ReportItem &item : items) {
        if (const auto *text = std::get_if<ReportTextItem>(&item))
            result << text->text;
    }
    return result;
}

std::vector<const ReportDrawingItem *> ReportPage::drawings() const
{
    std::vector<const ReportDrawingItem *> result;
    for (const ReportItem &item : items) {
        if (const auto *drawing = std::get_if<ReportDrawingItem>(&item))
            result.push_back(drawing);
    }
    return result;
}

QString dumpPages(const std::vector<ReportPage> &pages)
{
    QString dump;
    QTextStream out(&dump);
    for (const ReportPage &page : pages) {
        out << "page " << page.number << ' ' << mm(page.sizeMm.width()) << ' '
            << mm(page.sizeMm.height()) << '\n';
        for (const ReportItem &item : page.items)
            out << std::visit(ItemLine{}, item) << '\n';
    }
    return dump;
}
