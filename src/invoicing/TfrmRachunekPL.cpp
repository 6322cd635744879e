#include "TfrmRachunekPL.h"

#include "Format.h"
#include "InvoiceData.h"
#include "PrintoutLayout.h"

using namespace PrintoutLayout;

namespace {

constexpr ColumnSpan Name{0, 62}, Unit{62, 12}, Quantity{74, 14}, Pkwiu{88, 14}, Price{102, 20},
    Net{122, 20}, Rate{142, 12}, Vat{154, 17}, Gross{171, 19};

QString money(double amount)
{
    return Format::number(amount, u"#,##0.00");
}

} // namespace

TfrmRachunekPL::TfrmRachunekPL(Connection &connection, int invoiceKey, bool perKilometre)
    : m_connection(connection), m_invoiceKey(invoiceKey), m_perKilometre(perKilometre),
      m_report(QStringLiteral("Faktura"))
{
    m_report.setBeforePrint([this] { qrRachunekPLBeforePrint(); });
    m_report.setNeedData(rowsOf(m_printout.lines, m_line));
    buildTitle();
    buildOrderBlock();
    buildColumnHeader();
    buildDetail();
    buildSummary();
    buildPageFooter();
}

void TfrmRachunekPL::qrRachunekPLBeforePrint()
{
    m_printout = InvoicePrintout::of(InvoiceData::load(m_connection, m_invoiceKey), m_perKilometre);
    m_line = 0;
    m_report.setTitle(m_printout.title);
}

void TfrmRachunekPL::buildTitle()
{
    const InvoicePrintout &p = m_printout;
    ReportBand &band = m_report.addBand(BandType::Title, QStringLiteral("QRBandTytul"), 80);
    value(band, QStringLiteral("qrMiejsceData"), QRectF(100, 0, 90, Row),
          [&p] { return p.placeAndDate; })
        .setAlignment(Qt::AlignRight);
    value(band, QStringLiteral("qrTytul"), QRectF(0, 7, 190, 8), [&p] { return p.title; })
        .setPointSize(14)
        .setBold(true)
        .setAlignment(Qt::AlignHCenter);
    band.addLabel(QStringLiteral("qrOryginal"), QRectF(0, 15, 190, Row),
                  QStringLiteral("ORYGINAŁ / KOPIA"))
        .setPointSize(9)
        .setAlignment(Qt::AlignHCenter);
    buildParties(band);
    band.addLine(QPointF(0, 60), QPointF(190, 60));

    const QString captions[] = {QStringLiteral("Data sprzedaży:"),
                                QStringLiteral("Sposób zapłaty:"),
                                QStringLiteral("Termin zapłaty:")};
    const PrintoutLayout::Text values[] = {[&p] { return p.saleDate; },
                                           [&p] { return p.paymentType; },
                                           [&p] { return p.dueDate; }};
    const QString names[] = {QStringLiteral("qrDataSprzedazy"), QStringLiteral("qrSposobZaplaty"),
                             QStringLiteral("qrTerminZaplaty")};
    for (int i = 0; i < 3; ++i) {
        const double y = 62 + i * Row;
        caption(band, QStringLiteral("lbl") + names[i].mid(2), QRectF(0, y, 28, Row), captions[i]);
        value(band, names[i], QRectF(28, y, 65, Row), values[i]);
    }

    ReportBand &remarks = m_report.addBand(BandType::Title, QStringLiteral("QRBandUwagi"), 6);
    value(remarks, QStringLiteral("qrUwagi"), QRectF(0, 0.5, 190, Row), [&p] { return p.remarks; })
        .setWordWrap(true)
        .setStretch(true);
    remarks.setBeforePrint([&p](ReportBand &, bool &print) { print = !p.remarks.isEmpty(); });
}

