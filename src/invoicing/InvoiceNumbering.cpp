#include "InvoiceNumbering.h"

#include "Statement.h"

namespace InvoiceNumbering {

int next(Connection &connection, const Settlement &settlement)
{
    Statement st(connection);
    st.add(QStringLiteral("select max(NR_KOLEJNY) as mnr from faktury "));
    st.add(QStringLiteral("where ID_RODZAJ_DOK=:adok"));
    if (settlement.bySaleDate)
        st.add(QStringLiteral("and extract(month from DATA_SPRZEDAZY)=:aMies and extract(year "
                              "from DATA_SPRZEDAZY)=:aRok"));
    else
        st.add(QStringLiteral("and extract(month from DATA_WYSTAWIENIA)=:aMies and "
                              "extract(year from DATA_WYSTAWIENIA)=:aRok"));
    st.bind(QStringLiteral("adok"), settlement.documentKind);
    st.bind(QStringLiteral("aMies"), settlement.date().date().month());
    st.bind(QStringLiteral("aRok"), settlement.issued.date().year());
    st.exec();
    return st.integer(QStringLiteral("mnr")) + 1;
}

NumberSeries series(const Settlement &settlement)
{
    return {QStringLiteral("FAKTURY/%1").arg(settlement.documentKind),
            settlement.issued.date().year(), settlement.date().date().month()};
}

} // namespace InvoiceNumbering
