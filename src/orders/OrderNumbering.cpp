#include "OrderNumbering.h"

#include "Statement.h"

namespace OrderNumbering {

int propose(Connection &connection, int year, int savedKey)
{
    Statement st(connection);
    st.add(QStringLiteral("select numer as nr from ZLECENIA_PRZYCH "
                          "where extract (year from DATA)=:aRok "
                          "and NUMER>0 and ID_ZLECENIA_PRZYCH<>:aIDZlecenia "
                          "order by ID_ZLECENIA_PRZYCH desc"));
    st.bind(QStringLiteral("aRok"), year);
    st.bind(QStringLiteral("aIDZlecenia"), savedKey);
    st.exec();
    if (st.atEnd())
        return 1;
    return st.integer(QStringLiteral("NR")) + 1;
}

NumberSeries series(int year)
{
    return {QStringLiteral("ZLECENIA_PRZYCH"), year, 0};
}

} // namespace OrderNumbering
