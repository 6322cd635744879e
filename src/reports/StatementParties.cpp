#include "StatementParties.h"

#include "Statement.h"

namespace {

std::vector<StatementParties::Party> read(Connection &connection, const QString &text)
{
    Statement st(connection);
    st.add(text);
    st.exec();
    std::vector<StatementParties::Party> parties;
    for (; !st.atEnd(); st.next())
        parties.push_back({st.integer(0), st.string(1)});
    return parties;
}

} // namespace

std::vector<StatementParties::Party> StatementParties::contractors(Connection &connection)
{
    return read(connection,
                QStringLiteral("SELECT ID_KONTRAHENTA, SKROT FROM KONTRAHENCI ORDER BY SKROT"));
}

std::vector<StatementParties::Party> StatementParties::users(Connection &connection)
{
    return read(connection, QStringLiteral("SELECT ID_USER, LOGIN FROM USERS ORDER BY LOGIN"));
}
