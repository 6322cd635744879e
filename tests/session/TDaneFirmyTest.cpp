#include "Connection.h"
#include "DbError.h"
#include "ScriptedMessages.h"
#include "SessionContext.h"
#include "Statement.h"
#include "TDaneFirmy.h"
#include "TestDatabase.h"
#include "Transaction.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

class TDaneFirmyTest : public testing::Test
{
protected:
    TestDatabase db;
    Transaction transaction{db.connection()};
    SessionContext context{7, &db.connection(), &transaction};
};

} // namespace

TEST_F(TDaneFirmyTest, LoadsTheCompanyDataOnCreation)
{
    db.exec(QStringLiteral(
        "INSERT INTO DANE_FIRMY (NAZWA, KOD, MIEJSCOWOSC, ADRES, POBOX, NIP, REGON, KONTAKT1, "
        "KONTAKT6, MIEJSCE_WYSTAWIANIA, WOJEWODZTWO, EURONIP_1, EURONIP_3) VALUES ("
        "'Trans-Żuraw Sp. z o.o.', '80-180', 'Gdańsk', 'ul. Przemysłowa 4', 'skr. 12', "
        "'584-000-11-22', '190000000', 'tel. 58 300 00 00', 'biuro@example.pl', 'Gdańsk', "
        "'pomorskie', 'PL5840001122', 'PL3')"));
    const TDaneFirmy f(context);
    EXPECT_EQ((QStringList{f.NAZWA, f.KOD, f.MIEJSCOWOSC, f.ADRES, f.POBOX, f.NIP, f.REGON,
                           f.KONTAKT1, f.KONTAKT2, f.KONTAKT6, f.MIEJSCE_WYSTAWIANIA,
                           f.WOJEWODZTWO, f.EURONIP_1, f.EURONIP_3}),
              (QStringList{"Trans-Żuraw Sp. z o.o.", "80-180", "Gdańsk", "ul. Przemysłowa 4",
                           "skr. 12", "584-000-11-22", "190000000", "tel. 58 300 00 00", "",
                           "biuro@example.pl", "Gdańsk", "pomorskie", "PL5840001122", "PL3"}));
}

TEST_F(TDaneFirmyTest, WithoutCompanyDataOrDatabaseTheTextsStayEmptyAndNamesKeepTheirLimits)
{
    EXPECT_EQ(TDaneFirmy(context).NAZWA, QString());
    const SessionContext noDatabase;
    const TDaneFirmy firma(noDatabase);
    EXPECT_EQ(firma.NAZWA, QString());
    EXPECT_EQ(firma.GetConfigInt(QStringLiteral("IDWalutyKrajowej")), 0);

    // The workstation's names keep the limits of their columns.
    EXPECT_LE(TDaneFirmy::GetComputerName().size(), 16);
    EXPECT_FALSE(TDaneFirmy::GetLoginName().isEmpty());
    EXPECT_LE(TDaneFirmy::GetLoginName().size(), 51);
}

TEST_F(TDaneFirmyTest, WriteHistoryStoresOneCommittedRowOfTheValuesAsText)
{
    const TDaneFirmy firma(context);
    const double before = DateTime::now().days();
    EXPECT_TRUE(firma.WriteHistory(QVariantList{12, QStringLiteral("Gdańsk"), 2.5}, 3, 17));
    EXPECT_FALSE(transaction.InTransaction());
    EXPECT_EQ(db.countSeenElsewhere(QStringLiteral("HISTORY")), 1);

    Statement st(db.connection());
    st.add(QStringLiteral("SELECT * FROM HISTORY"));
    st.exec();
    QStringList row;
    for (const char *column : {"USERID", "OPERACJA", "GRUPA", "HISTORY_PARAMS", "COMPNAME",
                               "COMPUSER"})
        row << st.string(QLatin1String(column));
    EXPECT_EQ(row, (QStringList{"7", "3", "17", "12,Gdańsk,2.5", TDaneFirmy::GetComputerName(),
                                TDaneFirmy::GetLoginName()}));
    // Stored to the millisecond, read back within a minute of the call.
    EXPECT_LT(std::fabs(st.dateTime(QStringLiteral("CZAS")).days() - before), 1.0 / 1440);

    // A single value is its text; a list is joined by commas.
    EXPECT_TRUE(firma.WriteHistory(QVariant(42), 1, 0));
    EXPECT_TRUE(firma.WriteHistory(QStringList{QStringLiteral("a"), QStringLiteral("b")}, 2, 0));
    EXPECT_EQ(db.scalar(QStringLiteral("SELECT LIST(HISTORY_PARAMS, '|') FROM "
                                       "(SELECT HISTORY_PARAMS FROM HISTORY ORDER BY ID_HISTORY)")),
              QStringLiteral("12,Gdańsk,2.5|42|a,b"));
}

