#include "CarrierListLayout.h"

#include "DateTime.h"
#include "Format.h"

#include <QDate>

using namespace PrintoutLayout;

void CarrierListLayout::addHeading(Report &report, std::function<QString()> companyName,
                                   double widthMm)
{
    ReportBand &band = report.addBand(BandType::Title, QStringLiteral("QRBandTytul"), 17);
    value(band, QStringLiteral("qrFirma"), QRectF(0, 0, widthMm - 50, 6), std::move(companyName))
        .setPointSize(10)
        .setBold(true);
    const auto printDay = []() -> QString {
        return QStringLiteral("Data wydruku: ") + Format::date(QDate::currentDate());
    };
    value(band, QStringLiteral("qrDataWydruku"), QRectF(widthMm - 50, 0, 50, 6), printDay)
        .setAlignment(Qt::AlignRight);
    value(band, QStringLiteral("qrTytul"), QRectF(0, 8, widthMm, 7),
          [&report] { return report.title(); })
        .setPointSize(12)
        .setBold(true)
        .setAlignment(Qt::AlignHCenter);
}

void CarrierListLayout::addColumnHeader(Report &report, const Column *columns, int count)
{
    ReportBand &band = report.addBand(BandType::ColumnHeader, QStringLiteral("QRBandKolumny"), 9);
    for (int i = 0; i < count; ++i) {
        const Column &column = columns[i];
        headerCell(band, QStringLiteral("lbl") + QLatin1String(column.name).mid(2),
                   column.span.box(9), QString::fromUtf8(column.caption))
            .setPointSize(7);
    }
}

ReportLabel &CarrierListLayout::addCell(ReportBand &band, const Column &column, Text text)
{
    const ColumnSpan &span = column.span;
    return value(band, QString::fromLatin1(column.name),
                 QRectF(span.x + 1, 0, span.width - 2, band.height()), std::move(text))
        .setAlignment(column.alignment | Qt::AlignVCenter);
}

void CarrierListLayout::addInvoiceCells(ReportBand &band, const Column *columns,
                                        std::function<const CarrierInvoiceRow &()> row)
{
    addCell(band, columns[0], [row] { return QString::number(row().orderNumber); });
    addCell(band, columns[1], [row] { return row().number; });
    addCell(band, columns[2], [row] { return date(row().received); });
    addCell(band, columns[3], [row] { return date(row().issued); });
    addCell(band, columns[4], [row] { return date(row().due); });
}

void CarrierListLayout::addTotal(ReportBand &band, const QString &name, const QString &caption,
                                 const Column &amountColumn, std::function<QString()> amount)
{
    const ColumnSpan &span = amountColumn.span;
    const double height = band.height();
    band.addLine(QPointF(span.x, 0.5), QPointF(span.x + span.width, 0.5));
    PrintoutLayout::caption(band, QStringLiteral("lbl") + name.mid(2),
                            QRectF(span.x - 40, 1, 39, height - 1), caption)
        .setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    value(band, name, QRectF(span.x + 1, 1, span.width - 2, height - 1), std::move(amount))
        .setBold(true)
        .setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void CarrierListLayout::addPageFooter(Report &report, double widthMm)
{
    ReportBand &band = report.addBand(BandType::PageFooter, QStringLiteral("QRBandStopka"), 7);
    band.addLabel(QStringLiteral("qrStrona"), QRectF(widthMm - 60, 2, 60, Line))
        .setPageText([](int page, int pages) {
            return QStringLiteral("Strona %1 z %2").arg(page).arg(pages);
        })
        .setPointSize(7)
        .setAlignment(Qt::AlignRight);
}

QString CarrierListLayout::money(double amount)
{
    return Format::number(amount, u"#,##0.00");
}

QString CarrierListLayout::date(DateTime value)
{
    return Format::date(value);
}
