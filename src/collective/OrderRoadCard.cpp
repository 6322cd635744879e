#include "OrderRoadCard.h"

#include "Statement.h"

bool OrderRoadCard::assign(Connection &connection, int orderKey, int cardKey)
{
    Statement st(connection);
    st.add(QStringLiteral("UPDATE ZLECENIA_PRZYCH SET NR_KARTY = :aNR_KARTY"));
    st.add(QStringLiteral("WHERE ID_ZLECENIA_PRZYCH = :aID_ZLECENIA_PRZYCH"));
    st.bind(QStringLiteral("aNR_KARTY"), cardKey);
    st.bind(QStringLiteral("aID_ZLECENIA_PRZYCH"), orderKey);
    st.exec();
    return st.rowsAffected() > 0;
}
