#include "OrderListReader.h"

#include "EngineRows.h"
#include "Format.h"
#include "RowTexts.h"

#include <charconv>

namespace {

// A whole number as QString::number writes it, padded on the left with
// zeros to the width (a longer one is kept whole), onto the text.
void appendZeroPadded(QString &text, int number, int width = 0)
{
    char digits[16];
    const auto written = std::to_chars(std::begin(digits), std::end(digits), number).ptr;
    for (auto length = int(written - digits); length < width; ++length)
        text += u'0';
    text += QLatin1StringView(digits, written - digits);
}

// yyyy-MM-dd, nothing for the null date: what Format::date writes.
void appendDate(QString &text, DateTime value)
{
    const QDate date = value.isNull() ? QDate() : value.date();
    if (!date.isValid())
        return;
    if (date.year() < 1000 || date.year() > 9999) {
        text += Format::date(date);
        return;
    }
    appendZeroPadded(text, date.year());
    text += u'-';
    appendZeroPadded(text, date.month(), 2);
    text += u'-';
    appendZeroPadded(text, date.day(), 2);
}

} // namespace

OrderListReader::OrderListReader(const EngineRows &rows)
    : m_rows(rows),
      m_key(column("ID_ZLECENIA_PRZYCH")),
      m_numer(column("NUMER")),
      m_kontrahent(column("KONTRAHENT")),
      m_przewoznik(column("PRZEWOZNIK")),
      m_kierowca(column("KIEROWCA")),
      m_numerObcy(column("NUMER_OBCY")),
      m_data(column("DATA")),
      m_miastoOd(column("MIASTOOD")),
      m_miastoVia(column("MIASTOVIA")),
      m_miastoDo(column("MIASTODO")),
      m_nrFaktury(column("NRFAKTURY")),
      m_nrKarty(column("NR_KARTY")),
      m_nrListu(column("NR_LISTU")),
      m_pojazd(column("POJAZD")),
      m_numerObcaFak(column("NUMER_OBCA_FAK")),
      m_kosztRazem(column("KOSZTRAZEM")),
      m_revenue(rows),
      m_kwotaObcaFakt(column("KWOTA_OBCA_FAKT")),
      m_operator(column("OPERATOR")),
      m_filtr1(column("FILTR1")),
      m_idKontrahent(column("IDKONTRAHENT")),
      m_idPrzewoznik(column("IDPRZEWOZNIK")),
      m_zamkniete(column("ZAMKNIETE"))
{
}

int OrderListReader::column(const char *name) const
{
    return OrderRevenueColumns::required(m_rows, name);
}

OrderListRow OrderListReader::read(RowTexts &texts) const
{
    const EngineRows &rows = m_rows;
    OrderListRow row;
    row.key = rows.integer(m_key);
    row.closed = rows.integer(m_zamkniete) != 0;
    row.revenue = m_revenue.revenue(rows);
    const double cost = rows.number(m_kosztRazem);
    const int invoiceNumber = rows.integer(m_nrFaktury);

    texts.clear();
    QString &text = texts.text();
    const auto cell = [&](int index) {
        rows.appendString(index, text);
        texts.endCell();
    };
    appendZeroPadded(text, rows.integer(m_numer), 8);
    texts.endCell();
    cell(m_kontrahent);
    cell(m_przewoznik);
    cell(m_kierowca);
    cell(m_numerObcy);
    appendDate(text, rows.dateTime(m_data));
    texts.endCell();
    rows.appendString(m_miastoOd, text);
    text += u'-';
    rows.appendString(m_miastoVia, text);
    text += u'-';
    cell(m_miastoDo);
    if (invoiceNumber < 1)
        text += u'-';
    else
        appendZeroPadded(text, invoiceNumber, 5);
    texts.endCell();
    appendZeroPadded(text, rows.integer(m_nrKarty), 5);
    texts.endCell();
    appendZeroPadded(text, rows.integer(m_nrListu), 6);
    texts.endCell();
    cell(m_pojazd);
    cell(m_numerObcaFak);
    texts.add(Format::general(cost));
    texts.add(Format::number(row.revenue, u"#,##0.00"));
    texts.add(Format::number(row.revenue - cost, u"#,##0.00"));
    texts.add(Format::general(rows.number(m_kwotaObcaFakt)));
    cell(m_operator);
    cell(m_filtr1);
    appendZeroPadded(text, rows.integer(m_idKontrahent));
    texts.endCell();
    appendZeroPadded(text, rows.integer(m_idPrzewoznik));
    texts.endCell();
    appendZeroPadded(text, row.key);
    texts.endCell();
    return row;
}
