#include "Connection.h"
#include "Schema.h"
#include "Statement.h"
#include "TableObjects.h"
#include "TestDatabase.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

struct Expected
{
    QString table;
    QStringList columns;   // key first, then the insert order
    QString types;         // one letter per column
};

template <class... Objects>
std::vector<Expected> expectedTables()
{
    std::vector<Expected> result;
    const auto add = [&](const auto &d) {
        Expected e{d.info.table, {d.info.key}, QStringLiteral("I")};
        for (const auto &column : d.columns) {
            e.columns << column.name;
            e.types += QLatin1Char(char(column.type()));
        }
        result.push_back(e);
    };
    (add(Objects::description()), ...);
    return result;
}

// Columns of a table or view in their position order, with a type letter.
std::pair<QStringList, QString> actualColumns(Connection &connection, const QString &table)
{
    Statement st(connection);
    st.add(QStringLiteral("SELECT TRIM(rf.RDB$FIELD_NAME) AS NAME, f.RDB$FIELD_TYPE AS FTYPE"));
    st.add(QStringLiteral("FROM RDB$RELATION_FIELDS rf JOIN RDB$FIELDS f ON f.RDB$FIELD_NAME = rf.RDB$FIELD_SOURCE"));
    st.add(QStringLiteral("WHERE rf.RDB$RELATION_NAME = :aTable ORDER BY rf.RDB$FIELD_POSITION"));
    st.bind(QStringLiteral("aTable"), table);
    st.exec();
    QStringList names;
    QString types;
    for (; !st.atEnd(); st.next()) {
        names << st.string(QStringLiteral("NAME"));
        switch (st.integer(QStringLiteral("FTYPE"))) {
        case 8: types += QLatin1Char('I'); break;
        case 37: case 14: types += QLatin1Char('T'); break;
        case 27: case 10: types += QLatin1Char('F'); break;
        case 35: types += QLatin1Char('D'); break;
        default: types += QLatin1Char('?'); break;
        }
    }
    return {names, types};
}

} // namespace

TEST(Schema, EveryTableObjectFindsItsColumnsInOrderAndType)
{
    TestDatabase db;
    const auto all = expectedTables<
        TUsersObj, THistoryObj, TNumery_tabel_kursowObj, TSymbole_walutObj, TKrajeObj, TMiastaObj,
        TMiejscaObj, TKontrahenciObj, TKierowcyObj, TPojazdyObj, TNaczepyObj, TTaryfyprzewoznikaObj,
        TCenniki_kraj_grupyObj, TCenniki_kraj_kolumnyObj, TCenniki_kraj_wierszeObj, TCenniki_krajObj,
        TZlecenia_przychObj, TMiejsca_zlecObj, TTowaryObj, TZlecenia_zbiorObj, TZlecenia_spedObj,
        TKarty_drObj, TDokumentyObj, TFakturyObj, TFaktury_pozycjeObj, TFaktury_tekstyObj,
        TKonta_bankoweObj, TRodzaje_platnosciObj, TStawki_vatObj, TMiaryObj, TVzlecenia_przychObj,
        TVzlecenia_zbiorObj, TVmiejsca_zalad_rozladObj>();
    ASSERT_EQ(all.size(), 33u);
    for (const Expected &e : all) {
        const auto [names, types] = actualColumns(db.connection(), e.table);
        // Views, and tables through computed columns, may carry further
        // columns after the listed ones.
        EXPECT_EQ(names.mid(0, e.columns.size()), e.columns) << e.table.toStdString();
        if (!e.table.startsWith(QLatin1Char('V')))
            EXPECT_EQ(types.left(e.types.size()), e.types) << e.table.toStdString();
    }
}

TEST(Schema, PartnersViewMarksDomesticRoutes)
{
    TestDatabase db;
    db.exec(QStringLiteral("INSERT INTO KRAJE (SYMBOL, NAZWA) VALUES ('PL', 'Polska')"));
    db.exec(QStringLiteral("INSERT INTO KRAJE (SYMBOL, NAZWA) VALUES ('DE', 'Niemcy')"));
    db.exec(QStringLiteral("INSERT INTO SYMBOLE_WALUT (ID_KRAJU, SYMBOL) VALUES (1, 'PLN')"));
    db.exec(QStringLiteral("INSERT INTO KONFIGURACJA (POLE, TYP, VALUE_INT) VALUES ('IDWalutyKrajowej', 'I', 1)"));
    db.exec(QStringLiteral("INSERT INTO MIASTA (NAZWA, IDKRAJU) VALUES ('Poznań', 1)"));
    db.exec(QStringLiteral("INSERT INTO MIASTA (NAZWA, IDKRAJU) VALUES ('Kraków', 1)"));
    db.exec(QStringLiteral("INSERT INTO MIASTA (NAZWA, IDKRAJU) VALUES ('Berlin', 2)"));
    db.exec(QStringLiteral("INSERT INTO FAKTURY (NR_KOLEJNY) VALUES (1)"));
    db.exec(QStringLiteral("INSERT INTO ZLECENIA_PRZYCH (NUMER, IDFAKTURY, IDMIASTO_OD, IDMIASTO_DO) VALUES (1, 1, 1, 2)"));
    db.exec(QStringLiteral("INSERT INTO ZLECENIA_PRZYCH (NUMER, IDFAKTURY, IDMIASTO_OD, IDMIASTO_DO) VALUES (2, 1, 1, 3)"));
    db.exec(QStringLiteral("INSERT INTO ZLECENIA_PRZYCH (NUMER, IDFAKTURY, IDMIASTO_OD, IDMIASTO_DO) VALUES (3, 0, 1, 2)"));
    EXPECT_EQ(db.scalar(QStringLiteral("SELECT LIST(NUMER || ':' || KRAJ) FROM "
                                       "(SELECT NUMER, KRAJ FROM VRAPORT_WSPOLNICY ORDER BY NUMER)")),
              QStringLiteral("1:1,2:0"));
}

TEST(Schema, ScriptSplitsIntoWholeStatements)
{
    const QStringList statements = Schema::splitStatements(QStringLiteral(
        "-- comment\nCREATE TABLE A (ID INTEGER);\n\nSET TERM ^ ;\nCREATE TRIGGER T FOR A AS\nBEGIN\n"
        "  NEW.ID = 1;\nEND^\nSET TERM ; ^\nCREATE INDEX I ON A (ID);\n"));
    ASSERT_EQ(statements.size(), 3);
    EXPECT_EQ(statements[0], QStringLiteral("CREATE TABLE A (ID INTEGER)"));
    EXPECT_TRUE(statements[1].endsWith(QStringLiteral("NEW.ID = 1;\nEND")));
    EXPECT_EQ(statements[2], QStringLiteral("CREATE INDEX I ON A (ID)"));
}

TEST(Schema, ANewDatabaseWritesThroughToTheDisk)
{
    QTemporaryDir dir;
    const auto forcedWrites = [](const QString &path) {
        Connection connection;
        connection.open(path);
        Statement st(connection);
        st.add(QStringLiteral("SELECT MON$FORCED_WRITES AS FW FROM MON$DATABASE"));
        st.exec();
        return st.integer(0);
    };
    const QString kept = dir.filePath(QStringLiteral("kept.fdb"));
    Schema::createDatabase(kept);
    EXPECT_EQ(forcedWrites(kept), 1);
    const QString scratch = dir.filePath(QStringLiteral("scratch.fdb"));
    Schema::createDatabase(scratch, Schema::ForcedWrites::Off);
    EXPECT_EQ(forcedWrites(scratch), 0);
}
