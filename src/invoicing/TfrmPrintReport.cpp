#include "TfrmPrintReport.h"

#include "Format.h"
#include "PrintoutLayout.h"

using namespace PrintoutLayout;

namespace {

constexpr ColumnSpan Number{0, 10}, Name{10, 70}, Quantity{80, 22}, Unit{102, 14}, Adr{116, 24},
    Description{140, 50};

// A caption over a text of several lines; name is what follows "lbl" and
// "qr" in the labels' names.
struct Block
{
    QString name;
    QString caption;
    Text text;
};

// Two blocks side by side; the band grows to the longer of the two.
void twoBlocks(Report &report, const QString &bandName, const Block &left, const Block &right)
{
    ReportBand &band = report.addBand(BandType::Title, bandName, 2 * Row + 2);
    for (const auto &[x, block] : {std::pair{0.0, left}, {Right, right}}) {
        caption(band, QStringLiteral("lbl") + block.name, QRectF(x, 1, Half, Row), block.caption);
        value(band, QStringLiteral("qr") + block.name, QRectF(x, 1 + Row, Half, Row), block.text)
            .setWordWrap(true)
            .setStretch(true)
            .setAlignment(Qt::AlignLeft | Qt::AlignTop);
    }
}

} // namespace

TfrmPrintReport::TfrmPrintReport(Connection &connection, int orderKey)
    : m_connection(connection), m_orderKey(orderKey),
      m_report(QStringLiteral("Zlecenie transportowe"))
{
    m_report.setBeforePrint([this] { qrZlecenieBeforePrint(); });
    m_report.setNeedData(rowsOf(m_order.goods, m_goods));
    buildHeader();
    buildParties();
    buildPlaces();
    buildVehicle();
    buildGoods();
    buildFreight();
    buildRemarks();
    buildConditions();
    buildSignatures();
}

void TfrmPrintReport::qrZlecenieBeforePrint()
{
    m_order = TransportOrder::load(m_connection, m_orderKey);
    m_goods = 0;
    m_report.setTitle(m_order.title);
}

void TfrmPrintReport::buildHeader()
{
    const TransportOrder &t = m_order;
    ReportBand &band = m_report.addBand(BandType::Title, QStringLiteral("QRBandNaglowek"), 16);
    value(band, QStringLiteral("qrTytul"), QRectF(0, 0, 190, 9), [&t] { return t.title; })
        .setPointSize(15)
        .setBold(true)
        .setAlignment(Qt::AlignHCenter);
    value(band, QStringLiteral("qrZDnia"), QRectF(0, 9, 190, Row), [&t] { return t.dated; })
        .setPointSize(10)
        .setAlignment(Qt::AlignHCenter);
    band.addLine(QPointF(0, 15.5), QPointF(190, 15.5), 0.3);
}

void TfrmPrintReport::buildParties()
{
    const TransportOrder &t = m_order;
    twoBlocks(m_report, QStringLiteral("QRBandStrony"),
              {QStringLiteral("Zleceniodawca"), QStringLiteral("Zleceniodawca:"),
               [&t] { return t.orderer; }},
              {QStringLiteral("Przewoznik"), QStringLiteral("Przewoźnik:"),
               [&t] { return t.carrier; }});
}

void TfrmPrintReport::buildPlaces()
{
    const TransportOrder &t = m_order;
    twoBlocks(m_report, QStringLiteral("QRBandMiejsca"),
              {QStringLiteral("Zaladunek"), QStringLiteral("Miejsce załadunku:"),
               [&t] { return t.loading; }},
              {QStringLiteral("Rozladunek"), QStringLiteral("Miejsce rozładunku:"),
               [&t] { return t.unloading; }});
}

void TfrmPrintReport::buildVehicle()
{
    const TransportOrder &t = m_order;
    ReportBand &band = m_report.addBand(BandType::Title, QStringLiteral("QRBandTrasa"), 27);
    band.addLine(QPointF(0, 1), QPointF(190, 1), 0.1);
    const std::tuple<double, double, const char *, QString, Text> fields[] = {
        {0, 2, "Trasa:", QStringLiteral("qrTrasa"), [&t] { return t.route; }},
        {Right, 2, "Odległość:", QStringLiteral("qrOdleglosc"), [&t] { return t.distance; }},
        {0, 7, "Pojazd:", QStringLiteral("qrPojazd"), [&t] { return t.vehicle; }},
        {Right, 7, "Naczepa:", QStringLiteral("qrNaczepa"), [&t] { return t.trailer; }},
        {0, 12, "Kierowca:", QStringLiteral("qrKierowca"), [&t] { return t.driver; }},
        {Right, 12, "Telefon:", QStringLiteral("qrTelefon"), [&t] { return t.phone; }},
    };
    for (const auto &[x, y, text, name, shown] : fields) {
        caption(band, QStringLiteral("lbl") + name.mid(2), QRectF(x, y, 20, Row),
                QString::fromUtf8(text));
        value(band, name, QRectF(x + 20, y, Half - 20, Row), shown);
    }
    caption(band, QStringLiteral("lblTowar"), QRectF(0, 20, 190, Row), QStringLiteral("Towar:"))
        .setPointSize(9);
}

