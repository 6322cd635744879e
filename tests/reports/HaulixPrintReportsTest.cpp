// The statement of issued invoices and the partners report out of haulix-print.
#include "PopplerText.h"
#include "ProgramRun.h"
#include "ReportsFixture.h"

#include <QTemporaryDir>

class HaulixPrintReports : public ReportsFixture
{
protected:
    void SetUp() override
    {
        const int own = addInvoice({.sequence = 1, .number = QStringLiteral("FV-WLASNA"),
                                    .lines = {{.price = 10.0}}});
        addOrder({.invoice = own, .number = 11, .rate = 10.0, .partner = 1});
        const int other = addInvoice({.sequence = 2, .number = QStringLiteral("FV-OBCA"),
                                      .lines = {{.price = 20.0}}});
        addOrder({.invoice = other, .number = 12, .carrier = carrier, .rate = 345.0,
                  .cost = 300.0, .abroad = true, .partner = 2});
    }

    ProgramRun print(const QString &name, QStringList arguments)
    {
        return ProgramRun::of(QStringLiteral(HAULIX_PRINT_PATH),
                              QStringList{QStringLiteral("--db"), db.path(), name} << arguments
                                                                                  << file);
    }

    QTemporaryDir dir;
    QString file = dir.filePath(QStringLiteral("raport.pdf"));
};

TEST_F(HaulixPrintReports, TheStatementOfOtherOrOwnCarriersInvoices)
{
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