void TfrmRachunekPL::buildParties(ReportBand &band)
{
    const InvoicePrintout &p = m_printout;
    caption(band, QStringLiteral("lblSprzedawca"), QRectF(0, 23, Half, Row),
            QStringLiteral("SPRZEDAWCA:"));
    caption(band, QStringLiteral("lblNabywca"), QRectF(Right, 23, Half, Row),
            QStringLiteral("NABYWCA:"));
    for (const auto &[name, x, text] :
         {std::tuple{QStringLiteral("qrSprzedawca"), 0.0, Text([&p] { return p.sellerName; })},
          {QStringLiteral("qrNabywca"), Right, Text([&p] { return p.buyerName; })}}) {
        value(band, name, QRectF(x, 28, Half, 8), text)
            .setBold(true)
            .setWordWrap(true)
            .setAlignment(Qt::AlignLeft | Qt::AlignTop);
    }
    band.addLabel(QStringLiteral("lblUlica"), QRectF(0, 36, 7, Row), QStringLiteral("Ul."));
    value(band, QStringLiteral("qrUlica"), QRectF(7, 36, Half - 7, Row),
          [&p] { return p.sellerStreet; });
    value(band, QStringLiteral("qrMiasto"), QRectF(0, 41, Half, Row),
          [&p] { return p.sellerTown; });
    band.addLabel(QStringLiteral("lblNip"), QRectF(0, 46, 8, Row), QStringLiteral("NIP:"));
    value(band, QStringLiteral("qrNip"), QRectF(8, 46, Half - 8, Row),
          [&p] { return p.sellerNip; });
    value(band, QStringLiteral("qrBank"), QRectF(0, 51, Half, 8), [&p] { return p.sellerBank; })
        .setWordWrap(true)
        .setAlignment(Qt::AlignLeft | Qt::AlignTop);

    value(band, QStringLiteral("qrNabywcaUlica"), QRectF(Right, 36, Half, Row),
          [&p] { return p.buyerStreet; });
    value(band, QStringLiteral("qrNabywcaMiasto"), QRectF(Right, 41, Half, Row),
          [&p] { return p.buyerTown; });
    band.addLabel(QStringLiteral("lblNabywcaNip"), QRectF(Right, 46, 8, Row),
                  QStringLiteral("NIP:"));
    value(band, QStringLiteral("qrNabywcaNip"), QRectF(Right + 8, 46, Half - 8, Row),
          [&p] { return p.buyerNip; });
    ReportLabel &identCaption = band.addLabel(QStringLiteral("lblIdent"),
                                              QRectF(Right, 51, 10, Row), QStringLiteral("Ident:"));
    ReportLabel &ident
        = value(band, QStringLiteral("qrIdent"), QRectF(Right + 10, 51, Half - 10, Row),
                [&p] { return p.buyerIdent; });
    band.setBeforePrint([&p, &identCaption, &ident](ReportBand &, bool &) {
        identCaption.setVisible(!p.buyerIdent.isEmpty());
        ident.setVisible(!p.buyerIdent.isEmpty());
    });
}