TEST_F(TDaneFirmyTest, WriteHistoryInsideARunningTransactionLeavesItToTheCallerAFailureLeavesNothing)
{
    const TDaneFirmy firma(context);
    transaction.StartTransaction();
    EXPECT_TRUE(firma.WriteHistory(QStringLiteral("x"), 3, 1));
    EXPECT_TRUE(transaction.InTransaction());
    transaction.Rollback();
    EXPECT_EQ(db.count(QStringLiteral("HISTORY")), 0);

    // A failed insert is reported and leaves nothing.
    scriptedMessages().expect(MessageService::Ok);
    EXPECT_FALSE(firma.WriteHistory(QString(300, QLatin1Char('x')), 3, 1));
    ASSERT_EQ(scriptedMessages().shown().size(), 1u);
    EXPECT_EQ(scriptedMessages().shown().front().text,
              QStringLiteral("Błąd przy dodawaniu danych do tabeli HISTORY"));
    EXPECT_FALSE(transaction.InTransaction());
    EXPECT_EQ(db.count(QStringLiteral("HISTORY")), 0);
}

TEST_F(TDaneFirmyTest, FormatsDocumentNumbersAndMoney)
{
    EXPECT_EQ(TDaneFirmy::FormatDocumentNumber(QStringLiteral("%###;/;%R"), 5, QString(),
                                               DateTime::fromDate(QDate(2024, 1, 2))),
              QStringLiteral("005/2024"));
    EXPECT_DOUBLE_EQ(TDaneFirmy::RoundTo2(2.345), 2.35);
    EXPECT_EQ(TDaneFirmy::AmountInWords(12.5), QStringLiteral("dwanaście 50/100"));
}

namespace {

class ConvertCurrencyTest : public TDaneFirmyTest
{
protected:
    ConvertCurrencyTest()
    {
        db.exec(QStringLiteral("INSERT INTO KONFIGURACJA (POLE, TYP, VALUE_INT) "
                               "VALUES ('IDWalutyKrajowej', 'I', 1)"));
        addTable(QStringLiteral("A/1"), QStringLiteral("2024-03-01"));
        march4 = addTable(QStringLiteral("A/2"), QStringLiteral("2024-03-04"));
        march10 = addTable(QStringLiteral("A/3"), QStringLiteral("2024-03-10"));
        addRate(march4, Euro, 4.3215, 1);
        addRate(march4, Forint, 1.1, 100);
        addRate(march4, Quarter, 0.25, 1);
        addRate(march10, Euro, 4.4, 1);
    }

    int addTable(const QString &number, const QString &date)
    {
        db.exec(QStringLiteral("INSERT INTO NUMERY_TABEL_KURSOW (NUMER, Z_DNIA) VALUES ('%1', '%2')")
                    .arg(number, date));
        return db.scalar(QStringLiteral("SELECT MAX(ID_NUM_TAB) FROM NUMERY_TABEL_KURSOW")).toInt();
    }

