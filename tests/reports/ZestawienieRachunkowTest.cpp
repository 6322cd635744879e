// The statement of issued invoices as it is laid out, and the register's
// way to it: the period dialog, the wait window, preview or printer.
#include "IssuedInvoices.h"
#include "IssuedInvoicesStatement.h"
#include "PdfFileReportOutput.h"
#include "PopplerText.h"
#include "ReportsFixture.h"
#include "ReportTexts.h"
#include "ScriptedModalRunner.h"
#include "TBitBtn.h"
#include "TDateEdit.h"
#include "TfrmWybierzDatyAndKontrahenta.h"
#include "TfrmZestawienieRachunkow.h"
#include "Typing.h"

#include <QCheckBox>
#include <QTemporaryDir>
#include <QTest>

using ReportTexts::inOrder;
using ReportTexts::printed;

namespace {

const QString Zero = QStringLiteral("0,00");

} // namespace

class ZestawienieRachunkow : public ReportsFixture
{
protected:
    std::vector<TPozycjaZestawienia> records(bool own = true)
    {
        IssuedInvoices invoices(db.connection(), QDate(2026, 3, 1), QDate(2026, 3, 31), own);
        invoices.read();
        return invoices.build();
    }

    QString companyLine() const
    {
        return Company + QStringLiteral(" ul. Portowa 5 80-001 Gdańsk");
    }
};

TEST_F(ZestawienieRachunkow, WithoutInvoicesOnlyTheHeaderAndFourZeroSums)
{
    const std::vector<TPozycjaZestawienia> none;
    TfrmZestawienieRachunkow report(db.connection());
    report.setTitle(QStringLiteral("ZESTAWIENIE FAKTUR KRAJOWYCH  (WYKONAWCA OBCY) OD "
                                   "2026-03-01  DO  2026-03-31"));
    report.setRecords(none);
    const std::vector<ReportPage> &pages = report.qrZestawienie().prepare();
    ASSERT_EQ(pages.size(), 1u);
    const QStringList texts = printed(pages);
    EXPECT_EQ(texts, QStringList({companyLine(),
                                  "ZESTAWIENIE FAKTUR KRAJOWYCH  (WYKONAWCA OBCY) OD "
                                  "2026-03-01  DO  2026-03-31",
                                  "L.p.", "Nr.rachunku", "Nr.rejestr", "Netto", "Mc.sprzedaży",
                                  "Kontrahent", "Data fakt.", "Opł.sk.", "Podatek", "Brutto",
                                  "Data płatn.", "RAZEM:", Zero, Zero, Zero, Zero}))
        << texts.join(u'|').toStdString();
    EXPECT_EQ(report.qrZestawienie().pageSetup().orientation, QPageLayout::Landscape);
}

TEST_F(ZestawienieRachunkow, ALineOfEachInvoiceInSequenceOrderAndTheSumsUnderTheirColumns)
{
    const int second = addInvoice({.sequence = 2, .number = QStringLiteral("2/03/2026"),
                                   .client = client2, .issued = QDate(2026, 3, 12),
                                   .sold = QDate(2026, 3, 11), .days = 30,
                                   .lines = {{.quantity = 1, .price = 1000.0}}});
    addOrder({.invoice = second});
    const int first = addInvoice({.sequence = 1, .number = QStringLiteral("1/03/2026"),
                                  .issued = QDate(2026, 3, 2), .sold = QDate(2026, 2, 28),
                                  .lines = {{.quantity = 2, .price = 50.0, .kind = 10}}});
    addOrder({.invoice = first, .vehicle = QStringLiteral("GD 1234A")});
    const std::vector<TPozycjaZestawienia> lines = records();

    TfrmZestawienieRachunkow report(db.connection());
    report.setRecords(lines);
    const QStringList texts = printed(report.qrZestawienie().prepare());
    EXPECT_TRUE(inOrder(texts, {"1", "1/03/2026", "GD 1234A", "100,00", "02",
                                "KLIENT A Sp. z o.o.", "2026-03-02", "100,00", "23,00", "123,00",
                                "2026-03-16",
                                "2", "2/03/2026", "1000,00", "03", "KLIENT B Sp. z o.o.",
                                "2026-03-12", Zero, "230,00", "1230,00", "2026-04-11",
                                "RAZEM:", "1100,00", "253,00", "100,00", "1353,00"}))
        << texts.join(u'|').toStdString();

    // Printing again, as from the preview, starts the sums afresh.
    EXPECT_EQ(printed(report.qrZestawienie().prepare()), texts);
}

