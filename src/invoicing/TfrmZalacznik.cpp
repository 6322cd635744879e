#include "TfrmZalacznik.h"

#include "Format.h"
#include "PrintoutLayout.h"

using namespace PrintoutLayout;

namespace {

constexpr double Line = 4.5;
constexpr double SmallPoints = 7.0;

struct Column
{
    const char *caption;
    ColumnSpan span;
};

// The thirteen columns across the 277 mm of a lying sheet.
enum ColumnIndex { Number, Vehicle, Amount, Quantities, Rates, From, Via, To, Dates, Goods,
                   DeliveryNote, Tax, Total, ColumnCount };
constexpr Column Columns[ColumnCount] = {
    {"Nr.zlecenia", {0, 16}},     {"Nr.rejestr", {16, 20}},
    {"Kwota", {36, 18}},          {"Kilometry", {54, 30}},
    {"Stawka", {84, 30}},         {"Miejsce Zał.", {114, 22}},
    {"Przez", {136, 18}},         {"Miejsce rozł.", {154, 22}},
    {"Data załadunku/rozładunku", {176, 30}}, {"Towar", {206, 28}},
    {"NrWZ", {234, 11}},          {"Podatek", {245, 14}},
    {"Razem", {259, 18}},
};

QString money(double value)
{
    return Format::number(value, u"##0.00");
}

} // namespace

TfrmZalacznik::TfrmZalacznik(Connection &connection, int invoiceKey)
    : m_connection(connection), m_invoiceKey(invoiceKey),
      m_report(QStringLiteral("Załącznik do faktury"))
{
    m_report.setOrientation(QPageLayout::Landscape);
    m_report.setBeforePrint([this] { qrZalacznikBeforePrint(); });
    m_report.setNeedData(rowsOf(m_rows.rows, m_row));
    buildTitle();
    buildColumnHeader();
    buildDetail();
    buildSummary();
    buildPageFooter();
}

void TfrmZalacznik::qrZalacznikBeforePrint()
{
    m_rows = AttachmentRows::load(m_connection, m_invoiceKey);
    m_row = 0;
    m_report.setTitle(QStringLiteral("Załącznik do faktury ") + m_rows.invoiceNumber);
}

void TfrmZalacznik::buildTitle()
{
    ReportBand &band = m_report.addBand(BandType::Title, QStringLiteral("QRBandTytul"), 12);
    caption(band, QStringLiteral("lblTytul"), QRectF(0, 0, 168, 8),
            QStringLiteral("Zestawienie zbiorcze do rachunku numer :"))
        .setPointSize(12)
        .setAlignment(Qt::AlignRight);
    value(band, QStringLiteral("qrNumer"), QRectF(170, 0, 107, 8),
          [this] { return m_rows.invoiceNumber; })
        .setPointSize(12)
        .setBold(true);
}

void TfrmZalacznik::buildColumnHeader()
{
    ReportBand &band = m_report.addBand(BandType::ColumnHeader, QStringLiteral("QRBandKolumny"), 9);
    for (int index = 0; index < ColumnCount; ++index) {
        const ColumnSpan &column = Columns[index].span;
        headerCell(band, QStringLiteral("lblKolumna%1").arg(index + 1), column.box(9),
                   QString::fromUtf8(Columns[index].caption))
            .setPointSize(SmallPoints);
    }
    // The markers of the legend printed under the table.
    for (const auto &[index, marker] : {std::pair{Quantities, "(1)"}, {Rates, "(2)"}}) {
        const ColumnSpan &column = Columns[index].span;
        band.addLabel(QStringLiteral("lblOdnosnik%1").arg(marker[1]),
                      QRectF(column.x + column.width - 6, 0.6, 5.5, 3), QString::fromUtf8(marker))
            .setPointSize(6)
            .setAlignment(Qt::AlignRight | Qt::AlignTop);
    }
}

