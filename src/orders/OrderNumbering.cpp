#include "OrderNumbering.h"

#include "Statement.h"

namespace OrderNumbering {

int propose(Connection &connection, int year)
{
    Statement st(connection);
    st.add(QStringLiteral("select numer as nr from ZLECENIA_PRZYCH "
                          "where extract (year from DATA)=:aRok "
                          "order by ID_ZLECENIA_PRZYCH desc"));
    st.bind(QStringLiteral("aRok"), year);
    st.exec();
    if (st.atEnd())
        return 1;
    return st.integer(QStringLiteral("NR")) + 1;
}

} // namespace OrderNumbering
