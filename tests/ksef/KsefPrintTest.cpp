// haulix-print writing e-invoices: one invoice, or every invoice of a period.
#include "DemoSeeder.h"
#include "KsefFixture.h"
#include "KsefSchema.h"
#include "KsefXml.h"
#include "ProgramRun.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

ProgramRun runPrint(const QString &database, const QStringList &job)
{
    return ProgramRun::of(QStringLiteral(HAULIX_PRINT_PATH), QStringList{"--db", database} + job);
}

} // namespace

class KsefPrintTest : public KsefFixture
{
protected:
    ProgramRun run(const QStringList &job) { return runPrint(db.path(), job); }

    const QString file = dir.filePath(QStringLiteral("faktura.xml"));
};

TEST_F(KsefPrintTest, OneInvoiceIsOneValidFile)
{
    const ProgramRun done = run({"ksef", QString::number(invoice), file});
    ASSERT_EQ(done.exitCode, 0) << done.errors.toStdString();
    EXPECT_TRUE(done.errors.isEmpty()) << done.errors.toStdString();
    const QByteArray document = fileText(file);
    EXPECT_EQ(KsefSchema().problems(document), QStringList());
    EXPECT_EQ(KsefXml(document).one("Fa/P_2"), "007/07/2026");
}

TEST_F(KsefPrintTest, ARefusalIsOneLineAndLeavesNoFile)
{
    db.exec(QStringLiteral("UPDATE DANE_FIRMY SET NIP = NULL"));
    ProgramRun done = run({"ksef", QString::number(invoice), file});
    EXPECT_EQ(done.exitCode, 1);
    EXPECT_EQ(done.errors, "Faktura 007/07/2026: w danych firmy nie ma NIP-u sprzedawcy. "
                           "Uzupełnij NIP w danych firmy.\n");
    EXPECT_FALSE(QFile::exists(file));

    done = run({"ksef", "9999", file});
    EXPECT_EQ(done.exitCode, 1);
    EXPECT_EQ(done.errors, "Nie ma faktury o identyfikatorze 9999.\n");

    // A range goes on past an invoice it cannot export and says so.
    done = run({"ksef-range", "2026-07-01", "2026-07-31", dir.path()});
    EXPECT_EQ(done.exitCode, 1);
    EXPECT_EQ(done.errors.count(u'\n'), 1) << done.errors.toStdString();
    EXPECT_TRUE(QDir(dir.path()).isEmpty());
}

TEST_F(KsefPrintTest, AWrongCommandLineSaysHowItGoes)
{
    ProgramRun done = run({"ksef", "pierwsza", file});
    EXPECT_EQ(done.exitCode, 2);
    EXPECT_EQ(done.errors, "Identyfikator musi być dodatnią liczbą całkowitą: pierwsza\n");

    done = run({"ksef-range", "2026-07-01", dir.path()});
    EXPECT_EQ(done.exitCode, 2);
    EXPECT_TRUE(done.errors.startsWith("Polecenie ksef-range wymaga argumentów: OD DO KATALOG.\n"
                                       "Użycie: haulix-print"));
    EXPECT_TRUE(done.errors.contains("  ksef-range OD DO KATALOG "));
}

TEST(KsefDemoCompany, EveryInvoiceOfTheDemoCompanyIsOneValidFileNamedByItsNumber)
{
    TestDatabase db;
    DemoSeeder::Options options;
    options.orders = 150;
    options.today = QDate(2026, 11, 22);
    DemoSeeder(db.connection(), options).seed();
    const int invoices = db.count(QStringLiteral("FAKTURY"));
    ASSERT_GT(invoices, 10);

    QTemporaryDir dir;
    const QString target = dir.filePath(QStringLiteral("KSeF"));
    const ProgramRun run = runPrint(db.path(), {"ksef-range", "2026-01-01", "2026-12-31", target});
    ASSERT_EQ(run.exitCode, 0) << run.errors.toStdString();
    EXPECT_TRUE(run.errors.isEmpty()) << run.errors.toStdString();
    const QStringList files = QDir(target).entryList(QDir::Files, QDir::Name);
    ASSERT_EQ(files.size(), invoices);
    const KsefSchema schema;
    for (const QString &name : files) {
        const QByteArray document = KsefFixture::fileText(QDir(target).filePath(name));
        EXPECT_EQ(schema.problems(document), QStringList()) << name.toStdString();
        const QString number = KsefXml(document).one("Fa/P_2");
        EXPECT_EQ(name, QString(number).replace(u'/', u'_') + ".xml");
    }
}
