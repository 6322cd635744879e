#include "DbError.h"
#include "Statement.h"
#include "TestDatabase.h"

#include <gtest/gtest.h>

TEST(Statement, FindsPlaceholdersOutsideQuotes)
{
    EXPECT_EQ(Statement::placeholders(QStringLiteral("SELECT * FROM T WHERE A=:aA AND B='12:30'\n"
                                                     "AND C CONTAINING :aValue OR D=:aA")),
              (QStringList{QStringLiteral("aA"), QStringLiteral("aValue")}));
}

TEST(Statement, RefusesUnknownAndMissingParameters)
{
    TestDatabase db;
    Statement st(db.connection());
    st.add(QStringLiteral("SELECT * FROM MIARY"));
    st.add(QStringLiteral("WHERE NAZWA=:aNAZWA AND SKROT=:aSKROT"));
    // A misspelt name would otherwise go to the database as NULL.
    EXPECT_THROW(st.bind(QStringLiteral("anazwa"), QStringLiteral("x")), DbError);
    st.bind(QStringLiteral("aNAZWA"), QStringLiteral("x"));
    EXPECT_THROW(st.exec(), DbError);
}

TEST(Statement, BindsTypedValuesAndReadsNullsAsZero)
{
    TestDatabase db;
    Statement insert(db.connection());
    insert.add(QStringLiteral("INSERT INTO TARYFYPRZEWOZNIKA "))
        .add(QStringLiteral("(NAZWA_STAWKI,NUMER_STAWKI,KWOTA_ZA_KM) VALUES "))
        .add(QStringLiteral("(:aNAZWA_STAWKI,:aNUMER_STAWKI,:aKWOTA_ZA_KM)"));
    insert.bind(QStringLiteral("aNAZWA_STAWKI"), QStringLiteral("Łódź–Gdańsk"));
    insert.bind(QStringLiteral("aNUMER_STAWKI"), 12);
    insert.bind(QStringLiteral("aKWOTA_ZA_KM"), 1.235);
    insert.exec();
    db.exec(QStringLiteral("INSERT INTO TARYFYPRZEWOZNIKA (NAZWA_STAWKI, NUMER_STAWKI, KWOTA_ZA_KM) "
                           "VALUES (NULL, NULL, NULL)"));

    Statement select(db.connection());
    select.add(QStringLiteral("SELECT * FROM TARYFYPRZEWOZNIKA ORDER BY ID_TARYFYPRZEWOZNIKA"));
    select.setUniDirectional(true);
    select.exec();
    ASSERT_FALSE(select.atEnd());
    EXPECT_EQ(select.string(QStringLiteral("NAZWA_STAWKI")), QStringLiteral("Łódź–Gdańsk"));
    EXPECT_EQ(select.integer(QStringLiteral("numer_stawki")), 12);
    EXPECT_DOUBLE_EQ(select.number(QStringLiteral("KWOTA_ZA_KM")), 1.235);
    ASSERT_TRUE(select.next());
    EXPECT_EQ(select.string(QStringLiteral("NAZWA_STAWKI")), QString());
    EXPECT_EQ(select.integer(QStringLiteral("NUMER_STAWKI")), 0);
    EXPECT_EQ(select.number(QStringLiteral("KWOTA_ZA_KM")), 0.0);
    EXPECT_FALSE(select.next());
    EXPECT_TRUE(select.atEnd());
}

TEST(Statement, DatesRoundTripAndNullDateBindsAsNull)
{
    TestDatabase db;
    const DateTime when = DateTime::fromDateTime(QDateTime(QDate(2026, 3, 29), QTime(2, 30)));
    for (const DateTime value : {when, DateTime()}) {
        Statement st(db.connection());
        st.add(QStringLiteral("INSERT INTO NUMERY_TABEL_KURSOW (NUMER, Z_DNIA) VALUES (:aNUMER, :aZ_DNIA)"));
        st.bind(QStringLiteral("aNUMER"), QString::number(value.days()));
        st.bind(QStringLiteral("aZ_DNIA"), value);
        st.exec();
    }
    EXPECT_EQ(db.count(QStringLiteral("NUMERY_TABEL_KURSOW"), QStringLiteral("Z_DNIA IS NULL")), 1);
    Statement st(db.connection());
    st.add(QStringLiteral("SELECT Z_DNIA FROM NUMERY_TABEL_KURSOW ORDER BY ID_NUM_TAB"));
    st.exec();
    EXPECT_DOUBLE_EQ(st.dateTime(0).days(), when.days());
    st.next();
    EXPECT_TRUE(st.dateTime(0).isNull());
}

TEST(Statement, RunningASelectAgainSeesRowsCommittedMeanwhile)
{
    TestDatabase db;
    Statement select(db.connection());
    select.add(QStringLiteral("SELECT COUNT(*) FROM MIARY"));
    select.exec();
    EXPECT_EQ(select.integer(0), 0);
    Statement insert(db.connection());
    insert.add(QStringLiteral("INSERT INTO MIARY (NAZWA) VALUES (:aNAZWA)"));
    for (const char *name : {"tona", "paleta"}) {
        insert.bind(QStringLiteral("aNAZWA"), QString::fromUtf8(name));
        insert.exec();
    }
    select.exec();
    EXPECT_EQ(select.integer(0), 2);
}
