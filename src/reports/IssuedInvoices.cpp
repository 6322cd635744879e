#include "IssuedInvoices.h"

#include "Configuration.h"
#include "Format.h"
#include "Money.h"
#include "Statement.h"
#include "TKontrahenciObj.h"
#include "TStawki_vatObj.h"

#include <algorithm>

IssuedInvoices::IssuedInvoices(Connection &connection, QDate from, QDate to, bool ownExecutor)
    : m_connection(connection), m_from(from), m_to(to), m_ownExecutor(ownExecutor)
{
}

QString IssuedInvoices::title() const
{
    const QString kind = m_ownExecutor
        ? QStringLiteral("ZESTAWIENIE FAKTUR KRAJOWYCH  (WYKONAWCA WŁASNY) OD ")
        : QStringLiteral("ZESTAWIENIE FAKTUR KRAJOWYCH  (WYKONAWCA OBCY) OD ");
    return kind + Format::date(m_from) + QStringLiteral("  DO  ") + Format::date(m_to);
}

void IssuedInvoices::prepare(Statement &statement, int ownerKey) const
{
    statement.clear();
    statement.add(QStringLiteral("select * from faktury where id_rodzaj_dok=1 and "
                                 "(DATA_WYSTAWIENIA>=:aOd AND DATA_WYSTAWIENIA<=:aDo) "));
    statement.add(QStringLiteral(" AND id_faktury in (select idfaktury from zlecenia_przych "));
    statement.add(m_ownExecutor ? QStringLiteral(" where idprzewoznik=:aIdPrzewoznik ")
                                : QStringLiteral(" where idprzewoznik<>:aIdPrzewoznik "));
    statement.add(QStringLiteral(" ) "));
    bindPeriod(statement);
    statement.bind(QStringLiteral("aIdPrzewoznik"), ownerKey);
}

void IssuedInvoices::bindPeriod(Statement &statement) const
{
    statement.bind(QStringLiteral("aOd"), DateTime::fromDate(m_from));
    statement.bind(QStringLiteral("aDo"), DateTime::fromDate(m_to));
}

int IssuedInvoices::read()
{
    Statement st(m_connection);
    prepare(st, Configuration(&m_connection).GetConfigInt(QStringLiteral("IDWłaściciela")));
    st.exec();
    const int key = st.columnIndex(QStringLiteral("ID_FAKTURY"));
    const int sequence = st.columnIndex(QStringLiteral("NR_KOLEJNY"));
    const int number = st.columnIndex(QStringLiteral("NUMER_PELNY"));
    const int client = st.columnIndex(QStringLiteral("ID_KONTRAHENTA"));
    const int sold = st.columnIndex(QStringLiteral("DATA_SPRZEDAZY"));
    const int issued = st.columnIndex(QStringLiteral("DATA_WYSTAWIENIA"));
    const int days = st.columnIndex(QStringLiteral("ILOSC_DNI_PLATN"));
    m_invoices.clear();
    for (; !st.atEnd(); st.next()) {
        TPozycjaZestawienia &record = m_invoices.emplace_back();
        record.IdFaktury = st.integer(key);
        record.NrKolejny = st.integer(sequence);
        record.NumerPelny = st.string(number).left(40);
        record.IdKontrahenta = st.integer(client);
        record.DataSprzedazy = st.dateTime(sold);
        record.DataWystawienia = st.dateTime(issued);
        record.DataPlatnosci = DateTime(record.DataWystawienia.days() + st.integer(days));
    }
    return static_cast<int>(m_invoices.size());
}

std::vector<TPozycjaZestawienia> IssuedInvoices::build(const Step &step)
{
    readLines();
    readVehicles();
    std::vector<TPozycjaZestawienia> records;
    records.reserve(m_invoices.size());
    for (const TPozycjaZestawienia &invoice : m_invoices) {
        TPozycjaZestawienia &record = records.emplace_back(invoice);
        record.Kontrahent = clientName(record.IdKontrahenta);
        record.Pojazd = m_vehicles.value(record.IdFaktury);
        if (step)
            step(QStringLiteral("\tRachunk: ") + record.NumerPelny.left(49));
        addLines(record);
    }
    std::stable_sort(records.begin(), records.end(),
                     [](const TPozycjaZestawienia &a, const TPozycjaZestawienia &b) {
                         return a.NrKolejny < b.NrKolejny;
                     });
    return records;
}

void IssuedInvoices::readLines()
{
    // All lines of the period's invoices at once: a statement per invoice
    // would cost more than the whole statement is allowed to take.
    Statement st(m_connection);
    st.add(QStringLiteral("SELECT p.ID_FAKTURY, p.ILOSC, p.CENA_NETTO, p.ID_VAT, p.RODZAJ_USLUGI"));
    st.add(QStringLiteral("FROM FAKTURY f JOIN FAKTURY_POZYCJE p ON p.ID_FAKTURY = f.ID_FAKTURY"));
    st.add(QStringLiteral("WHERE f.ID_RODZAJ_DOK = 1 AND f.DATA_WYSTAWIENIA >= :aOd "
                          "AND f.DATA_WYSTAWIENIA <= :aDo"));
    st.add(QStringLiteral("ORDER BY p.ID_POZYCJI"));
    bindPeriod(st);
    st.exec();
    m_lines.clear();
    for (; !st.atEnd(); st.next())
        m_lines[st.integer(0)].push_back({st.number(1), st.number(2), st.integer(3), st.integer(4)});
}

void IssuedInvoices::readVehicles()
{
    Statement st(m_connection);
    st.add(QStringLiteral("SELECT z.IDFAKTURY, z.POJAZD"));
    st.add(QStringLiteral("FROM FAKTURY f JOIN ZLECENIA_PRZYCH z ON z.IDFAKTURY = f.ID_FAKTURY"));
    st.add(QStringLiteral("WHERE f.ID_RODZAJ_DOK = 1 AND f.DATA_WYSTAWIENIA >= :aOd "
                          "AND f.DATA_WYSTAWIENIA <= :aDo AND z.POJAZD <> ''"));
    st.add(QStringLiteral("ORDER BY z.ID_ZLECENIA_PRZYCH"));
    bindPeriod(st);
    st.exec();
    m_vehicles.clear();
    for (; !st.atEnd(); st.next()) {
        const int invoice = st.integer(0);
        if (!m_vehicles.contains(invoice))
            m_vehicles.insert(invoice, st.string(1));
    }
}

const QString &IssuedInvoices::clientName(int key)
{
    auto known = m_clients.find(key);
    if (known == m_clients.end()) {
        // A failure has been shown by the table object; the name stays empty.
        known = m_clients.insert(key, TKontrahenciObj(m_connection).SelectById(key).NAZWA);
    }
    return *known;
}

double IssuedInvoices::vatRate(int key)
{
    auto known = m_rates.find(key);
    if (known == m_rates.end())
        known = m_rates.insert(key, TStawki_vatObj(m_connection).SelectById(key).PROCENT);
    return *known;
}

void IssuedInvoices::addLines(TPozycjaZestawienia &record)
{
    using Money::RoundTo2;
    const auto lines = m_lines.constFind(record.IdFaktury);
    if (lines == m_lines.constEnd())
        return;
    for (const Line &line : *lines) {
        const double net = RoundTo2(line.quantity * line.price);
        record.Netto += net;
        if (line.kind == StampFee)
            record.OplataSkarbowa += net;
        const double rate = vatRate(line.vat);
        record.Brutto += RoundTo2((rate + 1.0) * net);
        record.Vat += RoundTo2(net * rate);
    }
}