void TfrmRachunekPL::buildOrderBlock()
{
    const InvoiceOrderBlock &o = m_printout.orders;
    ReportBand &band = m_report.addBand(BandType::Title, QStringLiteral("QRBandZlecenie"), 36);
    // A caption and its value, both from the top of the row: goods and
    // rates may take two lines.
    const auto row = [&band](const QString &name, const QRectF &captionBox, const QString &text,
                             const QRectF &valueBox, PrintoutLayout::Text shown) {
        caption(band, QStringLiteral("lbl") + name, captionBox, text)
            .setAlignment(Qt::AlignLeft | Qt::AlignTop);
        value(band, QStringLiteral("qr") + name, valueBox, std::move(shown))
            .setWordWrap(true)
            .setAlignment(Qt::AlignLeft | Qt::AlignTop);
    };
    value(band, QStringLiteral("qrDotyczy"), QRectF(0, 1, 190, Row), [&o] { return o.reference; })
        .setBold(true);
    row(QStringLiteral("Data"), QRectF(0, 7, 45, Row),
        QStringLiteral("Za: Usługi haulixowe w dniu:"), QRectF(45, 7, 145, Row),
        [&o] { return o.serviceDate; });
    row(QStringLiteral("Towar"), QRectF(0, 12, 45, Row), QStringLiteral("Przewóz towaru:"),
        QRectF(45, 12, 145, 8), [&o] { return o.goods; });
    row(QStringLiteral("Stawka"), QRectF(0, 20, 45, Row), QStringLiteral("Stawka:"),
        QRectF(45, 20, 145, 8), [&o] { return o.rate; });
    row(QStringLiteral("Pojazd"), QRectF(0, 29, 45, Row), QStringLiteral("Pojazd:"),
        QRectF(45, 29, 55, Row), [&o] { return o.vehicle; });
    row(QStringLiteral("Karta"), QRectF(100, 29, 16, Row), QStringLiteral("Nr karty:"),
        QRectF(116, 29, 16, Row), [&o] { return o.card; });
    row(QStringLiteral("NrZlecenia"), QRectF(134, 29, 22, Row), QStringLiteral("Nr zlecenia:"),
        QRectF(156, 29, 34, Row), [&o] { return o.orderNumber; });
}

void TfrmRachunekPL::buildColumnHeader()
{
    ReportBand &band = m_report.addBand(BandType::ColumnHeader, QStringLiteral("QRBandKolumny"), 9);
    const std::pair<ColumnSpan, const char *> captions[] = {
        {Name, "Nazwa towaru lub usługi"}, {Unit, "Jm"}, {Quantity, "Ilość"}, {Pkwiu, "PKWiU"},
        {Price, "wart.jedn."}, {Net, "wartość netto"}, {Rate, "Vat%"}, {Vat, "wart.VAT"},
        {Gross, "Wartość Brutto"}};
    int index = 0;
    for (const auto &[column, text] : captions)
        headerCell(band, QStringLiteral("lblKolumna%1").arg(++index), column.box(9),
                   QString::fromUtf8(text));
}

void TfrmRachunekPL::buildDetail()
{
    ReportBand &band = m_report.addBand(BandType::Detail, QStringLiteral("QRBandPozycja"), Row);
    const auto right = Qt::AlignRight;
    cell(band, QStringLiteral("qrNazwa"), Name.box(Row), [this] { return line().name; });
    cell(band, QStringLiteral("qrJm"), Unit.box(Row), [this] { return line().unit; },
         Qt::AlignHCenter);
    cell(band, QStringLiteral("qrIlosc"), Quantity.box(Row), [this] { return line().quantity; },
         right);
    cell(band, QStringLiteral("qrPKWiU"), Pkwiu.box(Row), [] { return QString(); });
    cell(band, QStringLiteral("qrCena"), Price.box(Row), [this] { return line().unitPrice; },
         right);
    cell(band, QStringLiteral("qrNetto"), Net.box(Row), [this] { return line().net; }, right);
    cell(band, QStringLiteral("qrVatProcent"), Rate.box(Row), [this] { return line().rate; },
         Qt::AlignHCenter);
    cell(band, QStringLiteral("qrVat"), Vat.box(Row), [this] { return line().vat; }, right);
    cell(band, QStringLiteral("qrBrutto"), Gross.box(Row), [this] { return line().gross; }, right);
}

