// The statements, the statement of issued invoices and the partners report
// written to PDF files by haulix-print and read back.
#include "PopplerText.h"
#include "ProgramRun.h"
#include "ReportsFixture.h"

#include <QTemporaryDir>

class HaulixPrintReports : public ReportsFixture
{
protected:
    // Runs haulix-print without a display on the test's database into the file.
    ProgramRun print(const QString &name, const QStringList &arguments)
    {
        return ProgramRun::of(QStringLiteral(HAULIX_PRINT_PATH),
                              QStringList{"--db", db.path(), name} + arguments + QStringList{file});
    }

    // Order 11 of March by the company itself on FV-WLASNA, order 12 abroad
    // by another carrier on FV-OBCA.
    void ownAndOtherInvoices()
    {
        const int own = addInvoice({.sequence = 1, .number = QStringLiteral("FV-WLASNA"),
                                    .lines = {{.price = 10.0}}});
        addOrder({.invoice = own, .number = 11, .rate = 10.0, .partner = 1});
        const int other = addInvoice({.sequence = 2, .number = QStringLiteral("FV-OBCA"),
                                      .lines = {{.price = 20.0}}});
        addOrder({.invoice = other, .number = 12, .carrier = carrier, .rate = 345.0,
                  .cost = 300.0, .abroad = true, .partner = 2});
    }

    QTemporaryDir dir;
    QString file = dir.filePath(QStringLiteral("raport.pdf"));
};

TEST_F(HaulixPrintReports, EachStatementIsAPdfOfItsPeriod)
{
    seedCompany();
    // Order 3 on the invoice 002/03/2026.
    db.exec(QStringLiteral("UPDATE ZLECENIA_PRZYCH SET IDFAKTURY = 2 WHERE NUMER = 3"));
    const struct
    {
        const char *job;
        QStringList options;
        QStringList expected;
    } jobs[] = {
        {"statement-clients", {}, {"Kontrahent: BETA", "Kontrahent: ALFA", "30,8 %"}},
        {"statement-carriers", {"--carrier", QString::number(cargoY)}, {"CY/7", "100,00"}},
        {"statement-rate-differences", {}, {"002/03/2026", "przewoźnicy obcy"}},
        {"statement-user-rates", {}, {"Spedytor: anna", "Spedytor: bartek", "30,8 %"}},
        {"statement-user-invoices", {}, {"001/03/2026", "002/03/2026", "978,65"}},
        {"statement-user-carrier-invoices", {"--user", QString::number(bartek)}, {"ZW/1"}},
    };
    for (const auto &job : jobs) {
        const ProgramRun run = print(QString::fromLatin1(job.job),
                                     QStringList{"2026-03-01", "2026-03-31"} + job.options);
        ASSERT_EQ(run.exitCode, 0) << job.job << run.errors.toStdString();
        const QString text = Poppler::text(file);
        EXPECT_TRUE(text.contains(Company)) << job.job;
        EXPECT_TRUE(text.contains(QStringLiteral("od 2026-03-01 do 2026-03-31"))) << job.job;
        for (const QString &expected : job.expected)
            EXPECT_TRUE(text.contains(expected))
                << job.job << ": " << expected.toStdString() << "\n" << text.toStdString();
    }

    const ProgramRun wrongWayRound
        = print(QStringLiteral("statement-clients"), {"2026-03-31", "2026-03-01"});
    EXPECT_TRUE(
        wrongWayRound.errors.contains("Początek okresu jest późniejszy niż jego koniec."))
        << wrongWayRound.errors.toStdString();
}

TEST_F(HaulixPrintReports, TheStatementOfOtherOrOwnCarriersInvoices)
{
    ownAndOtherInvoices();
    ProgramRun run = print(QStringLiteral("invoices-statement"), {"2026-03-01", "2026-03-31"});
    ASSERT_EQ(run.exitCode, 0) << run.errors.toStdString();
    QString text = Poppler::text(file);
    EXPECT_TRUE(text.contains(QStringLiteral("(WYKONAWCA OBCY)"))) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("FV-OBCA")));
    EXPECT_FALSE(text.contains(QStringLiteral("FV-WLASNA")));

    run = print(QStringLiteral("invoices-statement"), {"2026-03-01", "--own", "2026-03-31"});
    ASSERT_EQ(run.exitCode, 0) << run.errors.toStdString();
    text = Poppler::text(file);
    EXPECT_TRUE(text.contains(QStringLiteral("FV-WLASNA"))) << text.toStdString();
    EXPECT_FALSE(text.contains(QStringLiteral("FV-OBCA")));
}

TEST_F(HaulixPrintReports, ThePartnersReportByPartnerRegionAndCarrier)
{
    ownAndOtherInvoices();
    ProgramRun run = print(QStringLiteral("partners"),
                           {"2026-03-01", "2026-03-31", "--partner", "2", "--foreign", "--others"});
    ASSERT_EQ(run.exitCode, 0) << run.errors.toStdString();
    EXPECT_EQ(Poppler::info(file, QStringLiteral("size"), 1),
              QStringLiteral("842 x 595 pts (A4)"));
    QString text = Poppler::text(file);
    EXPECT_TRUE(text.contains(QStringLiteral("Zlecenia zagraniczne."))) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("345,00")));
    EXPECT_TRUE(text.contains(QStringLiteral("15,00%")));

    run = print(QStringLiteral("partners"), {"2026-03-01", "2026-03-31", "--own"});
    ASSERT_EQ(run.exitCode, 0) << run.errors.toStdString();
    text = Poppler::text(file);
    EXPECT_TRUE(text.contains(QStringLiteral("Z okresu: 2026-03-01 - 2026-03-31. Zlecenia "
                                             "krajowe i zagraniczne.")))
        << text.toStdString();
    EXPECT_FALSE(text.contains(QStringLiteral("345,00")));

    run = print(QStringLiteral("partners"), {"2026-03-01", "2026-03-31", "--own", "--others"});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_TRUE(run.errors.contains(QStringLiteral("--own i --others wykluczają się.")))
        << run.errors.toStdString();
}
