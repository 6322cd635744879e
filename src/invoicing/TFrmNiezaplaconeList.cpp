#include "TFrmNiezaplaconeList.h"

#include "CarrierInvoiceList.h"
#include "CarrierListLayout.h"
#include "CompanyData.h"

using namespace CarrierListLayout;

namespace {

constexpr double Width = 277.0;

enum ColumnIndex { Order, Number, Received, Issued, Due, Carrier, Amount, Paid, Remaining, Late,
                   ColumnCount };
constexpr Column Columns[ColumnCount] = {
    {"qrNrZlecenia", "Dotyczy zlecenia", {0, 18}},
    {"qrNumerPelny", "Numer Faktury", {18, 36}},
    {"qrDataOtrzy", " Data otrzy.", {54, 20}},
    {"qrDataWystawienia", "Data  Wyst.", {74, 20}},
    {"qrPlatneDo", "Termin Płatności", {94, 22}},
    {"qrSkrot", "Przewoźnik", {116, 55}},
    {"qrBrutto", "Kwota do zapłaty  w zł", {171, 30}, Qt::AlignRight},
    {"qrZaplacono", "Zapłacono Brutto w zł", {201, 30}, Qt::AlignRight},
    {"qrPozostalo", "Pozostało do zapłaty", {231, 30}, Qt::AlignRight},
    {"qrDni", "Sp. dni", {261, 16}, Qt::AlignRight},
};

} // namespace

TFrmNiezaplaconeList::TFrmNiezaplaconeList(Connection &connection)
    : m_connection(connection), m_report(CarrierInvoiceList::paymentsTitle())
{
    m_report.setOrientation(QPageLayout::Landscape);
    m_report.setBeforePrint([this] { qrNiezaplaconeListBeforePrint(); });
    m_report.setNeedData(PrintoutLayout::rowsOf(m_rows, m_row));
    addHeading(m_report, [this] { return m_company; }, Width);
    addColumnHeader(m_report, Columns, ColumnCount);
    buildDetail();
    buildSummary();
    addPageFooter(m_report, Width);
}

void TFrmNiezaplaconeList::qrNiezaplaconeListBeforePrint()
{
    m_company = CompanyData::load(m_connection).NAZWA;
    m_rows = CarrierInvoiceList::readPayments(m_connection);
    m_row = 0;
}

void TFrmNiezaplaconeList::buildDetail()
{
    ReportBand &band = m_report.addBand(BandType::Detail, QStringLiteral("QRBandPozycja"), Line);
    addInvoiceCells(band, Columns, [this]() -> const CarrierInvoiceRow & { return row(); });
    addCell(band, Columns[Carrier], [this] { return row().shortName; });
    addCell(band, Columns[Amount], [this] { return money(row().amount); });
    addCell(band, Columns[Paid], [this] { return money(row().paidAmount); });
    addCell(band, Columns[Remaining],
            [this] { return money(row().amount - row().paidAmount); });
    addCell(band, Columns[Late], [this] { return row().daysLate(); });
}

void TFrmNiezaplaconeList::buildSummary()
{
    const ReportSum &total
        = m_report.addSum(QStringLiteral("SumaBrutto"), [this] { return row().amount; });
    ReportBand &band = m_report.addBand(BandType::Summary, QStringLiteral("QRBandRazem"), 9);
    addTotal(band, QStringLiteral("qrRazem"), QStringLiteral("RAZEM ZŁ:"), Columns[Amount],
             [&total] { return money(total.value()); });
}
