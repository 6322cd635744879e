#include "Format.h"
#include "Report.h"
#include "ReportPainter.h"
#include "ShotBook.h"
#include "Shots.h"

#include <QImage>
#include <QLabel>
#include <QPainter>

namespace {

struct SampleOrder
{
    const char *carrier;
    int number;
    const char *route;
    double cost;
};

constexpr SampleOrder Orders[] = {
    {"EUROCARGO", 112, "Łódź - Gdańsk", 1450.00},    {"EUROCARGO", 118, "Poznań - Kraków", 1780.50},
    {"EUROCARGO", 131, "Łódź - Szczecin", 2105.00},  {"TIR-MAX", 114, "Wrocław - Białystok", 2640.00},
    {"TIR-MAX", 127, "Katowice - Gdynia", 2290.75},  {"ŚLĄSK-SPED", 120, "Opole - Warszawa", 1320.00},
    {"ŚLĄSK-SPED", 125, "Kielce - Toruń", 1198.40},  {"ŚLĄSK-SPED", 133, "Rzeszów - Poznań", 2410.00},
};

// A one-page statement of carriers' costs, grouped by carrier: the kind of
// report the module prints, rendered the way the preview shows it.
std::unique_ptr<QWidget> sampleReportPage()
{
    Report report(QStringLiteral("Koszty przewoźników"));
    std::size_t row = 0;
    bool started = false;
    report.setBeforePrint([&] { row = 0; started = false; });
    report.setNeedData([&] {
        if (started)
            ++row;
        started = true;
        return row < std::size(Orders);
    });
    const auto current = [&]() -> const SampleOrder & { return Orders[row]; };
    const auto money = [](const QVariant &v) -> QString { return Format::number(v.toDouble(), u"#,##0.00"); };

    ReportBand &header = report.addBand(BandType::PageHeader, QStringLiteral("QRBandNaglowek"), 16);
    header.addLabel(QStringLiteral("qrTytul"), QRectF(0, 0, 190, 8), QStringLiteral("Zestawienie kosztów przewoźników"))
        .setPointSize(13).setBold(true).setAlignment(Qt::AlignHCenter);
    header.addLabel(QStringLiteral("qrOkres"), QRectF(0, 8, 190, 6), QStringLiteral("Okres: 2026-11-01 - 2026-11-22"))
        .setAlignment(Qt::AlignHCenter);
    ReportBand &columns = report.addBand(BandType::ColumnHeader, QStringLiteral("QRBandKolumny"), 7);
    columns.addLabel(QStringLiteral("qrNr"), QRectF(0, 0, 30, 6), QStringLiteral("Numer")).setBold(true);
    columns.addLabel(QStringLiteral("qrTrasa"), QRectF(32, 0, 100, 6), QStringLiteral("Trasa")).setBold(true);
    columns.addLabel(QStringLiteral("qrKoszt"), QRectF(140, 0, 50, 6), QStringLiteral("Koszt"))
        .setBold(true).setAlignment(Qt::AlignRight);
    columns.addLine(QPointF(0, 6.5), QPointF(190, 6.5));

    ReportGroup &carrier = report.addGroup(QStringLiteral("QRGroupPrzewoznik"),
                                           [&] { return QString::fromUtf8(current().carrier); });
    carrier.addHeader(QStringLiteral("QRBandPrzewoznik"), 7)
        .addLabel(QStringLiteral("qrPrzewoznik"), QRectF(0, 1, 190, 6))
        .setValue([&] { return QString::fromUtf8(current().carrier); })
        .setBold(true);
    ReportSum &perCarrier = report.addSum(QStringLiteral("sumaPrzewoznik"), [&] { return current().cost; }, &carrier);
    ReportSum &total = report.addSum(QStringLiteral("suma"), [&] { return current().cost; });

    ReportBand &detail = report.addBand(BandType::Detail, QStringLiteral("QRBandPozycja"), 6);
    detail.addLabel(QStringLiteral("qrNumer"), QRectF(0, 0, 30, 6))
        .setValue([&] { return QStringLiteral("%1").arg(current().number, 8, 10, QLatin1Char('0')); });
    detail.addLabel(QStringLiteral("qrTrasa"), QRectF(32, 0, 100, 6))
        .setValue([&] { return QString::fromUtf8(current().route); });
    detail.addLabel(QStringLiteral("qrKoszt"), QRectF(140, 0, 50, 6))
        .setValue([&] { return current().cost; }).setFormatter(money).setAlignment(Qt::AlignRight);

    ReportBand &footer = carrier.addFooter(QStringLiteral("QRBandSumaPrzewoznika"), 8);
    footer.addLabel(QStringLiteral("qrRazemPrzewoznik"), QRectF(90, 1, 48, 6), QStringLiteral("Razem przewoźnik:"))
        .setAlignment(Qt::AlignRight);
    footer.addLabel(QStringLiteral("qrSumaPrzewoznik"), QRectF(140, 1, 50, 6))
        .setValue(perCarrier.valueFunction()).setFormatter(money).setAlignment(Qt::AlignRight)
        .setFrame(Qt::TopEdge);

    ReportBand &summary = report.addBand(BandType::Summary, QStringLiteral("QRBandPodsumowanie"), 10);
    summary.addLabel(QStringLiteral("qrRazem"), QRectF(90, 2, 48, 6), QStringLiteral("Razem:"))
        .setBold(true).setAlignment(Qt::AlignRight);
    summary.addLabel(QStringLiteral("qrSuma"), QRectF(140, 2, 50, 6))
        .setValue(total.valueFunction()).setFormatter(money).setBold(true).setAlignment(Qt::AlignRight);
    ReportBand &pageFooter = report.addBand(BandType::PageFooter, QStringLiteral("QRBandStopka"), 8);
    pageFooter.addLabel(QStringLiteral("qrStrona"), QRectF(0, 2, 190, 5))
        .setPageText([](int page, int pages) { return QStringLiteral("Strona %1 z %2").arg(page).arg(pages); })
        .setAlignment(Qt::AlignRight);

    const std::vector<ReportPage> &pages = report.prepare();
    constexpr double dotsPerMm = 3.2;
    QImage image(int(210 * dotsPerMm), int(297 * dotsPerMm), QImage::Format_RGB32);
    image.fill(Qt::white);
    {
        QPainter painter(&image);
        ReportPainter::paintPage(painter, pages.front(), dotsPerMm);
    }
    auto label = std::make_unique<QLabel>();
    label->setPixmap(QPixmap::fromImage(image));
    label->resize(image.size());
    return label;
}

} // namespace

void addReportShots(ShotBook &book)
{
    book.add(QStringLiteral("raportPrzyklad"), [](ShotContext &) { return sampleReportPage(); });
}
