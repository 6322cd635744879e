#include "PeriodOrders.h"

#include "Connection.h"
#include "EngineRows.h"
#include "OrderRevenueColumns.h"
#include "Statement.h"
#include "Transaction.h"

#include <QHash>

#include <algorithm>
#include <map>
#include <tuple>

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

namespace {

// The names of a small table by key.
QHash<int, QString> namesOf(Connection &connection, const QString &select)
{
    Statement st(connection);
    st.add(select);
    st.exec();
    QHash<int, QString> names;
    for (; !st.atEnd(); st.next())
        names.insert(st.integer(0), st.string(1));
    return names;
}

} // namespace

std::vector<PeriodOrder> PeriodOrders::read(Connection &connection) const
{
    // The names and the orders come from one snapshot of the database.
    if (connection.inTransaction())
        return readNow(connection);
    Transaction transaction(connection);
    TransactionScope snapshot(transaction);
    return readNow(connection);
}

std::vector<PeriodOrder> PeriodOrders::readNow(Connection &connection) const
{
    // At a year of a large company the engine's joins and sort took most of
    // a statement's reading: one index lookup per join and order, and a sort
    // of the joined rows. The names come from their small tables once, and
    // the orders are put in order here.
    const QHash<int, QString> contractors = namesOf(
        connection, QStringLiteral("SELECT ID_KONTRAHENTA, SKROT FROM KONTRAHENCI"));
    const QHash<int, QString> cities
        = namesOf(connection, QStringLiteral("SELECT ID_MIASTA, NAZWA FROM MIASTA"));
    const QHash<int, QString> users
        = namesOf(connection, QStringLiteral("SELECT ID_USER, LOGIN FROM USERS"));

    Statement st(connection);
    st.add(QStringLiteral("SELECT ID_ZLECENIA_PRZYCH, NUMER, DATA, IDKONTRAHENTA, IDPRZEWOZNIK, "));
    st.add(QStringLiteral("IDUSER, IDMIASTO_OD, IDMIASTO_VIA, IDMIASTO_DO, "));
    st.add(QStringLiteral("KWOTA, KM_LADOWNE, STAWKA_KMLAD, KM_PUSTE, STAWKA_KMPUSTY, "));
    st.add(QStringLiteral("ILOSC_GODZIN, STAWKA_GODZINY, PALETYILOSC, STAWKA_PALETY, "));
    st.add(QStringLiteral("KOSZTRAZEM, NUMER_FAKT_PRZEW, KWOTA_FAKT_PRZEW FROM ZLECENIA_PRZYCH "));
    st.add(QStringLiteral("WHERE DATA BETWEEN :aOd AND :aDo "));
    switch (party) {
    case Client:
        st.add(QStringLiteral("AND IDKONTRAHENTA = :aKlucz"));
        break;
    case Carrier:
        st.add(QStringLiteral("AND IDPRZEWOZNIK = :aKlucz"));
        break;
    case User:
        st.add(QStringLiteral("AND IDUSER = :aKlucz"));
        break;
    case Anyone:
        break;
    }
    st.bind(QStringLiteral("aOd"), period.start());
    st.bind(QStringLiteral("aDo"), period.end());
    if (party != Anyone)
        st.bind(QStringLiteral("aKlucz"), key);
    EngineRows rows(st);

    const OrderRevenueColumns revenue(rows);
    const auto column = [&](const char *name) {
        return OrderRevenueColumns::required(rows, name);
    };
    const int cKey = column("ID_ZLECENIA_PRZYCH");
    const int cNumber = column("NUMER");
    const int cDate = column("DATA");
    const int cClient = column("IDKONTRAHENTA");
    const int cCarrier = column("IDPRZEWOZNIK");
    const int cUser = column("IDUSER");
    const int cFrom = column("IDMIASTO_OD");
    const int cVia = column("IDMIASTO_VIA");
    const int cTo = column("IDMIASTO_DO");
    const int cCost = column("KOSZTRAZEM");
    const int cInvoice = column("NUMER_FAKT_PRZEW");
    const int cAmount = column("KWOTA_FAKT_PRZEW");

    // Orders share their route's text: a company runs few routes many times.
    std::map<std::tuple<int, int, int>, QString> routes;
    std::vector<PeriodOrder> orders;
    while (rows.next()) {
        PeriodOrder o;
        o.key = rows.integer(cKey);
        o.number = rows.integer(cNumber);
        o.date = rows.dateTime(cDate);
        o.client = rows.integer(cClient);
        o.clientName = contractors.value(o.client);
        o.carrier = rows.integer(cCarrier);
        o.carrierName = contractors.value(o.carrier);
        o.user = rows.integer(cUser);
        o.userName = users.value(o.user);
        const std::tuple route{rows.integer(cFrom), rows.integer(cVia), rows.integer(cTo)};
        auto known = routes.find(route);
        if (known == routes.end()) {
            known = routes.emplace(route, routeText(cities.value(std::get<0>(route)),
                                                   cities.value(std::get<1>(route)),
                                                   cities.value(std::get<2>(route))))
                        .first;
        }
        o.route = known->second;
        o.revenue = revenue.revenue(rows);
        o.cost = rows.number(cCost);
        o.carrierInvoice = rows.string(cInvoice);
        o.carrierAmount = rows.number(cAmount);
        orders.push_back(std::move(o));
    }
    std::sort(orders.begin(), orders.end(), [](const PeriodOrder &a, const PeriodOrder &b) {
        return std::tie(a.date, a.number, a.key) < std::tie(b.date, b.number, b.key);
    });
    return orders;
}
