#include "CarrierInvoiceList.h"

#include "Format.h"
#include "Statement.h"

#include <QTime>

namespace {

const QString UnpaidTitle = QStringLiteral(" Faktury przewoźników niezapłacone ");

const QString FirstLine = QStringLiteral(
    "select z.numer as nr_zlecenia, z.NUMER_FAKT_PRZEW as numer_pelny,"
    "z.DATA_FAKT_OTRZYMANIA as Data_otrzy, z.DATA_FAKT_WYSTAWIENIA as data_wystawienia,   ");
const QString AmountLine = QStringLiteral(
    "z.DATA_FAKT_PLATNOSCI as DATAPLAT,z.KWOTA_FAKT_PRZEW as brutto,"
    "(z.DATA_FAKT_WYSTAWIENIA +z.DNI_FAKT) as platnedo , ");
const QString DaysToDueLine = QStringLiteral(
    "( (z.DATA_FAKT_WYSTAWIENIA + z.DNI_FAKT) - current_timestamp) as DNI, ");
const QString DaysPaidLine = QStringLiteral(
    "(z.DATA_FAKT_WYSTAWIENIA + z.DNI_FAKT - z.DATA_FAKT_PLATNOSCI) as DNI, ");
const QString CarrierLine = QStringLiteral(
    "k.skrot as skrot, k.adres as ulica, k.miejscowosc as miasto, k.nazwa as nazwa "
    "from zlecenia_przych z left join kontrahenci k on k.id_kontrahenta=z.idprzewoznik ");
const QString UnpaidCondition = QStringLiteral(
    "WHERE ( ( z.nrrampy <>1)  or (z.nrrampy is null) ) and (z.KWOTA_FAKT_PRZEW is not null) "
    "and (z.KWOTA_FAKT_PRZEW >0) ");

// The period's last day counts whole: a date stored with a time of day
// is still within it.
QDateTime endOf(const QDate &day)
{
    return QDateTime(day, QTime(23, 59, 59, 999), Qt::UTC);
}

QDateTime startOf(const QDate &day)
{
    return QDateTime(day, QTime(0, 0), Qt::UTC);
}

} // namespace

QString CarrierInvoiceList::title() const
{
    const QString period = Format::date(from) + QStringLiteral(" do dnia ") + Format::date(to);
    switch (mode) {
    case Paid:
        return QStringLiteral(" Faktury przewoźników zapłacone od ") + period;
    case Issued:
        return QStringLiteral(" Faktury przewoźników wystawione  od ") + period;
    case Unpaid:
        break;
    }
    return UnpaidTitle;
}

void CarrierInvoiceList::prepare(Statement &st) const
{
    st.clear();
    st.add(FirstLine);
    st.add(AmountLine);
    st.add(mode == Unpaid ? DaysToDueLine : DaysPaidLine);
    st.add(CarrierLine);
    switch (mode) {
    case Unpaid:
        st.add(UnpaidCondition);
        break;
    case Paid:
        st.add(QStringLiteral("WHERE (z.nrrampy =1) "));
        st.add(QStringLiteral(
            "AND ( z.DATA_FAKT_PLATNOSCI >=:mod  ) AND (z.DATA_FAKT_PLATNOSCI <= :mdo ) "));
        break;
    case Issued:
        st.add(QStringLiteral(
            "WHERE  (z.KWOTA_FAKT_PRZEW is not null) AND (z.KWOTA_FAKT_PRZEW >0) "
            "AND (z.DATA_FAKT_WYSTAWIENIA >=:mod  ) AND (z.DATA_FAKT_WYSTAWIENIA <= :mdo ) "));
        break;
    }
    if (carrier != 0)
        st.add(QStringLiteral("AND z.idprzewoznik =:aidkon "));
    st.add(QStringLiteral("ORDER BY k.nazwa"));
    if (mode != Unpaid) {
        st.bind(QStringLiteral("mod"), startOf(from));
        st.bind(QStringLiteral("mdo"), endOf(to));
    }
    if (carrier != 0)
        st.bind(QStringLiteral("aidkon"), carrier);
}

std::vector<CarrierInvoiceRow> CarrierInvoiceList::read(Connection &connection) const
{
    Statement st(connection);
    prepare(st);
    st.exec();
    return CarrierInvoiceRow::readAll(st);
}

void CarrierInvoiceList::preparePayments(Statement &st)
{
    st.clear();
    st.add(QStringLiteral(
        "select z.numer as nr_zlecenia, z.NUMER_FAKT_PRZEW as numer_pelny,"
        "z.DATA_FAKT_OTRZYMANIA as Data_otrzy, z.DATA_FAKT_WYSTAWIENIA as data_wystawienia, "
        "z.ZAPLACONA_KWOTA as ZAPLACONA_KWOTA,z.DATA_FAKT_PLATNOSCI as DATAPLAT,"
        "z.KWOTA_FAKT_PRZEW as brutto,(z.DATA_FAKT_WYSTAWIENIA +z.DNI_FAKT) as platnedo , "
        "( (z.DATA_FAKT_WYSTAWIENIA + z.DNI_FAKT) - current_timestamp) as DNI, "
        "k.skrot as skrot, k.adres as ulica, k.miejscowosc as miasto, k.nazwa as nazwa "
        "from zlecenia_przych z left join kontrahenci k on k.id_kontrahenta=z.idprzewoznik "
        "WHERE ( ( z.nrrampy <>1)  or (z.nrrampy is null) ) and (z.KWOTA_FAKT_PRZEW is not null) "
        "and (z.KWOTA_FAKT_PRZEW >0) ORDER BY z.DATA_FAKT_PLATNOSCI"));
}

std::vector<CarrierInvoiceRow> CarrierInvoiceList::readPayments(Connection &connection)
{
    Statement st(connection);
    preparePayments(st);
    st.exec();
    return CarrierInvoiceRow::readAll(st);
}

QString CarrierInvoiceList::paymentsTitle()
{
    return UnpaidTitle;
}

std::vector<CarrierInvoiceList::Carrier> CarrierInvoiceList::carriers(Connection &connection)
{
    Statement st(connection);
    st.add(QStringLiteral("SELECT DISTINCT IDPRZEWOZNIK,PRZEWOZNIK from Vzlecenia_przych where "
                          "IDPRZEWOZNIK>0 and IDPRZEWOZNIK is not null"));
    st.exec();
    std::vector<Carrier> carriers;
    for (; !st.atEnd(); st.next())
        carriers.push_back({st.integer(0), st.string(1)});
    return carriers;
}
