#include "ErrorLog.h"
#include "ErrorLogs.h"
#include "ReportFailures.h"
#include "ScriptedMessages.h"
#include "Statement.h"
#include "TestDatabase.h"
#include "Transaction.h"

#include <QProcess>

#include <gtest/gtest.h>

TEST(ReportFailures, AFailedStatementIsLoggedAndShownOnceAndCountsAsNotDone)
{
    TestDatabase db;
    bool after = false;
    scriptedMessages().expect();
    const bool done = reportFailures(QStringLiteral("Nie można odczytać cennika"), [&] {
        Statement st(db.connection());
        st.add(QStringLiteral("SELECT * FROM NIEMA"));
        st.exec();
        after = true;
    });
    EXPECT_FALSE(done);
    EXPECT_FALSE(after);
    ASSERT_EQ(scriptedMessages().shown().size(), 1u);
    const ScriptedMessages::Shown &box = scriptedMessages().shown().front();
    EXPECT_EQ(box.caption, QStringLiteral("Błąd"));
    EXPECT_EQ(box.icon, MessageService::Icon::Warning);
    const QStringList logged = loggedToday(ErrorLog::SqlErrors);
    ASSERT_EQ(logged.size(), 1);
    EXPECT_TRUE(logged.front().contains(QStringLiteral("Table unknown - NIEMA")))
        << logged.front().toStdString();
    EXPECT_TRUE(logged.front().contains(QStringLiteral("[SELECT * FROM NIEMA]")));
    // The engine's English and the statement stay in the log.
    EXPECT_EQ(box.text, QStringLiteral("Nie można odczytać cennika.\nBaza danych nie wykonała tej "
                                       "operacji. Szczegóły zapisano w pliku SQLErrors.ini; gdy "
                                       "błąd się powtarza, przekaż je administratorowi."));
    EXPECT_TRUE(loggedToday(ErrorLog::HaulixErrors).isEmpty());
}

TEST(ReportFailures, AnotherWorkstationsChangeAsksToTryAgain)
{
    TestDatabase db;
    db.exec(QStringLiteral("INSERT INTO MIARY (NAZWA, SKROT) VALUES ('tona', 't')"));
    Connection other;
    other.open(db.path());
    Transaction transaction(db.connection());
    transaction.StartTransaction();
    Statement elsewhere(other);
    elsewhere.add(QStringLiteral("UPDATE MIARY SET SKROT='T'"));
    elsewhere.exec();
    scriptedMessages().expect();
    EXPECT_FALSE(reportFailures(QStringLiteral("Nie udało się zapisać jednostki."), [&] {
        Statement st(db.connection());
        st.add(QStringLiteral("UPDATE MIARY SET SKROT='tn'"));
        st.exec();
    }));
    transaction.Rollback();
    EXPECT_EQ(scriptedMessages().shown().front().text,
              QStringLiteral("Nie udało się zapisać jednostki.\nInne stanowisko zmieniło w tym "
                             "samym czasie te same dane. Spróbuj jeszcze raz."));
    const QStringList logged = loggedToday(ErrorLog::SqlErrors);
    ASSERT_EQ(logged.size(), 1);
    EXPECT_TRUE(logged.front().startsWith(QStringLiteral("Nie udało się zapisać jednostki: ")));
    EXPECT_TRUE(logged.front().contains(QStringLiteral("update conflicts with concurrent update")));
    EXPECT_TRUE(logged.front().contains(QStringLiteral("UPDATE MIARY SET SKROT='tn'")));
}

TEST(ReportFailures, ADatabaseThatCannotBeReachedOrIsLostAsksToCheckTheConnection)
{
    TestDatabase db;
    const QString advice = QStringLiteral(
        "Nie ma połączenia z bazą danych. Sprawdź połączenie z siecią i serwerem bazy danych, "
        "potem spróbuj jeszcze raz.");
    scriptedMessages().expect();
    EXPECT_FALSE(reportFailures(QStringLiteral("Nie można odczytać listy zleceń"), [] {
        Connection server;
        server.open(QStringLiteral("127.0.0.1/1:/dane/haulix.fdb"), QStringLiteral("SYSDBA"),
                    QStringLiteral("masterkey"));
    }));
    EXPECT_EQ(scriptedMessages().shown().back().text,
              QStringLiteral("Nie można odczytać listy zleceń.\n") + advice);
    EXPECT_TRUE(loggedToday(ErrorLog::SqlErrors).front().contains(QStringLiteral("127.0.0.1")));

    // The administrator shuts the database down while the program runs.
    QProcess gfix;
    gfix.start(QStringLiteral("gfix"), {QStringLiteral("-shut"), QStringLiteral("full"),
                                        QStringLiteral("-force"), QStringLiteral("0"), db.path()});
    ASSERT_TRUE(gfix.waitForFinished(60000));
    ASSERT_EQ(gfix.exitCode(), 0) << gfix.readAllStandardError().toStdString();
    scriptedMessages().expect();
    EXPECT_FALSE(reportFailures(QStringLiteral("Nie można zapisać zlecenia"), [&] {
        Statement st(db.connection());
        st.add(QStringLiteral("SELECT COUNT(*) FROM MIARY"));
        st.exec();
    }));
    EXPECT_EQ(scriptedMessages().shown().back().text,
              QStringLiteral("Nie można zapisać zlecenia.\n") + advice);
}

TEST(ReportFailures, WorkThatSucceedsShowsAndLogsNothing)
{
    TestDatabase db;
    int kilometres = 0;
    EXPECT_TRUE(reportFailures(QStringLiteral("Nie można odczytać odległości"), [&] {
        Statement st(db.connection());
        st.add(QStringLiteral("SELECT 120 AS KM FROM RDB$DATABASE"));
        st.exec();
        kilometres = st.integer(0);
    }));
    EXPECT_EQ(kilometres, 120);
    EXPECT_TRUE(scriptedMessages().shown().empty());
    EXPECT_TRUE(loggedToday(ErrorLog::SqlErrors).isEmpty());
}

TEST(ReportFailures, OtherExceptionsAreReportedToo)
{
    TestDatabase db;
    scriptedMessages().expect();
    EXPECT_FALSE(reportFailures(QStringLiteral("Nie można zapisać zlecenia"),
                                [] { throw std::runtime_error("brak pamięci"); }));
    EXPECT_EQ(scriptedMessages().shown().front().text,
              QStringLiteral("Nie można zapisać zlecenia.\nWystąpił nieoczekiwany błąd programu. "
                             "Szczegóły zapisano w pliku SQLErrors.ini."));
    EXPECT_TRUE(loggedToday(ErrorLog::SqlErrors).front().endsWith(QStringLiteral("brak pamięci")));
}