void TfrmPrintReport::buildGoods()
{
    ReportBand &header
        = m_report.addBand(BandType::ColumnHeader, QStringLiteral("QRBandKolumny"), 6);
    const std::pair<ColumnSpan, const char *> captions[] = {
        {Number, "Lp."}, {Name, "Nazwa towaru"}, {Quantity, "Ilość"}, {Unit, "Jm"},
        {Adr, "ADR"}, {Description, "Opis"}};
    int index = 0;
    for (const auto &[column, text] : captions)
        headerCell(header, QStringLiteral("lblKolumna%1").arg(++index), column.box(6),
                   QString::fromUtf8(text));

    ReportBand &band = m_report.addBand(BandType::Detail, QStringLiteral("QRBandTowar"), Row);
    cell(band, QStringLiteral("qrLp"), Number.box(Row),
         [this] { return QString::number(m_goods); }, Qt::AlignRight);
    cell(band, QStringLiteral("qrNazwa"), Name.box(Row), [this] { return goods().name; });
    cell(band, QStringLiteral("qrIlosc"), Quantity.box(Row),
         [this] { return Format::number(goods().quantity, u"#,##0.###"); }, Qt::AlignRight);
    cell(band, QStringLiteral("qrJm"), Unit.box(Row), [this] { return goods().unit; },
         Qt::AlignHCenter);
    cell(band, QStringLiteral("qrADR"), Adr.box(Row), [this] { return goods().adr; });
    cell(band, QStringLiteral("qrOpis"), Description.box(Row),
         [this] { return goods().description; });
}

void TfrmPrintReport::buildFreight()
{
    const TransportOrder &t = m_order;
    ReportBand &band = m_report.addBand(BandType::Summary, QStringLiteral("QRBandFracht"), 30);
    caption(band, QStringLiteral("lblPalety"), QRectF(0, 1, 20, Row), QStringLiteral("Palety:"));
    value(band, QStringLiteral("qrPalety"), QRectF(20, 1, 40, Row), [&t] { return t.pallets; });
    caption(band, QStringLiteral("lblWaga"), QRectF(Right, 1, 20, Row), QStringLiteral("Waga:"));
    value(band, QStringLiteral("qrWaga"), QRectF(Right + 20, 1, 40, Row),
          [&t] { return t.weight; });
    band.addLine(QPointF(0, 7), QPointF(190, 7), 0.1);
    caption(band, QStringLiteral("lblFracht"), QRectF(0, 8, 40, 6), QStringLiteral("Fracht:"))
        .setPointSize(10);
    value(band, QStringLiteral("qrFracht"), QRectF(40, 8, 150, 6), [&t] { return t.freight; })
        .setPointSize(10)
        .setBold(true);
    band.addLabel(QStringLiteral("lblSlownie"), QRectF(0, 14, 40, Row),
                  QStringLiteral("Słownie złotych:"));
    value(band, QStringLiteral("qrSlownie"), QRectF(40, 14, 150, Row),
          [&t] { return t.freightInWords; })
        .setWordWrap(true);
    caption(band, QStringLiteral("lblTerminPlatnosci"), QRectF(0, 19, 40, Row),
            QStringLiteral("Termin płatności:"));
    value(band, QStringLiteral("qrTerminPlatnosci"), QRectF(40, 19, 150, Row),
          [&t] { return t.paymentTerm; });
    caption(band, QStringLiteral("lblZlecenieKlienta"), QRectF(0, 24, 40, Row),
            QStringLiteral("Nr zlecenia klienta:"));
    value(band, QStringLiteral("qrZlecenieKlienta"), QRectF(40, 24, 150, Row),
          [&t] { return t.clientOrderNumber; });
}

void TfrmPrintReport::buildRemarks()
{
    const TransportOrder &t = m_order;
    ReportBand &band = m_report.addBand(BandType::Summary, QStringLiteral("QRBandUwagi"), 2 * Row);
    caption(band, QStringLiteral("lblUwagi"), QRectF(0, 0, 40, Row), QStringLiteral("Uwagi:"));
    value(band, QStringLiteral("qrUwagi"), QRectF(40, 0, 150, Row), [&t] { return t.remarks; })
        .setWordWrap(true)
        .setStretch(true)
        .setAlignment(Qt::AlignLeft | Qt::AlignTop);
    band.setBeforePrint([&t](ReportBand &, bool &print) { print = !t.remarks.isEmpty(); });
}

void TfrmPrintReport::buildConditions()
{
    ReportBand &band = m_report.addBand(BandType::Summary, QStringLiteral("QRBandWarunki"), 12);
    band.addLine(QPointF(0, 1), QPointF(190, 1), 0.1);
    caption(band, QStringLiteral("lblWarunki"), QRectF(0, 2, 190, Row),
            QStringLiteral("Warunki zlecenia:"));
    band.addLabel(QStringLiteral("qrWarunki"), QRectF(0, 2 + Row, 190, Row),
                  TransportOrder::conditions().join(u'\n'))
        .setPointSize(7)
        .setWordWrap(true)
        .setStretch(true)
        .setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

void TfrmPrintReport::buildSignatures()
{
    const TransportOrder &t = m_order;
    ReportBand &band = m_report.addBand(BandType::Summary, QStringLiteral("QRBandPodpisy"), 30);
    signature(band, QStringLiteral("lblPodpisZleceniodawcy"), QRectF(0, 8, 85, 20),
              QStringLiteral("Zleceniodawca (podpis i pieczęć)"),
              [&t] { return t.issuedBy; });
    signature(band, QStringLiteral("lblPodpisPrzewoznika"), QRectF(105, 8, 85, 20),
              QStringLiteral("Przewoźnik - przyjęcie zlecenia (podpis i pieczęć)"),
              [] { return QString(); });
}