void TfrmRachunekPL::buildSummary()
{
    const InvoicePrintout &p = m_printout;
    ReportBand &band
        = m_report.addBand(BandType::Summary, QStringLiteral("QRBandPodsumowanie"), 62);
    const auto amountAt = [&band](const QString &name, const ColumnSpan &column, double y,
                                  PrintoutLayout::Text text) -> ReportLabel & {
        return value(band, name, QRectF(column.x, y, column.width - 1, Row), std::move(text))
            .setAlignment(Qt::AlignRight);
    };
    for (const auto &[column, text] : {std::pair{Net, "Netto"}, {Vat, "VAT"}, {Gross, "Brutto"}}) {
        caption(band, QStringLiteral("lbl") + QString::fromUtf8(text),
                QRectF(column.x, 1, column.width - 1, Row), QString::fromUtf8(text))
            .setAlignment(Qt::AlignRight);
    }
    caption(band, QStringLiteral("lblRazem"), QRectF(92, 6, 28, Row), QStringLiteral("Razem:"))
        .setAlignment(Qt::AlignRight);
    amountAt(QStringLiteral("qrRazemNetto"), Net, 6, [&p] { return money(p.totals.invoice().net); })
        .setBold(true);
    amountAt(QStringLiteral("qrRazemVat"), Vat, 6, [&p] { return money(p.totals.invoice().vat); })
        .setBold(true);
    amountAt(QStringLiteral("qrRazemBrutto"), Gross, 6,
             [&p] { return money(p.totals.invoice().gross); })
        .setBold(true);
    band.addLine(QPointF(Net.x, 11.2), QPointF(190, 11.2), 0.1);
    band.addLabel(QStringLiteral("lblWTym"), QRectF(92, 12, 28, Row), QStringLiteral("W tym:"))
        .setAlignment(Qt::AlignRight);
    for (int group = 0; group < VatGroups::Count; ++group) {
        const double y = 12 + group * Row;
        const QString suffix = QString::number(group + 1);
        band.addLabel(QStringLiteral("lblGrupa") + suffix, QRectF(Rate.x, y, Rate.width, Row),
                      VatGroups::labels()[group])
            .setAlignment(Qt::AlignHCenter);
        amountAt(QStringLiteral("qrNetto") + suffix, Net, y,
                 [&p, group] { return money(p.totals.group(group).net); });
        amountAt(QStringLiteral("qrVat") + suffix, Vat, y,
                 [&p, group] { return money(p.totals.group(group).vat); });
        amountAt(QStringLiteral("qrBrutto") + suffix, Gross, y,
                 [&p, group] { return money(p.totals.group(group).gross); });
    }

    caption(band, QStringLiteral("lblDoZaplaty"), QRectF(0, 36, 30, 7),
            QStringLiteral("Do zapłaty:"))
        .setPointSize(11);
    value(band, QStringLiteral("qrDoZaplaty"), QRectF(30, 36, 60, 7),
          [&p] { return p.amountDueText; })
        .setPointSize(11)
        .setBold(true);
    band.addLabel(QStringLiteral("lblSlownie"), QRectF(0, 43, 30, Row),
                  QStringLiteral("Słownie złotych:"))
        .setAlignment(Qt::AlignLeft | Qt::AlignTop);
    value(band, QStringLiteral("qrSlownie"), QRectF(30, 43, 160, 9),
          [&p] { return p.amountInWords; })
        .setWordWrap(true)
        .setAlignment(Qt::AlignLeft | Qt::AlignTop);
    band.addLabel(QStringLiteral("lblWezwanie"), QRectF(0, 54, 190, Row),
                  QStringLiteral("Niniejsza faktura jest jednocześnie wezwaniem do zapłaty."));
}

void TfrmRachunekPL::buildPageFooter()
{
    const InvoicePrintout &p = m_printout;
    ReportBand &band = m_report.addBand(BandType::PageFooter, QStringLiteral("QRBandStopka"), 24);
    signature(band, QStringLiteral("lblOdebral"), QRectF(0, 2, 85, 20),
              QStringLiteral("Imie, nazwisko i podpis osoby upoważnionej do odbioru faktury"),
              [&p] { return p.receiver; });
    signature(band, QStringLiteral("lblWystawil"), QRectF(105, 2, 85, 20),
              QStringLiteral("Imie, nazwisko i podpis osoby upoważnionej do wystawienia faktury"),
              [&p] { return p.issuer; });
}
