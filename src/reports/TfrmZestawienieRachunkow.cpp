#include "TfrmZestawienieRachunkow.h"

#include "CompanyData.h"
#include "Format.h"
#include "ReportColumns.h"

using namespace ReportColumns;

namespace {

constexpr double Width = 277.0;

enum ColumnIndex {
    Lp, Nrzlec, Nrrej, Kwota, Miesiac, Kontrahent, Datafakt, OplataSkarb, Podatek, Razem,
    DataPlatn, ColumnCount
};
constexpr Column Columns[ColumnCount] = {
    {"qrLp", "L.p.", 0, 10, Qt::AlignRight},
    {"qrNrzlec", "Nr.rachunku", 10, 30},
    {"qrNrrej", "Nr.rejestr", 40, 24},
    {"qrKwota", "Netto", 64, 24, Qt::AlignRight},
    {"qrMiesiac", "Mc.sprzedaży", 88, 20, Qt::AlignHCenter},
    {"qrKontrahent", "Kontrahent", 108, 60},
    {"qrDatafakt", "Data fakt.", 168, 20},
    {"qrOplataSkarb", "Opł.sk.", 188, 20, Qt::AlignRight},
    {"qrPodatek", "Podatek", 208, 22, Qt::AlignRight},
    {"qrRazem", "Brutto", 230, 25, Qt::AlignRight},
    {"qrDataPlatn", "Data płatn.", 255, 22},
};

QString money(double amount)
{
    return Format::number(amount, u"##0.00");
}

} // namespace

TfrmZestawienieRachunkow::TfrmZestawienieRachunkow(Connection &connection)
    : m_report(QStringLiteral("Zestawienie zbiorcze do rachunku numer :"))
{
    m_report.setOrientation(QPageLayout::Landscape);
    m_report.setBeforePrint([this] { qrZestawienieBeforePrint(); });
    m_report.setNeedData([this] { return qrZestawienieNeedData(); });
    buildHeader();
    buildDetail();
    buildSummary();
    FormCreate(connection);
}

void TfrmZestawienieRachunkow::FormCreate(Connection &connection)
{
    const CompanyData company = CompanyData::load(connection);
    m_company = company.NAZWA + QLatin1Char(' ') + company.ADRES + QLatin1Char(' ') + company.KOD
        + QLatin1Char(' ') + company.MIEJSCOWOSC;
    qrZestawienieBeforePrint();
}

void TfrmZestawienieRachunkow::qrZestawienieBeforePrint()
{
    m_netto = m_brutto = m_vat = m_oplataSkarbowa = 0.0;
    m_row = 0;
}

bool TfrmZestawienieRachunkow::qrZestawienieNeedData()
{
    if (!m_records || m_row >= m_records->size())
        return false;
    ++m_row;
    return true;
}

void TfrmZestawienieRachunkow::QRBand2BeforePrint()
{
    const TPozycjaZestawienia &record = current();
    m_netto += record.Netto;
    m_brutto += record.Brutto;
    m_vat += record.Vat;
    m_oplataSkarbowa += record.OplataSkarbowa;
}

void TfrmZestawienieRachunkow::buildHeader()
{
    ReportBand &header = m_report.addBand(BandType::PageHeader, QStringLiteral("QRBand1"), 16);
    header.addLabel(QStringLiteral("QRLabel29"), QRectF(0, 0, Width, 6))
        .setValue([this] { return m_company; })
        .setPointSize(10)
        .setBold(true);
    header.addLabel(QStringLiteral("qrTytul"), QRectF(0, 8, Width, 7))
        .setValue([this] { return m_report.title(); })
        .setPointSize(11)
        .setBold(true)
        .setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);

    ReportBand &heads = m_report.addBand(BandType::ColumnHeader, QStringLiteral("QRBand3"), 7);
    addHeads(heads, Columns, Width);
}

void TfrmZestawienieRachunkow::buildDetail()
{
    ReportBand &band = m_report.addBand(BandType::Detail, QStringLiteral("QRBand2"), Line);
    band.setBeforePrint([this](ReportBand &, bool &) { QRBand2BeforePrint(); });
    addCell(band, Columns[Lp], [this] { return QString::number(m_row); });
    addCell(band, Columns[Nrzlec], [this] { return current().NumerPelny; });
    addCell(band, Columns[Nrrej], [this] { return current().Pojazd; });
    addCell(band, Columns[Kwota], [this] { return money(current().Netto); });
    addCell(band, Columns[Miesiac], [this] {
        return QStringLiteral("%1").arg(current().DataSprzedazy.date().month(), 2, 10,
                                        QLatin1Char('0'));
    });
    addCell(band, Columns[Kontrahent], [this] { return current().Kontrahent; });
    addCell(band, Columns[Datafakt], [this] { return Format::date(current().DataWystawienia); });
    addCell(band, Columns[OplataSkarb], [this] { return money(current().OplataSkarbowa); });
    addCell(band, Columns[Podatek], [this] { return money(current().Vat); });
    addCell(band, Columns[Razem], [this] { return money(current().Brutto); });
    addCell(band, Columns[DataPlatn], [this] { return Format::date(current().DataPlatnosci); });
}

void TfrmZestawienieRachunkow::buildSummary()
{
    ReportBand &band = m_report.addBand(BandType::Summary, QStringLiteral("QRBand4"), 8);
    band.addLine(QPointF(0, 0.5), QPointF(Width, 0.5));
    const Column &first = Columns[Kwota];
    addCaption(band, QStringLiteral("QRLabelRazem"),
               QRectF(first.x - 40, 1, 39, band.height() - 1), QStringLiteral("RAZEM:"))
        .setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    const std::pair<ColumnIndex, const double *> sums[] = {
        {Kwota, &m_netto}, {Podatek, &m_vat}, {OplataSkarb, &m_oplataSkarbowa}, {Razem, &m_brutto}};
    for (const auto &[index, sum] : sums) {
        const Column &column = Columns[index];
        band.addLabel(QStringLiteral("qrSuma") + QLatin1String(column.name).mid(2),
                      QRectF(column.x + 0.8, 1, column.width - 1.6, band.height() - 1))
            .setValue([sum] { return money(*sum); })
            .setBold(true)
            .setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
}
