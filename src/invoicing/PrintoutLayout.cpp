#include "PrintoutLayout.h"

namespace {

constexpr double Inset = 1.0;
constexpr double LineHeight = 4.5;

QRectF inside(const QRectF &box)
{
    return box.adjusted(Inset, 0.3, -Inset, 0);
}

void frame(ReportBand &band, const QString &name, const QRectF &boxMm)
{
    band.addLabel(name + QStringLiteral("Ramka"), boxMm)
        .setStretch(true)
        .setFrame(Qt::LeftEdge | Qt::RightEdge | Qt::TopEdge | Qt::BottomEdge);
}

} // namespace

ReportLabel &PrintoutLayout::caption(ReportBand &band, const QString &name, const QRectF &boxMm,
                                     const QString &text)
{
    return band.addLabel(name, boxMm, text).setBold(true);
}

ReportLabel &PrintoutLayout::value(ReportBand &band, const QString &name, const QRectF &boxMm,
                                   Text text)
{
    return band.addLabel(name, boxMm).setValue([text = std::move(text)] { return text(); });
}

ReportLabel &PrintoutLayout::cell(ReportBand &band, const QString &name, const QRectF &boxMm,
                                  Text text, Qt::Alignment alignment)
{
    frame(band, name, boxMm);
    return value(band, name, inside(boxMm), std::move(text))
        .setAlignment(alignment | Qt::AlignTop)
        .setWordWrap(true)
        .setStretch(true)
        .setBottomMargin(0.6);
}

ReportLabel &PrintoutLayout::headerCell(ReportBand &band, const QString &name,
                                        const QRectF &boxMm, const QString &text)
{
    frame(band, name, boxMm);
    return caption(band, name, inside(boxMm), text)
        .setAlignment(Qt::AlignHCenter | Qt::AlignVCenter)
        .setWordWrap(true)
        .setStretch(true);
}

void PrintoutLayout::signature(ReportBand &band, const QString &name, const QRectF &boxMm,
                               const QString &caption, Text signer)
{
    const double x = boxMm.x();
    const double width = boxMm.width();
    double y = boxMm.y();
    if (signer) {
        value(band, name + QStringLiteral("Osoba"), QRectF(x, y, width, LineHeight),
              std::move(signer))
            .setAlignment(Qt::AlignHCenter);
        y += LineHeight;
    }
    // About one dot a millimetre at the caption's size leaves a margin.
    const auto dots = static_cast<qsizetype>(width * 0.85);
    band.addLabel(name + QStringLiteral("Kropki"), QRectF(x, y, width, LineHeight),
                  QString(dots, u'.'))
        .setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    band.addLabel(name, QRectF(x, y + LineHeight + 0.5, width, 2 * LineHeight), caption)
        .setPointSize(7)
        .setAlignment(Qt::AlignHCenter | Qt::AlignTop)
        .setWordWrap(true);
}
