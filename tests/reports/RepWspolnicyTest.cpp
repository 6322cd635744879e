// The partners report: its selection dialog and its pages.
#include "PdfFileReportOutput.h"
#include "ReportTexts.h"
#include "ReportsFixture.h"
#include "ScriptedModalRunner.h"
#include "TBitBtn.h"
#include "TDateEdit.h"
#include "TRadioGroup.h"
#include "TestData.h"
#include "TfrmRepWspolnicy.h"
#include "TfrmWyborWspolnika.h"
#include "Typing.h"

#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>

using ReportTexts::inOrder;
using ReportTexts::printed;

namespace {

const QStringList Heads = {"L.p.", "Zleceniodawca", "DataWyFak.", "Trasa", "Nr zlec.",
                           "Stawka netto", "Koszt netto", "Zysk netto", "Marża nett",
                           "Marża wart.Y", "W/W", "Przewoźnik"};

void click(QAbstractButton *button)
{
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
}

} // namespace

class RepWspolnicy : public ReportsFixture
{
protected:
    // March, every partner.
    static PartnersSelection everyPartnerOfMarch()
    {
        PartnersSelection s = partnersOfMarch();
        s.showAll = true;
        return s;
    }

    std::unique_ptr<TfrmWyborWspolnika> openDialog()
    {
        auto dialog = TfrmRODefault::create<TfrmWyborWspolnika>();
        dialog->show();
        return dialog;
    }

    // An invoiced order of March.
    void invoiced(int number, int day, double rate, double cost, int carrierKey = 0,
                  int partner = 0)
    {
        const int invoice = addInvoice({.sequence = number, .issued = QDate(2026, 3, day)});
        addOrder({.invoice = invoice, .number = number, .carrier = carrierKey, .rate = rate,
                  .cost = cost, .partner = partner});
    }

    QTemporaryDir dir;
    ReportOutputs::Scoped<PdfFileReportOutput> files{dir.path()};
};

TEST_F(RepWspolnicy, TheDialogProposesTheLastMonthEveryRegionAndCarrierAndNoPartner)
{
    const auto dialog = openDialog();
    EXPECT_FALSE(dialog->cbAll->isChecked());
    const QDate today = QDate::currentDate();
    EXPECT_EQ(dialog->deDo->date(), today);
    EXPECT_EQ(dialog->deOd->date(), PartnersSelection::monthBefore(today));
    EXPECT_TRUE(dialog->rbAll->isChecked());
    ASSERT_EQ(dialog->rgwar->count(), 3);
    EXPECT_EQ(dialog->rgwar->itemIndex(), 0);

    // No partner defined: "Brak" with key 0, chosen.
    EXPECT_EQ(dialog->cbWspolnik->count(), 1);
    EXPECT_EQ(dialog->cbWspolnik->currentText(), "Brak");
    EXPECT_EQ(dialog->selection().partner, 0);
    click(dialog->cbAll);
    EXPECT_FALSE(dialog->cbWspolnik->isEnabled());
    click(dialog->cbAll);
    EXPECT_TRUE(dialog->cbWspolnik->isEnabled());
}

TEST_F(RepWspolnicy, PartnersAreSortedByNameAndNoneIsChosenAtFirst)
{
    TestData::addFilter(db.connection(), QStringLiteral("Zenon Wójcik"));
    TestData::addFilter(db.connection(), QStringLiteral("Adam Mazur"));
    const auto dialog = openDialog();
    ASSERT_EQ(dialog->cbWspolnik->count(), 2);
    EXPECT_EQ(dialog->cbWspolnik->itemText(0), "Adam Mazur");
    EXPECT_EQ(dialog->cbWspolnik->itemText(1), "Zenon Wójcik");
    EXPECT_EQ(dialog->cbWspolnik->currentIndex(), -1);
    EXPECT_FALSE(dialog->selection().partner.has_value());
}

TEST_F(RepWspolnicy, EachOrderOnALineWithItsProfitSplitAndTheTotals)
{
    invoiced(7, 10, 1250.0, 1000.0, carrier);
    invoiced(8, 12, 2000.0, 0.0);
    TfrmRepWspolnicy report(db.connection());
    report.select(everyPartnerOfMarch());
    const std::vector<ReportPage> &pages = report.QuickRep1().prepare();
    ASSERT_EQ(pages.size(), 1u);
    const QStringList texts = printed(pages);
    QStringList expected = {"Zestawienie zleceń w podziale na kontrahenta.",
                            "Data wykonania raportu: "
                                + QDate::currentDate().toString(Qt::ISODate),
                            "Z okresu: 2026-03-01 - 2026-03-31. Zlecenia krajowe i zagraniczne."};
    expected << Heads;
    expected << QStringList{"1", "KLIENT A", "2026-03-10", "Poznań - Kraków", "7",
                            "1\u00a0250,00", "1\u00a0000,00", "250,00", "25,00%", "12,50%",
                            "125,00", "PRZEWOZ X",
                            "2", "KLIENT A", "2026-03-12", "Poznań - Kraków", "8",
                            "2\u00a0000,00", "0,00", "2\u00a0000,00", "0,00%", "0,00%",
                            "1\u00a0000,00", "ŻURAW",
                            "RAZEM", "3\u00a0250,00", "1\u00a0000,00", "2\u00a0250,00",
                            "1\u00a0125,00", "Strona 1"};
    EXPECT_EQ(texts, expected) << texts.join(u'|').toStdString();
    EXPECT_EQ(report.QuickRep1().pageSetup().orientation, QPageLayout::Landscape);
}

