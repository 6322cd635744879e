// Every statement written to a PDF file by haulix-print and read back.
#include "PopplerText.h"
#include "ProgramRun.h"
#include "ReportsFixture.h"

#include <QTemporaryDir>

class StatementPrint : public ReportsFixture
{
protected:
    // Runs haulix-print without a display; its standard error when it fails.
    QString print(const QStringList &job, const QString &file)
    {
        const ProgramRun run = ProgramRun::of(
            QStringLiteral(HAULIX_PRINT_PATH),
            QStringList{QStringLiteral("--db"), db.path()} + job + QStringList{file});
        return run.exitCode == 0 ? QString() : run.errors;
    }

    QTemporaryDir dir;
};

TEST_F(StatementPrint, EachStatementIsAPdfOfItsPeriod)
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
        const QString file = dir.filePath(QString::fromLatin1(job.job) + QStringLiteral(".pdf"));
        const QString errors = print(QStringList{QString::fromLatin1(job.job),
                                                 QStringLiteral("2026-03-01"),
                                                 QStringLiteral("2026-03-31")}
                                         + job.options,
                                     file);
        ASSERT_EQ(errors, "") << job.job;
        const QString text = Poppler::text(file);
        EXPECT_TRUE(text.contains(Company)) << job.job;
        EXPECT_TRUE(text.contains(QStringLiteral("od 2026-03-01 do 2026-03-31"))) << job.job;
        for (const QString &expected : job.expected)
            EXPECT_TRUE(text.contains(expected))
                << job.job << ": " << expected.toStdString() << "\n" << text.toStdString();
    }
}

TEST_F(StatementPrint, APeriodTheWrongWayRoundIsRefused)
{
    const QString errors = print({QStringLiteral("statement-clients"), QStringLiteral("2026-03-31"),
                                  QStringLiteral("2026-03-01")},
                                 dir.filePath(QStringLiteral("x.pdf")));
    EXPECT_TRUE(errors.contains(QStringLiteral("Początek okresu jest późniejszy niż jego koniec.")))
        << errors.toStdString();
}
