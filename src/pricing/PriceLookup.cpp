#include "PriceLookup.h"

#include "Statement.h"

#include <cmath>

namespace {

// The key of the first range holding the value, 0 when none does.
int rangeKey(Statement &query, const QString &select, const QString &keyColumn, int value)
{
    query.clear();
    query.add(select);
    query.bind(QStringLiteral("wart"), value);
    query.exec();
    return query.atEnd() ? 0 : query.integer(keyColumn);
}

} // namespace

int PriceLookup::kilograms(double tonnes)
{
    return static_cast<int>(std::lround(tonnes * 1000.0));
}

double PriceLookup::amount(Connection &connection, int group, int kilometres, double tonnes)
{
    Statement query(connection);
    const int rowKey = rangeKey(
        query,
        QStringLiteral("select * from cenniki_kraj_wiersze where zakres_wod<=:wart AND "
                       "zakres_wdo>=:wart"),
        QStringLiteral("ID_CENNIKI_KRAJ_WIERSZE"), kilometres);
    const int columnKey = rangeKey(
        query,
        QStringLiteral("select * from CENNIKI_KRAJ_KOLUMNY where zakres_kod<=:wart AND "
                       "zakres_kdo>=:wart"),
        QStringLiteral("ID_CENNIKI_KRAJ_KOLUMNY"), kilograms(tonnes));

    query.clear();
    query.add(QStringLiteral(
        "select * from CENNIKI_KRAJ where KILOGRAMY=:idk AND KILOMETRY=:idw AND GRUPA=:idg"));
    query.bind(QStringLiteral("idk"), columnKey);
    query.bind(QStringLiteral("idw"), rowKey);
    query.bind(QStringLiteral("idg"), group);
    query.exec();
    return query.atEnd() ? 0.0 : query.number(QStringLiteral("KWOTA"));
}