    void addRate(int table, int currency, double rate, int quantity)
    {
        db.exec(QStringLiteral("INSERT INTO TABELE_KURSOW (ID_NUM_TAB, ID_WALUTY, KURS, ILOSC) "
                               "VALUES (%1, %2, %3, %4)")
                    .arg(table)
                    .arg(currency)
                    .arg(rate)
                    .arg(quantity));
    }

    static DateTime day(int year, int month, int dayOfMonth)
    {
        return DateTime::fromDate(QDate(year, month, dayOfMonth));
    }

    // Converts with the table, date, quantity, rate and table number kept
    // in the fixture, where the conversion writes them back.
    double convert(int currency, double amount, int table = 0, DateTime on = day(2024, 3, 5),
                   int numberLength = 20)
    {
        tableID = table;
        date = on;
        return TDaneFirmy(context).ConvertCurrency(tableID, currency, date, quantity, rate,
                                                   numberLength, tableNumber, amount);
    }

    static constexpr int Zloty = 1;
    static constexpr int Euro = 2;
    static constexpr int Forint = 3;
    static constexpr int Quarter = 4;
    static constexpr int Dollar = 5;
    int march4 = 0;
    int march10 = 0;
    int tableID = 0;
    DateTime date;
    int quantity = -7;
    double rate = -7.0;
    QString tableNumber = QStringLiteral("przed");
};

} // namespace

TEST_F(ConvertCurrencyTest, TheDomesticCurrencyNeedsNoTable)
{
    db.exec(QStringLiteral("DELETE FROM NUMERY_TABEL_KURSOW"));
    EXPECT_DOUBLE_EQ(convert(Zloty, 100.0), 100.0);
    EXPECT_EQ(quantity, 1);
    EXPECT_DOUBLE_EQ(rate, 1.0);
    EXPECT_EQ(tableID, 0);
    EXPECT_EQ(date, day(2024, 3, 5));
    EXPECT_EQ(tableNumber, QStringLiteral("przed"));
}

TEST_F(ConvertCurrencyTest, TakesTheLatestTableOnOrBeforeTheDateAndRoundsHalfCentsToEven)
{
    EXPECT_DOUBLE_EQ(convert(Euro, 100.0), 432.15);
    EXPECT_EQ(tableID, march4);
    EXPECT_EQ(date, day(2024, 3, 4));
    EXPECT_EQ(tableNumber, QStringLiteral("A/2"));
    EXPECT_DOUBLE_EQ(rate, 4.3215);
    EXPECT_EQ(quantity, 1);

    EXPECT_DOUBLE_EQ(convert(Forint, 1000.0), 11.0);
    EXPECT_EQ(quantity, 100);
    EXPECT_DOUBLE_EQ(convert(Quarter, 0.5), 0.12);
    EXPECT_DOUBLE_EQ(convert(Quarter, 1.5), 0.38);
}

TEST_F(ConvertCurrencyTest, AGivenTableIsUsedWithItsNumberCut)
{
    EXPECT_DOUBLE_EQ(convert(Euro, 10.0, march10, day(2024, 3, 5), 2), 44.0);
    EXPECT_EQ(tableID, march10);
    EXPECT_EQ(tableNumber, QStringLiteral("A/"));
    EXPECT_EQ(date, day(2024, 3, 5));
}

TEST_F(ConvertCurrencyTest, NoTableOrNoRateGivesQuantityZero)
{
    EXPECT_DOUBLE_EQ(convert(Euro, 100.0, 0, day(2024, 2, 1)), 0.0);
    EXPECT_EQ(tableID, -1);
    EXPECT_EQ(quantity, 0);
    EXPECT_DOUBLE_EQ(rate, 0.0);
    EXPECT_EQ(date, day(2024, 2, 1));

    EXPECT_DOUBLE_EQ(convert(Dollar, 100.0), 0.0);
    EXPECT_EQ(tableID, march4);
    EXPECT_EQ(quantity, 0);
}
