// Choosing a carriers' invoice list and previewing it.
#include "CarrierInvoicesFixture.h"
#include "PdfFileReportOutput.h"
#include "PopplerText.h"
#include "ReportOutput.h"
#include "ScriptedMessages.h"
#include "TBitBtn.h"
#include "TDateEdit.h"
#include "TfrmWydrukiPrzewoz.h"
#include "Typing.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QTemporaryDir>
#include <QTest>

using Mode = CarrierInvoiceList::Mode;

class WydrukiPrzewoz : public CarrierInvoicesFixture
{
protected:
    std::unique_ptr<TfrmWydrukiPrzewoz> open(int carrier, Mode mode)
    {
        auto dialog = TfrmRODefault::create<TfrmWydrukiPrzewoz>(nullptr, carrier, mode);
        dialog->show();
        return dialog;
    }

    static void click(QAbstractButton *button)
    {
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
    }

    QTemporaryDir dir;
    ReportOutputs::Scoped<PdfFileReportOutput> files{dir.path()};
};

TEST_F(WydrukiPrzewoz, TheUnpaidListAsksForNoPeriodTheOthersForTheCurrentMonth)
{
    const auto unpaid = open(0, Mode::Unpaid);
    EXPECT_EQ(unpaid->lblHeader->text(), "Faktury przewoźnika niezapłacone");
    const QList<QWidget *> period{unpaid->lblOd, unpaid->deOd, unpaid->lblDo, unpaid->deDo};
    for (const QWidget *field : period)
        EXPECT_FALSE(field->isVisible()) << field->objectName().toStdString();

    for (const Mode mode : {Mode::Paid, Mode::Issued}) {
        const auto dialog = open(0, mode);
        EXPECT_EQ(dialog->lblHeader->text(), "Faktury przewoźników za okres");
        EXPECT_TRUE(dialog->deOd->isVisible());
        // The current month.
        const QDate today = CarrierInvoicesFixture::today();
        EXPECT_EQ(dialog->deOd->date(), QDate(today.year(), today.month(), 1));
        EXPECT_EQ(dialog->deDo->date(), QDate(today.year(), today.month(), today.daysInMonth()));
    }
}

TEST_F(WydrukiPrzewoz, AllCarriersFirstOkPreviewsTheChosenCarriersInvoicesOfThePeriod)
{
    const QDate day = today();
    addInvoice({.carrier = Alfa, .number = QStringLiteral("ALFA-1"), .amount = 120.0,
                .issued = day, .paymentDate = day, .paid = true});
    addInvoice({.carrier = Beta, .number = QStringLiteral("BETA-1"), .amount = 80.0,
                .issued = day, .paymentDate = day, .paid = true});
    addInvoice({.carrier = Beta, .number = QStringLiteral("BETA-OLD"), .amount = 80.0,
                .issued = day.addMonths(-2), .paymentDate = day.addMonths(-2), .paid = true});
    // All carriers first, the given one offered; the list follows the box.
    const auto dialog = open(Alfa, Mode::Paid);
    EXPECT_EQ(dialog->CBKontrahenci->count(), 2);
    EXPECT_EQ(dialog->CBKontrahenci->currentText(), "ALFA TRANS");
    EXPECT_TRUE(dialog->cbWszyscy->isChecked());
    EXPECT_FALSE(dialog->CBKontrahenci->isEnabled());
    click(dialog->cbWszyscy);
    EXPECT_TRUE(dialog->CBKontrahenci->isEnabled());
    click(dialog->cbWszyscy);
    EXPECT_FALSE(dialog->CBKontrahenci->isEnabled());
    EXPECT_EQ(dialog->list().carrier, 0);
    click(dialog->cbWszyscy);
    dialog->CBKontrahenci->setFocus();
    QTest::keyClick(dialog->CBKontrahenci, Qt::Key_Down);
    ASSERT_EQ(dialog->CBKontrahenci->currentText(), "BETA CARGO");
    QTest::mouseClick(dialog->btnOk, Qt::LeftButton);

    EXPECT_EQ(dialog->result(), TfrmRODefault::mrOk);
    ASSERT_EQ(files->deliveries().size(), 1u);
    const PdfFileReportOutput::Delivery &list = files->deliveries()[0];
    EXPECT_EQ(list.kind, PdfFileReportOutput::Kind::Preview);
    EXPECT_EQ(list.title, QStringLiteral(" Faktury przewoźników zapłacone od %1 do dnia %2")
                              .arg(dialog->deOd->text(), dialog->deDo->text()));
    const QString text = Poppler::text(list.path);
    EXPECT_TRUE(text.contains(Company));
    EXPECT_TRUE(text.contains(QStringLiteral("BETA-1")));
    EXPECT_FALSE(text.contains(QStringLiteral("ALFA-1")));
    EXPECT_FALSE(text.contains(QStringLiteral("BETA-OLD")));
}

TEST_F(WydrukiPrzewoz, APeriodEndingBeforeItStartsOrNoCarrierIsRefused)
{
    const auto dialog = open(0, Mode::Issued);
    Typing::into(dialog->deOd, QStringLiteral("2026-03-10"));
    Typing::into(dialog->deDo, QStringLiteral("2026-03-01"));
    scriptedMessages().expect();
    QTest::mouseClick(dialog->btnOk, Qt::LeftButton);
    ASSERT_EQ(scriptedMessages().shown().size(), 1u);
    EXPECT_EQ(scriptedMessages().shown()[0].text,
              "Data od : nie może być późniejsza niż Data do :.");
    EXPECT_TRUE(dialog->isVisible());

    // "Wszyscy" unchecked with no carrier to choose.
    Typing::into(dialog->deDo, QStringLiteral("2026-03-31"));
    click(dialog->cbWszyscy);
    scriptedMessages().expect();
    QTest::mouseClick(dialog->btnOk, Qt::LeftButton);
    ASSERT_EQ(scriptedMessages().shown().size(), 2u);
    EXPECT_EQ(scriptedMessages().shown()[1].text, "Wybierz przewoźnika albo zaznacz „Wszyscy”.");
    EXPECT_TRUE(files->deliveries().empty());
}
