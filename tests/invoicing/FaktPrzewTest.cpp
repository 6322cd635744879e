// The carrier's invoice dialog, typed into as a dispatcher does.
#include "CarrierInvoiceList.h"
#include "CarrierInvoicesFixture.h"
#include "ScriptedMessages.h"
#include "TBitBtn.h"
#include "TDateEdit.h"
#include "TLimitedSpinEdit.h"
#include "TNumberEdit.h"
#include "TZlecenia_przychObj.h"
#include "TfrmFaktPrzew.h"
#include "Typing.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

class FaktPrzew : public CarrierInvoicesFixture
{
protected:
    // The dialog on an order, shown and active so that accelerators work.
    std::unique_ptr<TfrmFaktPrzew> open(int orderKey)
    {
        auto dialog = TfrmRODefault::create<TfrmFaktPrzew>(
            nullptr, orderKey, CarrierInvoice::load(db.connection(), orderKey).value());
        dialog->show();
        dialog->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
        return dialog;
    }

    static void retype(QWidget *field, const QString &text) { Typing::into(field, text); }
    // Over a date's text: the sections take the digits as they come.
    static void retypeDate(TDateEdit *field, const QString &text)
    {
        field->setFocus();
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(field, text);
    }

    // The button's accelerator clicks it a moment later, as a person sees
    // it go down; a refused save shows its message first.
    static void pressAltZ(TfrmFaktPrzew &dialog)
    {
        const std::size_t shown = scriptedMessages().shown().size();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&dialog, shown] {
            return dialog.result() != 0 || scriptedMessages().shown().size() > shown;
        })) << "Alt+Z neither saved nor said why not";
    }

    TZlecenia_przychObj order(int key)
    {
        return TZlecenia_przychObj(db.connection()).SelectById(key);
    }

    int invoiceOf2March()
    {
        return addInvoice({.carrier = Beta, .number = QStringLiteral("FV 12/2026"),
                           .amount = 1000.0, .issued = QDate(2026, 3, 2), .days = 21,
                           .paymentDate = QDate(2026, 3, 23), .paid = true,
                           .paidAmount = 400.0});
    }
};

TEST_F(FaktPrzew, OpensWithWhatTheOrderHoldsCopiesTheIssueDateAndShowsTheAmountWithVat)
{
    const int key = invoiceOf2March();
    const auto dialog = open(key);
    EXPECT_EQ(dialog->EdNumerFakt->text(), "FV 12/2026");
    EXPECT_EQ(dialog->DEwystawienia->text(), "2026-03-02");
    EXPECT_EQ(dialog->DEOtrzymania->text(), "2026-03-02");
    EXPECT_EQ(dialog->RSEDni->value(), 21);
    EXPECT_EQ(dialog->CEKWOTA->text(), "1\u00a0000,00");
    EXPECT_EQ(dialog->DEplatnosc->text(), "2026-03-23");
    EXPECT_EQ(dialog->CEzaplacono->text(), "400,00");
    EXPECT_TRUE(dialog->CBZaplacono->isChecked());
    EXPECT_EQ(dialog->lblBrutto->text(), "Brutto:");

    retypeDate(dialog->DEwystawienia, QStringLiteral("2026-04-07"));
    EXPECT_EQ(dialog->DEplatnosc->text(), "2026-04-07");
    retype(dialog->CEKWOTA, QStringLiteral("2500,5"));
    QTest::keyClick(dialog->CEKWOTA, Qt::Key_Tab);
    EXPECT_EQ(dialog->lblBrutto->text(), "3\u00a0075,62");
    QTest::mouseClick(dialog->btnOk, Qt::LeftButton);

    EXPECT_EQ(dialog->result(), TfrmRODefault::mrOk);
    const TZlecenia_przychObj stored = order(key);
    // The typed amount is what is kept; the gross figure is only shown.
    EXPECT_DOUBLE_EQ(stored.KWOTA_FAKT_PRZEW, 2500.5);
    EXPECT_EQ(stored.DATA_FAKT_WYSTAWIENIA.date(), QDate(2026, 4, 7));
    EXPECT_EQ(stored.DATA_FAKT_PLATNOSCI.date(), QDate(2026, 4, 7));
}

