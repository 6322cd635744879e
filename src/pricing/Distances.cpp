#include "Distances.h"

#include "Statement.h"

namespace {

void bindRoute(Statement &st, int fromCity, int viaCity, int toCity)
{
    st.bind(QStringLiteral("aIDMIASTAOD"), fromCity);
    st.bind(QStringLiteral("aIDMIASTAVIA"), viaCity);
    st.bind(QStringLiteral("aIDMIASTADO"), toCity);
}

} // namespace

std::optional<int> Distances::lookup(Connection &connection, int fromCity, int viaCity,
                                     int toCity)
{
    Statement st(connection);
    st.add(QStringLiteral(
        "SELECT ODLEGLOSC FROM ODLEGLOSCI WHERE (IDMIASTAOD =:aIDMIASTAOD AND IDMIASTAVIA "
        "=:aIDMIASTAVIA AND IDMIASTADO=:aIDMIASTADO) OR (IDMIASTAOD =:aIDMIASTADO AND "
        "IDMIASTAVIA =:aIDMIASTAVIA AND IDMIASTADO=:aIDMIASTAOD)"));
    bindRoute(st, fromCity, viaCity, toCity);
    st.exec();
    if (st.atEnd())
        return std::nullopt;
    return st.integer(0);
}

void Distances::remember(Connection &connection, int fromCity, int viaCity, int toCity,
                         int kilometres)
{
    Statement st(connection);
    st.add(QStringLiteral("INSERT into ODLEGLOSCI (IDMIASTAOD,IDMIASTAVIA,IDMIASTADO,ODLEGLOSC)"));
    st.add(QStringLiteral("VALUES (:aIDMIASTAOD,:aIDMIASTAVIA,:aIDMIASTADO,:aODLEGLOSC)"));
    bindRoute(st, fromCity, viaCity, toCity);
    st.bind(QStringLiteral("aODLEGLOSC"), kilometres);
    st.exec();
}

bool Distances::learn(Connection &connection, int fromCity, int viaCity, int toCity,
                      int kilometres)
{
    if (kilometres == 0 || lookup(connection, fromCity, viaCity, toCity))
        return false;
    remember(connection, fromCity, viaCity, toCity, kilometres);
    return true;
}
