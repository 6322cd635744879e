#include "DbError.h"
#include "ScriptedMessages.h"
#include "TableObjects.h"
#include "TestData.h"
#include "TestDatabase.h"

#include <gtest/gtest.h>

using TestData::addCity;

TEST(TableObject, InsertGivesTheRecordItsOwnKeyNotTheHighestOne)
{
    TestDatabase db;
    Connection elsewhere;
    elsewhere.open(db.path());
    TZlecenia_przychObj order(db.connection());
    EXPECT_EQ(order.GetMaxId(), 0);
    TZlecenia_przychObj otherOrder(elsewhere);
    int previous = 0;
    for (int i = 0; i < 3; ++i) {
        order.NUMER = 10 - i;
        ASSERT_TRUE(order.Insert());
        // Another workstation inserts right after.
        otherOrder.NUMER = 100 + i;
        otherOrder.Insert();
        EXPECT_GT(order.ID_ZLECENIA_PRZYCH, previous);
        EXPECT_EQ(otherOrder.ID_ZLECENIA_PRZYCH, order.GetMaxId());
        EXPECT_EQ(order.SelectById(order.ID_ZLECENIA_PRZYCH).NUMER, 10 - i);
        previous = order.ID_ZLECENIA_PRZYCH;
    }
    // Outside a transaction the row is committed when Insert returns.
    EXPECT_EQ(db.countSeenElsewhere(QStringLiteral("ZLECENIA_PRZYCH")), 6);
}

TEST(TableObject, AFailedInsertLeavesNoKeyBehind)
{
    TestDatabase db;
    db.exec(QStringLiteral("ALTER TABLE MIARY ADD CONSTRAINT MIARY_SKROT CHECK (SKROT <> 'x')"));
    TMiaryObj unit(db.connection());
    unit.NAZWA = QStringLiteral("kilogram");
    unit.SKROT = QStringLiteral("kg");
    ASSERT_TRUE(unit.Insert());
    // A record copied from a stored one carries that one's key.
    TMiaryObj copy = unit;
    copy.SKROT = QStringLiteral("x");
    scriptedMessages().expect();
    EXPECT_FALSE(copy.Insert());
    EXPECT_EQ(copy.ID_MIARY, 0);
}

TEST(TableObject, SelectAllKeepsDatabaseOrderOrTheGivenOne)
{
    TestDatabase db;
    for (const char *name : {"Radom", "Gdańsk", "Łódź", "Kraków"})
        addCity(db.connection(), {.name = QString::fromUtf8(name), .country = 1});
    const TMiastaObj cities(db.connection());
    const auto byKey = cities.SelectAll(QStringLiteral("ID_MIASTA"));
    ASSERT_EQ(byKey.size(), 4u);
    EXPECT_EQ(byKey.front().NAZWA, QStringLiteral("Radom"));
    const auto byName = cities.SelectAll(QStringLiteral("NAZWA"));
    EXPECT_EQ(byName.front().NAZWA, QStringLiteral("Gdańsk"));
    const auto all = cities.SelectWhere(QString(), opEqual, QStringLiteral("ignored"));
    EXPECT_EQ(all.size(), cities.SelectAll().size());
}

TEST(TableObject, ZeroDatesAreStoredAsNullAndNullReadsAsZero)
{
    TestDatabase db;
    TZlecenia_przychObj order(db.connection());
    order.DATA = DateTime::fromDate(QDate(2026, 11, 20));
    order.Insert();
    EXPECT_EQ(db.count(QStringLiteral("ZLECENIA_PRZYCH"),
                       QStringLiteral("AWIZO IS NULL AND DOSTARCZENIE IS NULL AND DATA IS NOT NULL")),
              1);

    TZlecenia_przychObj read = order.SelectById(order.GetMaxId());
    EXPECT_TRUE(read.AWIZO.isNull());
    EXPECT_EQ(read.DATA.date(), QDate(2026, 11, 20));
    read.DATA = DateTime();
    read.Update();
    EXPECT_EQ(db.count(QStringLiteral("ZLECENIA_PRZYCH"), QStringLiteral("DATA IS NULL")), 1);
}