TEST_F(FaktPrzew, AltZStoresWhatIsTypedWhereverTheCursorIs)
{
    const int key = invoiceOf2March();
    const auto dialog = open(key);
    retype(dialog->EdNumerFakt, QStringLiteral("FV/Ł/77"));
    retype(dialog->RSEDni, QStringLiteral("45"));
    retype(dialog->CEzaplacono, QStringLiteral("250"));
    QTest::keyClick(dialog->CBZaplacono, Qt::Key_Space);
    retype(dialog->CEKWOTA, QStringLiteral("1800"));
    pressAltZ(*dialog);

    EXPECT_EQ(dialog->result(), TfrmRODefault::mrOk);
    const TZlecenia_przychObj stored = order(key);
    EXPECT_EQ(stored.NUMER_FAKT_PRZEW, "FV/Ł/77");
    EXPECT_EQ(stored.DNI_FAKT, 45);
    EXPECT_DOUBLE_EQ(stored.ZAPLACONA_KWOTA, 250.0);
    EXPECT_DOUBLE_EQ(stored.KWOTA_FAKT_PRZEW, 1800.0);
    EXPECT_EQ(stored.NRRAMPY, 0);
    EXPECT_EQ(stored.DATA_FAKT_OTRZYMANIA.date(), QDate(2026, 3, 2));

    // Unpaid again, it is on the unpaid list again.
    CarrierInvoiceList unpaid;
    const auto rows = unpaid.read(db.connection());
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows.front().number, "FV/Ł/77");
}

TEST_F(FaktPrzew, ADateOutsideTheYearsItCanHoldIsRefusedAndNothingTypedIsLost)
{
    // Another program of the suite stored a receipt date far ahead.
    const int key = invoiceOf2March();
    db.exec(QStringLiteral("UPDATE ZLECENIA_PRZYCH SET DATA_FAKT_OTRZYMANIA='2101-01-01'"));
    const auto dialog = open(key);
    retype(dialog->EdNumerFakt, QStringLiteral("FV 99"));
    scriptedMessages().expect();
    QTest::mouseClick(dialog->btnOk, Qt::LeftButton);

    ASSERT_EQ(scriptedMessages().shown().size(), 1u);
    EXPECT_EQ(scriptedMessages().shown()[0].caption, "Faktura przewoźnika");
    EXPECT_EQ(scriptedMessages().shown()[0].text,
              "Data otrzymania musi przypadać w latach 1900-2100.");
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(dialog->focusWidget(), dialog->DEOtrzymania);
    EXPECT_EQ(dialog->EdNumerFakt->text(), "FV 99");
    EXPECT_EQ(order(key).NUMER_FAKT_PRZEW, "FV 12/2026");

    // The last day it can hold is taken.
    retypeDate(dialog->DEOtrzymania, QStringLiteral("2100-01-01"));
    ASSERT_EQ(dialog->DEOtrzymania->text(), "2100-01-01");
    QTest::mouseClick(dialog->btnOk, Qt::LeftButton);
    EXPECT_EQ(dialog->result(), TfrmRODefault::mrOk);
    EXPECT_EQ(order(key).NUMER_FAKT_PRZEW, "FV 99");
    EXPECT_EQ(order(key).DATA_FAKT_OTRZYMANIA.date(), QDate(2100, 1, 1));
}

TEST_F(FaktPrzew, AnAmountThatIsNoNumberIsNeverStored)
{
    const int key = invoiceOf2March();
    {
        // A lone decimal comma is no amount: the field says so, and the text
        // stays there to be put right.
        const auto dialog = open(key);
        retype(dialog->CEKWOTA, QStringLiteral(","));
        scriptedMessages().expect();
        pressAltZ(*dialog);
        ASSERT_EQ(scriptedMessages().shown().size(), 1u);
        EXPECT_TRUE(scriptedMessages().shown()[0].text.startsWith(
            QStringLiteral("Pole „Kwota netto”: „,” nie jest liczbą.")))
            << scriptedMessages().shown()[0].text.toStdString();
        EXPECT_TRUE(dialog->isVisible());
        EXPECT_EQ(dialog->CEKWOTA->text(), ",");
        EXPECT_DOUBLE_EQ(order(key).KWOTA_FAKT_PRZEW, 1000.0);
    }
    // Letters are refused as they are typed: what the field shows is what
    // is stored.
    const auto dialog = open(key);
    retype(dialog->CEKWOTA, QStringLiteral("12abc"));
    EXPECT_EQ(dialog->CEKWOTA->text(), "12");
    pressAltZ(*dialog);
    EXPECT_EQ(dialog->result(), TfrmRODefault::mrOk);
    EXPECT_DOUBLE_EQ(order(key).KWOTA_FAKT_PRZEW, 12.0);
}

TEST_F(FaktPrzew, AnOrderDeletedMeanwhileIsSaidSoAndTheDialogCloses)
{
    const int key = invoiceOf2March();
    const auto dialog = open(key);
    db.exec(QStringLiteral("DELETE FROM ZLECENIA_PRZYCH WHERE ID_ZLECENIA_PRZYCH=%1").arg(key));
    scriptedMessages().expect();
    QTest::mouseClick(dialog->btnOk, Qt::LeftButton);
    ASSERT_EQ(scriptedMessages().shown().size(), 1u);
    EXPECT_TRUE(scriptedMessages().shown()[0].text.startsWith("Zlecenia nie ma już w bazie"));
    EXPECT_EQ(dialog->result(), TfrmRODefault::mrCancel);
    EXPECT_EQ(db.count(QStringLiteral("ZLECENIA_PRZYCH")), 0);
}
