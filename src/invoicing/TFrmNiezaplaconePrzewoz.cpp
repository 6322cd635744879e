#include "TFrmNiezaplaconePrzewoz.h"

#include "CarrierListLayout.h"
#include "CompanyData.h"
#include "Format.h"

using namespace CarrierListLayout;

namespace {

constexpr double Width = 190.0;

enum ColumnIndex { Order, Number, Received, Issued, Due, Paid, Amount, Late, ColumnCount };
constexpr Column Columns[ColumnCount] = {
    {"qrNrZlecenia", "Dotyczy zlecenia", {0, 18}},
    {"qrNumerPelny", "Numer Faktury", {18, 36}},
    {"qrDataOtrzy", " Data otrzymania", {54, 20}},
    {"qrDataWystawienia", "Data  Wystawienia", {74, 20}},
    {"qrPlatneDo", "Termin Płatności", {94, 20}},
    {"qrDataPlat", "Zapłacono Dnia", {114, 20}},
    {"qrBrutto", "Kwota do zapłaty Brutto w zł", {134, 32}, Qt::AlignRight},
    {"qrDni", "Ilość dni spóźnienia", {166, 24}, Qt::AlignRight},
};

} // namespace

TFrmNiezaplaconePrzewoz::TFrmNiezaplaconePrzewoz(Connection &connection,
                                                 const CarrierInvoiceList &list)
    : m_connection(connection), m_list(list),
      m_report(QStringLiteral("Faktur przewoźników niezapłaconych "))
{
    m_report.setTitle(m_list.title());
    m_report.setBeforePrint([this] { qrNiezaplaconeBeforePrint(); });
    m_report.setNeedData(PrintoutLayout::rowsOf(m_rows, m_row));
    addHeading(m_report, [this] { return m_company; }, Width);
    addColumnHeader(m_report, Columns, ColumnCount);
    buildGroup();
    buildDetail();
    buildSummary();
    addPageFooter(m_report, Width);
}

void TFrmNiezaplaconePrzewoz::qrNiezaplaconeBeforePrint()
{
    m_company = CompanyData::load(m_connection).NAZWA;
    m_rows = m_list.read(m_connection);
    m_row = 0;
}

void TFrmNiezaplaconePrzewoz::buildGroup()
{
    ReportGroup &group
        = m_report.addGroup(QStringLiteral("QRGroupPrzewoznik"), [this] { return row().name; });
    group.setReprintHeaderOnNewPage(true);
    ReportBand &header = group.addHeader(QStringLiteral("QRBandPrzewoznik"), 7);
    PrintoutLayout::value(header, QStringLiteral("qrPrzewoznik"), QRectF(0, 1.5, Width, 5),
                          [this] { return row().carrierHeader(); })
        .setBold(true);

    const ReportSum &sum = m_report.addSum(
        QStringLiteral("SumaPrzewoznika"), [this] { return row().amount; }, &group);
    ReportBand &footer = group.addFooter(QStringLiteral("QRBandRazem"), 7);
    addTotal(footer, QStringLiteral("qrRazem"), QStringLiteral("RAZEM ZŁ:"), Columns[Amount],
             [&sum] { return money(sum.value()); });
}

void TFrmNiezaplaconePrzewoz::buildDetail()
{
    ReportBand &band = m_report.addBand(BandType::Detail, QStringLiteral("QRBandPozycja"), Line);
    addInvoiceCells(band, Columns, [this]() -> const CarrierInvoiceRow & { return row(); });
    addCell(band, Columns[Paid], [this] { return date(row().paymentDate); });
    addCell(band, Columns[Amount], [this] { return money(row().amount); });
    addCell(band, Columns[Late], [this] { return row().daysLate(); });
}

void TFrmNiezaplaconePrzewoz::buildSummary()
{
    const ReportSum &total
        = m_report.addSum(QStringLiteral("SumaOgolem"), [this] { return row().amount; });
    ReportBand &band = m_report.addBand(BandType::Summary, QStringLiteral("QRBandOgolem"), 9);
    addTotal(band, QStringLiteral("qrOgolem"), QStringLiteral("Ogólem :"), Columns[Amount],
             [&total] { return Format::number(total.value(), u"#######,##0.00"); });
}
