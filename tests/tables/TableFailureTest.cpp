#include "DbError.h"
#include "ErrorLog.h"
#include "ErrorLogs.h"
#include "ScriptedMessages.h"
#include "TableObjects.h"
#include "TestDatabase.h"

#include <gtest/gtest.h>

namespace {

const ScriptedMessages::Shown &onlyBox()
{
    EXPECT_EQ(scriptedMessages().shown().size(), 1u);
    return scriptedMessages().shown().front();
}

} // namespace

TEST(TableFailure, FailedInsertShowsItsTablesWordingAndLogsOneLine)
{
    TestDatabase db;
    scriptedMessages().expect();
    TMiaryObj unit(db.connection());
    unit.NAZWA = QStringLiteral("kilogram");
    unit.SKROT = QString(40, QLatin1Char('k'));   // longer than the column
    unit.Insert();   // returns normally
    const auto &box = onlyBox();
    EXPECT_EQ(box.caption, QStringLiteral("Błąd"));
    EXPECT_EQ(box.icon, MessageService::Icon::Warning);
    EXPECT_EQ(box.buttons, MessageService::Buttons(MessageService::Ok));
    EXPECT_EQ(box.text, QStringLiteral("Błąd przy dodawaniu danych do tabeli MIARY"));
    const QStringList logged = loggedToday(ErrorLog::HaulixErrors);
    ASSERT_EQ(logged.size(), 1);
    EXPECT_TRUE(logged.front().contains(QStringLiteral("string right truncation"))) << logged.front().toStdString();
    EXPECT_TRUE(loggedToday(ErrorLog::SqlErrors).isEmpty());
    EXPECT_EQ(db.count(QStringLiteral("MIARY")), 0);
}

TEST(TableFailure, SomeTablesReportInsertsWithoutDo)
{
    TestDatabase db;
    scriptedMessages().expect();
    TKontrahenciObj contractor(db.connection());
    contractor.SKROT = QString(100, QLatin1Char('x'));
    contractor.Insert();
    EXPECT_EQ(onlyBox().text, QStringLiteral("Błąd przy dodawaniu danych tabeli KONTRAHENCI"));
    EXPECT_EQ(loggedToday(ErrorLog::SqlErrors).size(), 1);
    EXPECT_TRUE(loggedToday(ErrorLog::HaulixErrors).isEmpty());
}

TEST(TableFailure, UpdateAndDeleteHaveTheirOwnTexts)
{
    TestDatabase db;
    TMiastaObj city(db.connection());
    city.NAZWA = QStringLiteral("Opole");
    city.Insert();
    db.exec(QStringLiteral("CREATE EXCEPTION NIE_WOLNO 'Nie wolno'"));
    db.exec(QStringLiteral("CREATE TRIGGER MIASTA_BUD FOR MIASTA BEFORE UPDATE OR DELETE AS "
                           "BEGIN EXCEPTION NIE_WOLNO; END"));
    city = city.SelectAll().front();
    scriptedMessages().expect();
    scriptedMessages().expect();
    city.Update();
    city.Delete();
    ASSERT_EQ(scriptedMessages().shown().size(), 2u);
    EXPECT_EQ(scriptedMessages().shown()[0].text, QStringLiteral("Błąd przy poprawie danych tabeli MIASTA"));
    EXPECT_EQ(scriptedMessages().shown()[1].text, QStringLiteral("Błąd przy usuwaniu danych z tabeli MIASTA"));
    EXPECT_EQ(db.count(QStringLiteral("MIASTA")), 1);
}

TEST(TableFailure, AMultiLineDatabaseMessageIsLoggedOnOneLine)
{
    TestDatabase db;
    db.exec(QStringLiteral("CREATE EXCEPTION ZA_DUZO 'x'"));
    db.exec(QStringLiteral("CREATE TRIGGER MIARY_CHECK FOR MIARY BEFORE INSERT AS BEGIN "
                           "EXCEPTION ZA_DUZO 'Pierwsza linia' || ASCII_CHAR(13) || ASCII_CHAR(10) "
                           "|| 'druga linia' || ASCII_CHAR(10) || 'trzecia'; END"));
    scriptedMessages().expect();
    TMiaryObj unit(db.connection());
    unit.NAZWA = QStringLiteral("tona");
    unit.Insert();
    const QStringList logged = loggedToday(ErrorLog::HaulixErrors);
    ASSERT_EQ(logged.size(), 1);
    EXPECT_TRUE(logged.front().contains(QStringLiteral("Pierwsza linia druga linia trzecia")))
        << logged.front().toStdString();
    EXPECT_FALSE(logged.front().contains(QLatin1Char('\n')));
}

TEST(TableFailure, FailedSelectGivesAnEmptyList)
{
    TestDatabase db;
    scriptedMessages().expect();
    const auto rows = TMiastaObj(db.connection()).SelectAll(QStringLiteral("NIEMA_KOLUMNY"));
    EXPECT_TRUE(rows.empty());
    EXPECT_EQ(onlyBox().text, QStringLiteral("Błąd przy pobieraniu danych z tabeli MIASTA"));
}

TEST(TableFailure, GuardedMaxIdReportsAndGivesZeroUnguardedThrows)
{
    TestDatabase db;
    TMiejsca_zlecObj places(db.connection());
    places.ID_ZLECENIA = 1;
    places.Insert();
    TZlecenia_przychObj order(db.connection());
    order.Insert();
    db.connection().close();

    scriptedMessages().expect();
    EXPECT_EQ(places.GetMaxId(), 0);
    EXPECT_EQ(onlyBox().text, QStringLiteral("Błąd przy pobieraniu danych z tabeli MIEJSCA_ZLEC"));
    EXPECT_EQ(loggedToday(ErrorLog::SqlErrors).size(), 1);

    EXPECT_THROW(order.GetMaxId(), DbError);
    EXPECT_THROW(TMiastaObj(db.connection()).SelectDistinct(QStringLiteral("NAZWA")), DbError);
    EXPECT_EQ(scriptedMessages().shown().size(), 1u);
}
