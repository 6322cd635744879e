#include "Routes.h"

#include "Statement.h"

std::vector<RouteRow> Routes::startingIn(Connection &connection, int cityKey)
{
    Statement st(connection);
    st.add(QStringLiteral("select odleglosc,idmiastaod,idmiastado,ID_ODLEGLOSCI,"));
    st.add(QStringLiteral("(select nazwa from miasta where o.idmiastaod=id_miasta) as  miastood,"));
    st.add(QStringLiteral("(select nazwa from miasta where o.idmiastado=id_miasta) as  miastodo,"));
    st.add(QStringLiteral("(select kod from miasta where o.idmiastado=id_miasta) as  KOD,"));
    st.add(QStringLiteral(
        "(select nazwa from miasta where o.idmiastavia=id_miasta) as  miastovia"));
    st.add(QStringLiteral("from odleglosci o where o.idmiastaod=:mod "));
    st.bind(QStringLiteral("mod"), cityKey);
    st.exec();
    const int key = st.columnIndex(QStringLiteral("ID_ODLEGLOSCI"));
    const int from = st.columnIndex(QStringLiteral("IDMIASTAOD"));
    const int to = st.columnIndex(QStringLiteral("IDMIASTADO"));
    const int distance = st.columnIndex(QStringLiteral("ODLEGLOSC"));
    const int fromName = st.columnIndex(QStringLiteral("MIASTOOD"));
    const int toName = st.columnIndex(QStringLiteral("MIASTODO"));
    const int postcode = st.columnIndex(QStringLiteral("KOD"));
    const int viaName = st.columnIndex(QStringLiteral("MIASTOVIA"));
    std::vector<RouteRow> routes;
    for (; !st.atEnd(); st.next()) {
        routes.push_back({st.integer(key), st.integer(from), st.integer(to), st.integer(distance),
                          st.string(fromName), st.string(toName), st.string(postcode),
                          st.string(viaName)});
    }
    return routes;
}

RouteRow Routes::load(Connection &connection, int routeKey)
{
    Statement st(connection);
    st.add(QStringLiteral("select odleglosc,idmiastaod,idmiastado,ID_ODLEGLOSCI,"));
    st.add(QStringLiteral("(select nazwa from miasta where o.idmiastaod=id_miasta) as  miastood,"));
    st.add(QStringLiteral("(select nazwa from miasta where o.idmiastado=id_miasta) as  miastodo"));
    st.add(QStringLiteral("from odleglosci o where o.ID_ODLEGLOSCI=:mod "));
    st.bind(QStringLiteral("mod"), routeKey);
    st.exec();
    RouteRow route;
    if (st.atEnd())
        return route;
    route.key = st.integer(QStringLiteral("ID_ODLEGLOSCI"));
    route.fromCity = st.integer(QStringLiteral("IDMIASTAOD"));
    route.toCity = st.integer(QStringLiteral("IDMIASTADO"));
    route.kilometres = st.integer(QStringLiteral("ODLEGLOSC"));
    route.fromName = st.string(QStringLiteral("MIASTOOD"));
    route.toName = st.string(QStringLiteral("MIASTODO"));
    return route;
}

void Routes::setDistance(Connection &connection, int routeKey, int kilometres)
{
    Statement st(connection);
    st.add(QStringLiteral("UPDATE odleglosci set odleglosc=:odl"));
    st.add(QStringLiteral("where ID_ODLEGLOSCI=:mod "));
    st.bind(QStringLiteral("odl"), kilometres);
    st.bind(QStringLiteral("mod"), routeKey);
    st.exec();
}

void Routes::remove(Connection &connection, int routeKey)
{
    Statement st(connection);
    st.add(QStringLiteral("DELETE from odleglosci"));
    st.add(QStringLiteral("where ID_ODLEGLOSCI=:mod "));
    st.bind(QStringLiteral("mod"), routeKey);
    st.exec();
}