class WystawioneFaktury : public ZestawienieRachunkow
{
protected:
    // Plays the dispatcher: March, own or other carriers, preview or not.
    void choose(bool own, bool preview)
    {
        scriptedModalRunner().expect<TfrmWybierzDatyAndKontrahenta>(
            [own, preview](TfrmWybierzDatyAndKontrahenta &dialog) {
                Typing::into(dialog.deOd, QStringLiteral("2026-03-01"));
                Typing::into(dialog.deDo, QStringLiteral("2026-03-31"));
                if (own)
                    QTest::mouseClick(dialog.cbWlasny, Qt::LeftButton, {},
                                      QPoint(8, dialog.cbWlasny->height() / 2));
                if (!preview)
                    QTest::mouseClick(dialog.cbPodglad, Qt::LeftButton, {},
                                      QPoint(8, dialog.cbPodglad->height() / 2));
                QTest::mouseClick(dialog.btnOk, Qt::LeftButton);
                return dialog.result();
            });
    }

    QTemporaryDir dir;
    ReportOutputs::Scoped<PdfFileReportOutput> files{dir.path()};
};

TEST_F(WystawioneFaktury, TheChosenPeriodIsPreviewedUnderItsTitle)
{
    const int own = addInvoice({.sequence = 1, .number = QStringLiteral("FV-WLASNA"),
                                .lines = {{.price = 10.0}}});
    addOrder({.invoice = own});
    const int other = addInvoice({.sequence = 2, .number = QStringLiteral("FV-OBCA"),
                                  .lines = {{.price = 20.0}}});
    addOrder({.invoice = other, .carrier = carrier});
    choose(true, true);
    IssuedInvoicesStatement::run(nullptr);

    ASSERT_EQ(files->deliveries().size(), 1u);
    const PdfFileReportOutput::Delivery &statement = files->deliveries()[0];
    EXPECT_EQ(statement.kind, PdfFileReportOutput::Kind::Preview);
    EXPECT_EQ(statement.title, "ZESTAWIENIE FAKTUR KRAJOWYCH  (WYKONAWCA WŁASNY) OD 2026-03-01  "
                               "DO  2026-03-31");
    // poppler reads doubled blanks as one.
    const QString text = Poppler::text(statement.path);
    EXPECT_TRUE(text.contains(QStringLiteral("(WYKONAWCA WŁASNY) OD 2026-03-01 DO 2026-03-31")))
        << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("FV-WLASNA")));
    EXPECT_FALSE(text.contains(QStringLiteral("FV-OBCA")));
}

TEST_F(WystawioneFaktury, WithoutThePreviewTheStatementGoesToThePrinterAndCancelShowsNothing)
{
    choose(false, false);
    IssuedInvoicesStatement::run(nullptr);
    ASSERT_EQ(files->deliveries().size(), 1u);
    EXPECT_EQ(files->deliveries()[0].kind, PdfFileReportOutput::Kind::Print);

    scriptedModalRunner().expect<TfrmWybierzDatyAndKontrahenta>(
        [](TfrmWybierzDatyAndKontrahenta &dialog) {
            QTest::keyClick(&dialog, Qt::Key_Escape);
            return dialog.result();
        });
    IssuedInvoicesStatement::run(nullptr);
    EXPECT_EQ(files->deliveries().size(), 1u);
}
