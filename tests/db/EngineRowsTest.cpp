#include "DbError.h"
#include "EngineRows.h"
#include "SameRows.h"
#include "Statement.h"
#include "TestDatabase.h"
#include "Transaction.h"

#include <gtest/gtest.h>

namespace {

const char Types[] =
    "CREATE TABLE TYPY (ID INTEGER, TEKST VARCHAR(40), ZNAKI CHAR(3), MALA SMALLINT, "
    "DUZA BIGINT, KWOTA NUMERIC(15,2), UDZIAL NUMERIC(4,1), STAWKA NUMERIC(9,3), "
    "ILOSC DOUBLE PRECISION, WAGA FLOAT, DZIEN DATE, CHWILA TIMESTAMP, GODZINA TIME, "
    "FLAGA BOOLEAN)";

} // namespace

TEST(EngineRows, ReadsEveryColumnTypeAsTheDriverDoesNullsAndPolishLettersIncluded)
{
    TestDatabase db;
    db.exec(QString::fromLatin1(Types));
    db.exec(QStringLiteral(
        "INSERT INTO TYPY VALUES (1, 'Zażółć gęślą jaźń – ŁÓDŹ €', 'ąb', -7, 5000000000, "
        "1.15, -12.5, 1234.567, 0.1, 2.5, '2026-03-29', '2026-03-29 14:30:15.1230', "
        "'23:59:59.9990', TRUE)"));
    db.exec(QStringLiteral(
        "INSERT INTO TYPY VALUES (2, '', '', 0, 0, 0, 0, 0, 0, 0, '1899-12-30', "
        "'1899-12-30 00:00:00', '00:00:00', FALSE)"));
    // Before the day count's epoch, and the far future.
    db.exec(QStringLiteral(
        "INSERT INTO TYPY VALUES (3, 'x', 'abc', 32767, -1, -0.01, 0.1, -0.005, -1e300, "
        "-3.25, '1850-06-01', '1850-06-01 06:00:00', '12:00:00', FALSE)"));
    db.exec(QStringLiteral(
        "INSERT INTO TYPY VALUES (4, 'ostatni', 'z', 1, 2, 99999999.99, 999.9, 999999.999, "
        "1e-7, 1, '9999-12-31', '9999-12-31 23:59:59.9999', '01:02:03', TRUE)"));
    db.exec(QStringLiteral("INSERT INTO TYPY (ID) VALUES (5)"));

    const auto select = [](const char *sql) {
        return [sql](Statement &st) { st.add(QString::fromLatin1(sql)); };
    };
    const SameRowsSeen seen =
        expectSameRows(db.connection(), select("SELECT * FROM TYPY ORDER BY ID"));
    EXPECT_EQ(seen.rows, 5);
    EXPECT_EQ(seen.nulls, 13);
    EXPECT_EQ(seen.nonAsciiTexts, 2);
    // Computed columns: a sum of NUMERIC is a BIGINT-backed NUMERIC, a
    // count a BIGINT, a concatenation a longer VARCHAR.
    EXPECT_EQ(expectSameRows(db.connection(),
                             select("SELECT COUNT(*) AS ILE, SUM(KWOTA) AS SUMA, "
                                    "MAX(TEKST || '/' || ZNAKI) AS RAZEM FROM TYPY"))
                  .rows,
              1);
}

TEST(EngineRows, ReadsInTheSessionsTransactionWhatItWroteAndNotYetCommitted)
{
    TestDatabase db;
    Transaction transaction(db.connection());
    TransactionScope scope(transaction);
    Statement insert(db.connection());
    insert.add(QStringLiteral("INSERT INTO MIARY (NAZWA, SKROT) VALUES (:aNazwa, 'ś')"));
    insert.bind(QStringLiteral("aNazwa"), QStringLiteral("źdźbło"));
    insert.exec();

    Statement select(db.connection());
    select.add(QStringLiteral("SELECT NAZWA, SKROT FROM MIARY WHERE NAZWA = :aNazwa"));
    select.bind(QStringLiteral("aNazwa"), QStringLiteral("źdźbło"));
    EngineRows rows(select);
    ASSERT_TRUE(rows.next());
    EXPECT_EQ(rows.string(0), QStringLiteral("źdźbło"));
    EXPECT_FALSE(rows.next());
    // Asked again after the last row: still none, no fetch the engine refuses.
    EXPECT_FALSE(rows.next());
    EXPECT_EQ(db.countSeenElsewhere(QStringLiteral("MIARY")), 0);
}

TEST(EngineRows, RefusesBlobColumnsAndReportsFailuresWhileReading)
{
    TestDatabase db;
    db.exec(QStringLiteral("CREATE TABLE NOTATKI (ID INTEGER, TRESC BLOB SUB_TYPE TEXT)"));
    Statement blob(db.connection());
    blob.add(QStringLiteral("SELECT * FROM NOTATKI"));
    EXPECT_THROW(EngineRows rows(blob), DbError);

    // Runtime errors come with a row, not with the statement's start.
    db.exec(QStringLiteral("INSERT INTO NOTATKI (ID) VALUES (0)"));
    Statement division(db.connection());
    division.add(QStringLiteral("SELECT 1 / ID AS ILORAZ FROM NOTATKI"));
    EngineRows rows(division);
    try {
        rows.next();
        ADD_FAILURE() << "no error";
    } catch (const DbError &error) {
        EXPECT_TRUE(error.message().contains(QStringLiteral("divide by zero")))
            << error.message().toStdString();
    }
}
