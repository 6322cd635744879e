// haulix-admin invoice: the month-end invoicing of a client without a screen.
#include "AdminRun.h"
#include "OrderInvoicingFixture.h"

#include <gtest/gtest.h>

class AdminInvoice : public OrderInvoicingFixture
{
protected:
    AdminRun invoice(const QStringList &more)
    {
        return AdminRun::of(QStringLiteral(HAULIX_ADMIN_PATH),
                            QStringList{QStringLiteral("invoice"), db.path()} + more);
    }

    static QStringList march(int client)
    {
        return {QStringLiteral("--client"), QString::number(client), QStringLiteral("--from"),
                QStringLiteral("2026-03-01"), QStringLiteral("--to"), QStringLiteral("2026-03-31"),
                QStringLiteral("--issue-date"), QStringLiteral("2026-04-02")};
    }
};

TEST_F(AdminInvoice, PrintsTheNumberAndKeyThenHasNothingLeftToInvoice)
{
    const int a = addOrder();
    const int b = addOrder(
        [](TZlecenia_przychObj &o) { o.DATA = DateTime::fromDate(QDate(2026, 3, 31)); });
    const AdminRun first
        = invoice(march(ClientA) << QStringLiteral("--user") << QStringLiteral("3"));
    ASSERT_EQ(first.exitCode, 0) << first.errors.toStdString();
    const QStringList words = first.output.trimmed().split(u' ');
    ASSERT_EQ(words.size(), 2) << first.output.toStdString();
    EXPECT_EQ(words[0], "001/04/2026");
    EXPECT_EQ(invoiceOf(a), words[1].toInt());
    EXPECT_EQ(invoiceOf(b), words[1].toInt());
    EXPECT_EQ(db.scalar(QStringLiteral("SELECT ID_WYSTAWIL FROM FAKTURY")), "3");

    const AdminRun again = invoice(march(ClientA));
    EXPECT_EQ(again.exitCode, 1);
    EXPECT_EQ(again.output.trimmed(), "Brak niezafakturowanych zleceń kontrahenta 1 załadowanych "
                                      "od 2026-03-01 do 2026-03-31.");
}

TEST_F(AdminInvoice, WrongArgumentsAndAFailureWriteNothing)
{
    addOrder();
    EXPECT_EQ(invoice({QStringLiteral("--client"), QStringLiteral("1"), QStringLiteral("--from"),
                       QStringLiteral("2026-03-01")})
                  .exitCode,
              2);
    EXPECT_EQ(invoice({QStringLiteral("--client"), QStringLiteral("x")}).exitCode, 2);

    db.exec(QStringLiteral("CREATE EXCEPTION AWARIA 'Awaria testowa'"));
    db.exec(QStringLiteral("CREATE TRIGGER AWARIA_POZYCJI FOR FAKTURY_POZYCJE BEFORE INSERT AS "
                           "BEGIN EXCEPTION AWARIA; END"));
    const AdminRun failed = invoice(march(ClientA));
    EXPECT_EQ(failed.exitCode, 2);
    EXPECT_TRUE(failed.errors.contains("Błąd przy dodawaniu danych tabeli FAKTURY_POZYCJE"))
        << failed.errors.toStdString();
    expectNothingInvoiced();
}