TEST_F(RepWspolnicy, AnEmptyPeriodPrintsTheHeadsAndZeroTotalsAndEveryPrintReadsAgain)
{
    TfrmRepWspolnicy report(db.connection());
    report.select(everyPartnerOfMarch());
    QStringList texts = printed(report.QuickRep1().prepare());
    EXPECT_TRUE(inOrder(texts, Heads));
    EXPECT_TRUE(inOrder(texts, {"W/W", "Przewoźnik", "RAZEM", "0,00", "0,00", "0,00", "0,00",
                                "Strona 1"}))
        << texts.join(u'|').toStdString();
    EXPECT_FALSE(texts.contains(QStringLiteral("KLIENT A")));

    invoiced(9, 3, 100.0, 80.0);
    texts = printed(report.QuickRep1().prepare());
    EXPECT_TRUE(inOrder(texts, {"1", "KLIENT A", "2026-03-03", "RAZEM", "100,00", "80,00"}))
        << texts.join(u'|').toStdString();
}

TEST_F(RepWspolnicy, TheDialogsChoiceFiltersAndTitlesThePreviewedReportCancelShowsNone)
{
    const int jan = TestData::addFilter(db.connection(), QStringLiteral("Jan Wiśniewski"));
    const int adam = TestData::addFilter(db.connection(), QStringLiteral("Adam Mazur"));
    invoiced(1, 10, 500.0, 400.0, carrier, jan);
    invoiced(2, 11, 600.0, 0.0, 0, jan);
    invoiced(3, 12, 700.0, 500.0, carrier, adam);
    // Jan Wiśniewski, March, domestic, "Spedycja" (other carriers).
    const auto choose = [](bool showAll) {
        scriptedModalRunner().expect<TfrmWyborWspolnika>([showAll](TfrmWyborWspolnika &dialog) {
            dialog.cbWspolnik->setFocus();
            QTest::keyClick(dialog.cbWspolnik, Qt::Key_Down);   // the first: Adam Mazur
            QTest::keyClick(dialog.cbWspolnik, Qt::Key_Down);   // then Jan Wiśniewski
            Typing::into(dialog.deOd, QStringLiteral("2026-03-01"));
            Typing::into(dialog.deDo, QStringLiteral("2026-03-31"));
            click(dialog.rbKraj);
            click(dialog.rgwar->button(2));
            if (showAll)
                click(dialog.cbAll);
            QTest::mouseClick(dialog.btnOk, Qt::LeftButton);
            return dialog.result();
        });
    };
    choose(false);
    TfrmRepWspolnicy::run(nullptr);
    EXPECT_TRUE(scriptedModalRunner().allRun());
    ASSERT_EQ(files->deliveries().size(), 1u);
    EXPECT_EQ(files->deliveries()[0].kind, PdfFileReportOutput::Kind::Preview);

    TfrmRepWspolnicy report(db.connection());
    choose(true);
    ASSERT_TRUE(report.FormCreate(nullptr));
    EXPECT_EQ(report.confirmed(), 1);
    const QStringList texts = printed(report.QuickRep1().prepare());
    // The partner still filters although "Pokaż wszystkie" left it out of the title.
    EXPECT_TRUE(texts.contains(
        QStringLiteral("Z okresu: 2026-03-01 - 2026-03-31. Zlecenia krajowe.")))
        << texts.join(u'|').toStdString();
    EXPECT_TRUE(texts.contains(QStringLiteral("500,00")));
    EXPECT_FALSE(texts.contains(QStringLiteral("600,00")));   // carried by the company
    EXPECT_FALSE(texts.contains(QStringLiteral("700,00")));   // Adam's

    // Cancelled, the dialog shows no report.
    scriptedModalRunner().expect<TfrmWyborWspolnika>([](TfrmWyborWspolnika &dialog) {
        QTest::mouseClick(dialog.btnCancel, Qt::LeftButton);
        return dialog.result();
    });
    TfrmRepWspolnicy::run(nullptr);
    EXPECT_TRUE(scriptedModalRunner().allRun());
    EXPECT_EQ(files->deliveries().size(), 1u);
}