TEST(TableObject, LongTextsAreCutTo255OnRead)
{
    TestDatabase db;
    // Another program of the suite may keep longer texts than we do.
    db.exec(QStringLiteral("ALTER TABLE FAKTURY_TEKSTY ALTER NAZWA TYPE VARCHAR(400)"));
    const QString longText = QString(300, QChar(0x0105));
    db.exec(QStringLiteral("INSERT INTO FAKTURY_TEKSTY (NAZWA) VALUES ('%1')").arg(longText));
    const auto texts = TFaktury_tekstyObj(db.connection()).SelectAll();
    ASSERT_EQ(texts.size(), 1u);
    EXPECT_EQ(texts.front().NAZWA, longText.left(255));
}

TEST(TableObject, SelectWhereBindsTheValueByTheColumnType)
{
    TestDatabase db;
    TTaryfyprzewoznikaObj tariff(db.connection());
    tariff.NAZWA_STAWKI = QStringLiteral("Dwunasta");
    tariff.NUMER_STAWKI = 12;
    tariff.KWOTA_ZA_KM = 1.25;
    tariff.Insert();
    tariff.NAZWA_STAWKI = QStringLiteral("12");
    tariff.NUMER_STAWKI = 7;
    tariff.Insert();

    // The text "12" is an integer for an integer column and text for a text column.
    const auto byNumber = tariff.SelectWhere(QStringLiteral("NUMER_STAWKI"), opEqual, QStringLiteral("12"));
    ASSERT_EQ(byNumber.size(), 1u);
    EXPECT_EQ(byNumber.front().NAZWA_STAWKI, QStringLiteral("Dwunasta"));
    const auto byName = tariff.SelectWhere(QStringLiteral("NAZWA_STAWKI"), opEqual, QStringLiteral("12"));
    ASSERT_EQ(byName.size(), 1u);
    EXPECT_EQ(byName.front().NUMER_STAWKI, 7);
    EXPECT_EQ(tariff.SelectWhere(QStringLiteral("NAZWA_STAWKI"), opContaining, QStringLiteral("DWU")).size(), 1u);
    EXPECT_EQ(tariff.SelectWhere(QStringLiteral("KWOTA_ZA_KM"), opGreater, 1.0).size(), 2u);
    EXPECT_EQ(tariff.SelectWhere(QStringLiteral("NUMER_STAWKI"), opLess, 10, QStringLiteral("NUMER_STAWKI")).size(), 1u);
}

TEST(TableObject, UnbindableColumnTypeFailsWithTheSelectMessage)
{
    TestDatabase db;
    addCity(db.connection(), {.name = QStringLiteral("Opole"), .country = 1});
    scriptedMessages().expect();
    // A BIGINT expression is a type the table objects cannot bind.
    const auto rows = TMiastaObj(db.connection())
                          .SelectWhere(QStringLiteral("CAST(ID_MIASTA AS BIGINT)"), opEqual, 1);
    EXPECT_TRUE(rows.empty());
    ASSERT_EQ(scriptedMessages().shown().size(), 1u);
    EXPECT_EQ(scriptedMessages().shown().front().text,
              QStringLiteral("Błąd przy pobieraniu danych z tabeli MIASTA"));
}

TEST(TableObject, SelectWhere2UsesTheFirstOperatorForBothConditions)
{
    TestDatabase db;
    TKontrahenciObj contractor(db.connection());
    for (const auto &[shortName, days] : {std::pair{"Trans-Pol", 14}, {"Transbud", 30}, {"Polmar", 30}}) {
        contractor.SKROT = QString::fromUtf8(shortName);
        contractor.PLATNOSC_DNI = days;
        contractor.Insert();
    }
    // opContaining on both: "30" is looked for in PLATNOSC_DNI with CONTAINING
    // too, even though opEqual was asked for the second condition.
    const auto rows = contractor.SelectWhere2(QStringLiteral("SKROT"), opContaining, QStringLiteral("trans"),
                                              QStringLiteral("PLATNOSC_DNI"), opEqual, 3,
                                              QStringLiteral("SKROT"));
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows.front().SKROT, QStringLiteral("Transbud"));
}

