// What a database holds before the demo company goes in. The company's
// rows refer to each other by keys counted from 1 (the own company is
// contractor 1, PLN currency 24, the users 1 to 3), so only a database
// whose tables are empty and whose key generators were never used can
// take it.
#include "DemoSeeder.h"

#include "Connection.h"
#include "Statement.h"

namespace {

// Tables with a key generator of their own, GEN_<table>: those the keys of
// the demo company come from.
QStringList keyedTables(Connection &connection)
{
    Statement st(connection);
    st.add(QStringLiteral("SELECT TRIM(R.RDB$RELATION_NAME) FROM RDB$RELATIONS R"));
    st.add(QStringLiteral("WHERE R.RDB$SYSTEM_FLAG = 0 AND R.RDB$VIEW_BLR IS NULL AND EXISTS"));
    st.add(QStringLiteral("(SELECT 1 FROM RDB$GENERATORS G"));
    st.add(QStringLiteral("WHERE G.RDB$GENERATOR_NAME = 'GEN_' || R.RDB$RELATION_NAME)"));
    st.add(QStringLiteral("ORDER BY 1"));
    st.exec();
    QStringList tables;
    for (; !st.atEnd(); st.next())
        tables << st.string(0);
    return tables;
}

bool hasRows(Connection &connection, const QString &table)
{
    Statement st(connection);
    st.add(QStringLiteral("SELECT COUNT(*) FROM (SELECT FIRST 1 1 AS X FROM %1)").arg(table));
    st.exec();
    return st.integer(0) > 0;
}

bool generatorUsed(Connection &connection, const QString &table)
{
    Statement st(connection);
    st.add(QStringLiteral("SELECT GEN_ID(GEN_%1, 0) FROM RDB$DATABASE").arg(table));
    st.exec();
    return st.integer(0) != 0;
}

} // namespace

DemoSeeder::Contents DemoSeeder::contents(Connection &connection)
{
    bool used = false;
    for (const QString &table : keyedTables(connection)) {
        if (hasRows(connection, table))
            return Contents::Data;
        used = used || generatorUsed(connection, table);
    }
    return used ? Contents::SeedLeftovers : Contents::Empty;
}

QString DemoSeeder::describe(Contents contents)
{
    switch (contents) {
    case Contents::Empty:
        break;
    case Contents::Data:
        return QStringLiteral("Baza nie jest pusta: dane demonstracyjne wymagają pustej bazy.");
    case Contents::SeedLeftovers:
        return QStringLiteral(
            "Baza zawiera pozostałości przerwanego wypełniania danymi demonstracyjnymi: "
            "jej tabele są puste, ale generatory kluczy zostały już użyte (wycofanie "
            "wypełniania ich nie cofa), a dane demonstracyjne potrzebują kluczy od 1.");
    }
    return QStringLiteral("Baza jest pusta.");
}