void TfrmZalacznik::buildDetail()
{
    ReportBand &band = m_report.addBand(BandType::Detail, QStringLiteral("QRBandPozycja"), Line);
    const std::pair<const char *, QString AttachmentRow::*> cells[ColumnCount] = {
        {"qrNrzlec", &AttachmentRow::number},        {"qrNrrej", &AttachmentRow::vehicle},
        {"qrKwota", &AttachmentRow::amount},         {"qrKilometry", &AttachmentRow::quantities},
        {"qrStawkaZaKM", &AttachmentRow::rates},     {"qrMiejsceZal", &AttachmentRow::from},
        {"QRLPrzez", &AttachmentRow::via},           {"qrMRoz", &AttachmentRow::to},
        {"qrDaty", &AttachmentRow::dates},           {"qrTowar", &AttachmentRow::goods},
        {"lbWZ", &AttachmentRow::deliveryNote},      {"qrPodatek", &AttachmentRow::tax},
        {"qrRazem", &AttachmentRow::total},
    };
    for (int index = 0; index < ColumnCount; ++index) {
        const auto &[name, field] = cells[index];
        const bool number = index == Amount || index == Tax || index == Total;
        cell(band, QString::fromLatin1(name), Columns[index].span.box(Line),
             [this, field = field] { return row().*field; },
             number ? Qt::AlignRight : Qt::AlignLeft)
            .setPointSize(SmallPoints);
    }
}

void TfrmZalacznik::buildSummary()
{
    ReportBand &band
        = m_report.addBand(BandType::Summary, QStringLiteral("QRBandPodsumowanie"), 22);
    caption(band, QStringLiteral("lblRazem"), QRectF(0, 1, Columns[Amount].span.x - 1, Line),
            QStringLiteral("RAZEM:"))
        .setAlignment(Qt::AlignRight);
    for (const auto &[index, name, total] :
         {std::tuple{Amount, "qrSumaKwota", &AttachmentRows::amount},
          {Tax, "qrSumaPodatek", &AttachmentRows::tax},
          {Total, "qrSumaRazem", &AttachmentRows::total}}) {
        const ColumnSpan &column = Columns[index].span;
        value(band, QString::fromLatin1(name), QRectF(column.x, 1, column.width - 1, Line),
              [this, total = total] { return money(m_rows.*total); })
            .setBold(true)
            .setAlignment(Qt::AlignRight);
    }
    const std::pair<const char *, const char *> legend[] = {
        {"(1)", "Kilometry ładowne/ tony/godziny"},
        {"(2)", "Stawka za kilometr ładowny/za tonę/za godzinę"}};
    double y = 9;
    for (const auto &[marker, text] : legend) {
        band.addLabel(QStringLiteral("lblLegenda%1").arg(marker[1]), QRectF(0, y, 6, Line),
                      QString::fromUtf8(marker))
            .setPointSize(SmallPoints);
        band.addLabel(QStringLiteral("lblOpis%1").arg(marker[1]), QRectF(6, y, 120, Line),
                      QString::fromUtf8(text))
            .setPointSize(SmallPoints);
        y += Line;
    }
}

void TfrmZalacznik::buildPageFooter()
{
    ReportBand &band = m_report.addBand(BandType::PageFooter, QStringLiteral("QRBandStopka"), 22);
    signature(band, QStringLiteral("lblOdbior"), QRectF(0, 2, 85, 14),
              QStringLiteral("Imię, nazwisko i podpis osoby upoważnionej do odbioru faktury"));
    signature(band, QStringLiteral("lblWystawienie"), QRectF(96, 2, 85, 14),
              QStringLiteral("Imię, nazwisko i podpis osoby upoważnionej do wystawienia faktury"));
    signature(band, QStringLiteral("lblZatwierdzil"), QRectF(192, 2, 85, 14),
              QStringLiteral("Zatwierdził"));
    band.addLabel(QStringLiteral("qrStrona"), QRectF(192, 17, 85, Line))
        .setPageText([](int page, int pages) {
            return QStringLiteral("Strona %1 z %2").arg(page).arg(pages);
        })
        .setPointSize(SmallPoints)
        .setAlignment(Qt::AlignRight);
}
