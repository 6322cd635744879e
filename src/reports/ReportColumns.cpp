#include "ReportColumns.h"

namespace {

constexpr double Inset = 0.8;

} // namespace

void ReportColumns::addHeads(ReportBand &band, std::span<const Column> columns, double widthMm)
{
    const double height = band.height();
    for (const Column &column : columns) {
        band.addLabel(QStringLiteral("lbl") + QLatin1String(column.name).mid(2),
                      QRectF(column.x + Inset, 0, column.width - 2 * Inset, height - 0.5),
                      QString::fromUtf8(column.caption))
            .setBold(true)
            .setAlignment(column.alignment | Qt::AlignVCenter);
    }
    band.addLine(QPointF(0, height - 0.3), QPointF(widthMm, height - 0.3));
}

ReportLabel &ReportColumns::addCell(ReportBand &band, const Column &column, Text text)
{
    return band
        .addLabel(QString::fromLatin1(column.name),
                  QRectF(column.x + Inset, 0, column.width - 2 * Inset, band.height()))
        .setValue([text = std::move(text)] { return text(); })
        .setAlignment(column.alignment | Qt::AlignVCenter);
}

ReportLabel &ReportColumns::addCaption(ReportBand &band, const QString &name,
                                       const QRectF &boxMm, const QString &text)
{
    return band.addLabel(name, boxMm, text).setBold(true);
}
