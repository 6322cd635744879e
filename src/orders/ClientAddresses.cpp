#include "ClientAddresses.h"

#include "Statement.h"

namespace ClientAddresses {

std::optional<TMiejsca_zlecObj::Slot> find(Connection &connection, int clientKey,
                                           const QString &typed)
{
    Statement st(connection);
    st.add(QStringLiteral("SELECT * FROM MIEJSCA_ZLEC"));
    // A text longer than the column would stop the search with a truncation
    // error instead of simply not matching.
    st.add(QStringLiteral("where id_kontrahent=") + QString::number(clientKey)
           + QStringLiteral(" And ADRES1=CAST(:aValue AS VARCHAR(255))"));
    st.bind(QStringLiteral("aValue"), typed);
    st.exec();
    if (st.atEnd())
        return std::nullopt;
    TMiejsca_zlecObj::Slot slot;
    slot.ADRES = st.string(QStringLiteral("ADRES1"));
    slot.KOD = st.string(QStringLiteral("KOD1"));
    slot.MIEJSCOWOSC = st.string(QStringLiteral("MIEJSCOWOSC1"));
    slot.ID_KRAJU = st.integer(QStringLiteral("ID_KRAJU1"));
    slot.NAZWA = st.string(QStringLiteral("NAZWA1"));
    return slot;
}

} // namespace ClientAddresses
