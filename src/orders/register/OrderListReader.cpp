#include "OrderListReader.h"

#include "DbError.h"
#include "Format.h"
#include "OrderListColumns.h"
#include "Statement.h"

namespace {

QString zeroPadded(int number, int width)
{
    return QString::number(number).rightJustified(width, u'0');
}

} // namespace

OrderListReader::OrderListReader(const Statement &statement)
    : m_statement(statement),
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
      m_revenue(statement),
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
    const int index = m_statement.columnIndex(QString::fromLatin1(name));
    if (index < 0)
        throw DbError(
            QStringLiteral("Brak kolumny %1 w liście zleceń.").arg(QLatin1String(name)));
    return index;
}

OrderListRow OrderListReader::read() const
{
    const Statement &st = m_statement;
    OrderListRow row;
    row.key = st.integer(m_key);
    row.closed = st.integer(m_zamkniete) != 0;

    row.revenue = m_revenue.revenue(st);
    const double cost = st.number(m_kosztRazem);
    const int invoiceNumber = st.integer(m_nrFaktury);

    row.texts.reserve(OrderListColumns::Count);
    row.texts << zeroPadded(st.integer(m_numer), 8) << st.string(m_kontrahent)
              << st.string(m_przewoznik) << st.string(m_kierowca) << st.string(m_numerObcy)
              << Format::date(st.dateTime(m_data))
              << st.string(m_miastoOd) + u'-' + st.string(m_miastoVia) + u'-'
                     + st.string(m_miastoDo)
              << (invoiceNumber < 1 ? QStringLiteral("-") : zeroPadded(invoiceNumber, 5))
              << zeroPadded(st.integer(m_nrKarty), 5) << zeroPadded(st.integer(m_nrListu), 6)
              << st.string(m_pojazd) << st.string(m_numerObcaFak) << Format::general(cost)
              << Format::number(row.revenue, u"#,##0.00")
              << Format::number(row.revenue - cost, u"#,##0.00")
              << Format::general(st.number(m_kwotaObcaFakt)) << st.string(m_operator)
              << st.string(m_filtr1) << QString::number(st.integer(m_idKontrahent))
              << QString::number(st.integer(m_idPrzewoznik)) << QString::number(row.key);
    return row;
}
