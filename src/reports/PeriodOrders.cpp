#include "PeriodOrders.h"

#include "OrderRevenueColumns.h"
#include "Statement.h"

QString PeriodOrder::numberText() const
{
    return QString::number(number).rightJustified(8, u'0');
}

QString routeText(const QString &from, const QString &via, const QString &to)
{
    QStringList cities;
    for (const QString &city : {from, via, to}) {
        if (!city.trimmed().isEmpty())
            cities << city.trimmed();
    }
    return cities.join(QStringLiteral(" - "));
}

std::vector<PeriodOrder> PeriodOrders::read(Connection &connection) const
{
    Statement st(connection);
    // The register's view joins eight tables; a statement needs six of them,
    // and at a year of a large company every join left out counts. The
    // columns keep the view's names.
    st.add(QStringLiteral("SELECT z.ID_ZLECENIA_PRZYCH, z.NUMER, z.DATA, "));
    st.add(QStringLiteral("z.IDKONTRAHENTA AS IDKONTRAHENT, k.SKROT AS KONTRAHENT, "));
    st.add(QStringLiteral("z.IDPRZEWOZNIK, p.SKROT AS PRZEWOZNIK, z.IDUSER, u.LOGIN AS OPERATOR, "));
    st.add(QStringLiteral("mo.NAZWA AS MIASTOOD, mv.NAZWA AS MIASTOVIA, md.NAZWA AS MIASTODO, "));
    st.add(QStringLiteral("z.KWOTA, z.KM_LADOWNE, z.STAWKA_KMLAD, z.KM_PUSTE, z.STAWKA_KMPUSTY, "));
    st.add(QStringLiteral("z.ILOSC_GODZIN, z.STAWKA_GODZINY, z.PALETYILOSC, z.STAWKA_PALETY, "));
    st.add(QStringLiteral("z.KOSZTRAZEM, z.NUMER_FAKT_PRZEW AS NUMER_OBCA_FAK, "));
    st.add(QStringLiteral("z.KWOTA_FAKT_PRZEW AS KWOTA_OBCA_FAKT FROM ZLECENIA_PRZYCH z "));
    st.add(QStringLiteral("LEFT JOIN KONTRAHENCI k ON k.ID_KONTRAHENTA = z.IDKONTRAHENTA "));
    st.add(QStringLiteral("LEFT JOIN KONTRAHENCI p ON p.ID_KONTRAHENTA = z.IDPRZEWOZNIK "));
    st.add(QStringLiteral("LEFT JOIN MIASTA mo ON mo.ID_MIASTA = z.IDMIASTO_OD "));
    st.add(QStringLiteral("LEFT JOIN MIASTA mv ON mv.ID_MIASTA = z.IDMIASTO_VIA "));
    st.add(QStringLiteral("LEFT JOIN MIASTA md ON md.ID_MIASTA = z.IDMIASTO_DO "));
    st.add(QStringLiteral("LEFT JOIN USERS u ON u.ID_USER = z.IDUSER "));
    st.add(QStringLiteral("WHERE z.DATA BETWEEN :aOd AND :aDo "));
    switch (party) {
    case Client:
        st.add(QStringLiteral("AND z.IDKONTRAHENTA = :aKlucz "));
        break;
    case Carrier:
        st.add(QStringLiteral("AND z.IDPRZEWOZNIK = :aKlucz "));
        break;
    case User:
        st.add(QStringLiteral("AND z.IDUSER = :aKlucz "));
        break;
    case Anyone:
        break;
    }
    st.add(QStringLiteral("ORDER BY z.DATA, z.NUMER, z.ID_ZLECENIA_PRZYCH"));
    st.bind(QStringLiteral("aOd"), period.start());
    st.bind(QStringLiteral("aDo"), period.end());
    if (party != Anyone)
        st.bind(QStringLiteral("aKlucz"), key);
    st.exec();

    const OrderRevenueColumns revenue(st);
    const int cKey = st.columnIndex(QStringLiteral("ID_ZLECENIA_PRZYCH"));
    const int cNumber = st.columnIndex(QStringLiteral("NUMER"));
    const int cDate = st.columnIndex(QStringLiteral("DATA"));
    const int cClient = st.columnIndex(QStringLiteral("IDKONTRAHENT"));
    const int cClientName = st.columnIndex(QStringLiteral("KONTRAHENT"));
    const int cCarrier = st.columnIndex(QStringLiteral("IDPRZEWOZNIK"));
    const int cCarrierName = st.columnIndex(QStringLiteral("PRZEWOZNIK"));
    const int cUser = st.columnIndex(QStringLiteral("IDUSER"));
    const int cUserName = st.columnIndex(QStringLiteral("OPERATOR"));
    const int cFrom = st.columnIndex(QStringLiteral("MIASTOOD"));
    const int cVia = st.columnIndex(QStringLiteral("MIASTOVIA"));
    const int cTo = st.columnIndex(QStringLiteral("MIASTODO"));
    const int cCost = st.columnIndex(QStringLiteral("KOSZTRAZEM"));
    const int cInvoice = st.columnIndex(QStringLiteral("NUMER_OBCA_FAK"));
    const int cAmount = st.columnIndex(QStringLiteral("KWOTA_OBCA_FAKT"));

    std::vector<PeriodOrder> orders;
    for (; !st.atEnd(); st.next()) {
        PeriodOrder o;
        o.key = st.integer(cKey);
        o.number = st.integer(cNumber);
        o.date = st.dateTime(cDate);
        o.client = st.integer(cClient);
        o.clientName = st.string(cClientName);
        o.carrier = st.integer(cCarrier);
        o.carrierName = st.string(cCarrierName);
        o.user = st.integer(cUser);
        o.userName = st.string(cUserName);
        o.route = routeText(st.string(cFrom), st.string(cVia), st.string(cTo));
        o.revenue = revenue.revenue(st);
        o.cost = st.number(cCost);
        o.carrierInvoice = st.string(cInvoice);
        o.carrierAmount = st.number(cAmount);
        orders.push_back(std::move(o));
    }
    return orders;
}