TEST(TableObject, EmptyTextIsStoredEmptyAndSelectDistinctSkipsIt)
{
    TestDatabase db;
    for (const char *code : {"00-950", "", "00-950", "31-000"})
        addCity(db.connection(),
                {.name = QStringLiteral("x"), .postcode = QString::fromUtf8(code), .country = 1});
    db.exec(QStringLiteral("INSERT INTO MIASTA (NAZWA, KOD) VALUES ('y', NULL)"));
    // An empty text is stored as such, not as NULL.
    EXPECT_EQ(db.count(QStringLiteral("MIASTA"), QStringLiteral("KOD = ''")), 1);
    QStringList codes = TMiastaObj(db.connection()).SelectDistinct(QStringLiteral("KOD"));
    codes.sort();
    EXPECT_EQ(codes, (QStringList{QStringLiteral("00-950"), QStringLiteral("31-000")}));
}

TEST(TableObject, SelectClauseAndSelectOneTakeTheCallersTail)
{
    TestDatabase db;
    TTowaryObj goods(db.connection());
    for (int order : {5, 6, 5}) {
        goods.ID_ZLECENIA = order;
        goods.NAZWA = QStringLiteral("Paleta %1").arg(order);
        goods.Insert();
    }
    EXPECT_EQ(goods.SelectClause(QStringLiteral("WHERE ID_ZLECENIA=5")).size(), 2u);
    EXPECT_EQ(goods.SelectClause(QString()).size(), 3u);
    EXPECT_EQ(goods.SelectOne(QStringLiteral("WHERE ID_ZLECENIA=6")).NAZWA, QStringLiteral("Paleta 6"));
}

TEST(TableObject, UpdateAndDeleteGoByTheKeyAndADeletedKeyReadsAsZero)
{
    TestDatabase db;
    TUsersObj user(db.connection());
    user.LOGIN = QStringLiteral("anowak");
    user.Insert();
    user.LOGIN = QStringLiteral("jkowal");
    user.Insert();
    auto users = user.SelectAll(QStringLiteral("ID_USER"));
    users.front().NAZWISKO = QStringLiteral("Nowak");
    users.front().Update();
    const int deleted = users.back().ID_USER;
    ASSERT_NE(deleted, 0);
    users.back().Delete();
    const auto left = user.SelectAll();
    ASSERT_EQ(left.size(), 1u);
    EXPECT_EQ(left.front().LOGIN, QStringLiteral("anowak"));
    EXPECT_EQ(left.front().NAZWISKO, QStringLiteral("Nowak"));

    // A missing key reads as an empty record with key zero.
    const TUsersObj gone = user.SelectById(deleted);
    EXPECT_EQ(gone.ID_USER, 0);
    EXPECT_TRUE(gone.LOGIN.isEmpty());
    EXPECT_TRUE(gone.PASSCHANGED.isNull());
}

TEST(TableObject, AStatementOfItsOwnBindsNamedColumnsAndReadsRowsAsTheSelectsDo)
{
    TestDatabase db;
    TTowaryObj goods(db.connection());
    goods.ID_ZLECENIA = 8;
    goods.NAZWA = QStringLiteral("Jabłka");
    Statement insert(db.connection());
    insert.add(QStringLiteral("INSERT INTO TOWARY (ID_ZLECENIA, nazwa)"));
    insert.add(QStringLiteral("VALUES (:aID_ZLECENIA, :anazwa)"));
    goods.bindColumns(insert, {QStringLiteral("ID_ZLECENIA"), QStringLiteral("nazwa")});
    insert.exec();
    EXPECT_THROW(goods.bindColumns(insert, {QStringLiteral("NIEMA")}), DbError);

    Statement select(db.connection());
    select.add(QStringLiteral("SELECT * FROM TOWARY"));
    select.exec();
    TTowaryObj read(db.connection());
    read.readCurrentRow(select);
    EXPECT_NE(read.ID_TOWARU, 0);
    EXPECT_EQ(read.ID_ZLECENIA, 8);
    EXPECT_EQ(read.NAZWA, QStringLiteral("Jabłka"));
}
