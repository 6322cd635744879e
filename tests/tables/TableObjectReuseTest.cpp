#include "ScriptedMessages.h"
#include "TableObjects.h"
#include "TestData.h"
#include "TestDatabase.h"
#include "Transaction.h"

#include <gtest/gtest.h>

using TestData::addCity;

namespace {

QString cityName(TestDatabase &db, int key)
{
    return db.scalar(QStringLiteral("SELECT NAZWA FROM MIASTA WHERE ID_MIASTA=%1").arg(key));
}

} // namespace

TEST(TableObjectReuse, WritesKeepTheirStatementAcrossTransactionsAndFailures)
{
    TestDatabase db;
    db.exec(QStringLiteral("ALTER TABLE MIASTA ADD CONSTRAINT MIASTA_NAZWA CHECK (NAZWA <> 'x')"));
    Connection &connection = db.connection();
    Transaction transaction(connection);
    TMiastaObj city(connection);
    city.NAZWA = QStringLiteral("Kraków");
    ASSERT_TRUE(city.Insert());
    {
        TransactionScope scope(transaction);
        city.NAZWA = QStringLiteral("Łódź");
        ASSERT_TRUE(city.Update());
        scope.commit();
    }
    {
        TransactionScope undone(transaction);
        city.NAZWA = QStringLiteral("Gdańsk");
        ASSERT_TRUE(city.Update());
    }
    EXPECT_EQ(cityName(db, city.ID_MIASTA), QStringLiteral("Łódź"));

    // A failed update is reported; the next one, by another record of the
    // same table, is stored and committed at once.
    scriptedMessages().expect();
    city.NAZWA = QStringLiteral("x");
    EXPECT_FALSE(city.Update());
    EXPECT_EQ(scriptedMessages().shown().front().text,
              QStringLiteral("Błąd przy poprawie danych tabeli MIASTA"));
    TMiastaObj same(connection);
    same.ID_MIASTA = city.ID_MIASTA;
    same.NAZWA = QStringLiteral("Żółkiewka");
    ASSERT_TRUE(same.Update());
    Connection elsewhere;
    elsewhere.open(db.path());
    Statement seen(elsewhere);
    seen.add(QStringLiteral("SELECT NAZWA FROM MIASTA WHERE ID_MIASTA=:aID"));
    seen.bind(QStringLiteral("aID"), city.ID_MIASTA);
    seen.exec();
    EXPECT_EQ(seen.string(0), QStringLiteral("Żółkiewka"));

    // Inserts inside a scope hand back each record's own key; a rolled
    // back scope leaves none of them.
    std::vector<int> keys;
    {
        TransactionScope undone(transaction);
        for (const char *name : {"Opole", "Radom"}) {
            TMiastaObj added(connection);
            added.NAZWA = QString::fromUtf8(name);
            ASSERT_TRUE(added.Insert());
            keys.push_back(added.ID_MIASTA);
        }
        EXPECT_NE(keys.front(), keys.back());
        EXPECT_EQ(cityName(db, keys.back()), QStringLiteral("Radom"));
    }
    EXPECT_EQ(db.count(QStringLiteral("MIASTA")), 1);
    ASSERT_TRUE(same.Delete());
    EXPECT_EQ(db.countSeenElsewhere(QStringLiteral("MIASTA")), 0);
}

TEST(TableObjectReuse, SelectWhereBindsDatesNullsAndPolishTextByTheColumnList)
{
    TestDatabase db;
    for (const char *name : {"Łódź", "Łowicz", "łódka", "Kraków"})
        addCity(db.connection(), {.name = QString::fromUtf8(name), .country = 1});
    addCity(db.connection(), {.name = QString(), .country = 2});
    const TMiastaObj cities(db.connection());
    const auto names = [](const std::vector<TMiastaObj> &rows) {
        QStringList result;
        for (const TMiastaObj &row : rows)
            result << row.NAZWA;
        return result;
    };
    const QString order = QStringLiteral("ID_MIASTA");
    EXPECT_EQ(names(cities.SelectWhere(QStringLiteral("NAZWA"), opEqual, QStringLiteral("Łódź"))),
              QStringList{QStringLiteral("Łódź")});
    EXPECT_EQ(names(cities.SelectWhere(QStringLiteral("nazwa"), opContaining,
                                       QStringLiteral("ŁÓD"), order)),
              (QStringList{QStringLiteral("Łódź"), QStringLiteral("łódka")}));
    EXPECT_EQ(names(cities.SelectWhere(QStringLiteral("NAZWA"), opStartingWith,
                                       QStringLiteral("Ło"), order)),
              QStringList{QStringLiteral("Łowicz")});
    // A null value compares as an empty text with a text column, and as
    // the number it is given in with an integer column.
    EXPECT_EQ(cities.SelectWhere(QStringLiteral("NAZWA"), opEqual, QVariant()).size(), 1u);
    EXPECT_EQ(cities.SelectWhere(QStringLiteral("idkraju"), opEqual, QStringLiteral("2")).size(), 1u);
    scriptedMessages().expect();
    EXPECT_TRUE(cities.SelectWhere(QStringLiteral("IDKRAJU"), opEqual, QVariant()).empty());
    EXPECT_EQ(scriptedMessages().shown().size(), 1u);

    TNumery_tabel_kursowObj table(db.connection());
    table.NUMER = QStringLiteral("bez daty");
    table.Insert();
    table.NUMER = QStringLiteral("1/A/NBP");
    table.Z_DNIA = DateTime::fromDate(QDate(2026, 3, 29));
    table.Insert();
    EXPECT_EQ(table.SelectWhere(QStringLiteral("Z_DNIA"), opGreater, QDate(2026, 3, 28)).size(), 1u);
    EXPECT_EQ(table.SelectWhere(QStringLiteral("Z_DNIA"), opLess, 46111.0).size(), 1u);
    EXPECT_EQ(table.SelectWhere(QStringLiteral("Z_DNIA"), opEqual,
                                QVariant::fromValue(DateTime::fromDate(QDate(2026, 3, 29))))
                  .size(),
              1u);
    EXPECT_EQ(table.SelectWhere(QStringLiteral("Z_DNIA"), opEqual,
                                QDateTime(QDate(2026, 3, 29), QTime(0, 0)))
                  .size(),
              1u);
    scriptedMessages().expect();
    EXPECT_TRUE(table.SelectWhere(QStringLiteral("Z_DNIA"), opEqual, QVariant()).empty());
    // The second failure of the test.
    EXPECT_EQ(scriptedMessages().shown().size(), 2u);
}
