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
    st.add(QStringLiteral("SELECT ID_ZLECENIA_PRZYCH, NUMER, DATA, IDKONTRAHENT, KONTRAHENT, "));
    st.add(QStringLiteral("IDPRZEWOZNIK, PRZEWOZNIK, IDUSER, OPERATOR, MIASTOOD, MIASTOVIA, "));
    st.add(QStringLiteral("MIASTODO, KWOTA, KM_LADOWNE, STAWKA_KMLAD, KM_PUSTE, STAWKA_KMPUSTY, "));
    st.add(QStringLiteral("ILOSC_GODZIN, STAWKA_GODZINY, PALETYILOSC, STAWKA_PALETY, "));
    st.add(QStringLiteral("KOSZTRAZEM, "));
    st.add(QStringLiteral("NUMER_OBCA_FAK, KWOTA_OBCA_FAKT FROM VZLECENIA_PRZYCH "));
    st.add(QStringLiteral("WHERE DATA BETWEEN :aOd AND :aDo "));
    switch (party) {
    case Client:
        st.add(QStringLiteral("AND IDKONTRAHENT = :aKlucz "));
        break;
    case Carrier:
        st.add(QStringLiteral("AND IDPRZEWOZNIK = :aKlucz "));
        break;
    case User:
        st.add(QStringLiteral("AND IDUSER = :aKlucz "));
        break;
    case Anyone:
        break;
    }
    st.add(QStringLiteral("ORDER BY DATA, NUMER, ID_ZLECENIA_PRZYCH"));
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
