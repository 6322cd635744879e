// The carrier's invoice kept in its order: what is read, what is written,
// what cannot be stored.
#include "CarrierInvoice.h"
#include "CarrierInvoicesFixture.h"
#include "TZlecenia_przychObj.h"

#include <gtest/gtest.h>

namespace {

using Field = CarrierInvoice::Field;

} // namespace

class CarrierInvoiceTest : public CarrierInvoicesFixture
{
};

TEST_F(CarrierInvoiceTest, ReadsTheOrdersInvoiceWithNrRampyAsThePaidMark)
{
    const int paid = addInvoice({.carrier = Beta, .number = QStringLiteral("FV 12/2026"),
                                 .amount = 1450.5, .issued = QDate(2026, 3, 2), .days = 21,
                                 .paymentDate = QDate(2026, 3, 20), .paid = true,
                                 .paidAmount = 1450.5});
    const auto invoice = CarrierInvoice::load(db.connection(), paid);
    ASSERT_TRUE(invoice);
    EXPECT_TRUE(invoice->paid);
    EXPECT_EQ(invoice->number, "FV 12/2026");
    EXPECT_EQ(invoice->issued.date(), QDate(2026, 3, 2));
    EXPECT_EQ(invoice->received.date(), QDate(2026, 3, 2));
    EXPECT_DOUBLE_EQ(invoice->amount, 1450.5);
    EXPECT_EQ(invoice->paymentDays, 21);
    EXPECT_EQ(invoice->paymentDate.date(), QDate(2026, 3, 20));
    EXPECT_DOUBLE_EQ(invoice->paidAmount, 1450.5);

    // Only 1 means paid: a ramp number or NULL left by older data does not.
    for (const QString &mark : {QStringLiteral("5"), QStringLiteral("NULL")}) {
        db.exec(QStringLiteral("UPDATE ZLECENIA_PRZYCH SET NRRAMPY=%1 WHERE ID_ZLECENIA_PRZYCH=%2")
                    .arg(mark)
                    .arg(paid));
        EXPECT_FALSE(CarrierInvoice::load(db.connection(), paid)->paid) << mark.toStdString();
    }
    EXPECT_FALSE(CarrierInvoice::load(db.connection(), paid + 100));
}

TEST_F(CarrierInvoiceTest, SavingWritesTheEightColumnsAndLeavesTheRestOfTheOrder)
{
    const int key = addInvoice({.amount = 100.0, .issued = QDate(2026, 1, 5)});
    CarrierInvoice invoice = *CarrierInvoice::load(db.connection(), key);
    // Another workstation changes the order while the dialog is open.
    db.exec(QStringLiteral("UPDATE ZLECENIA_PRZYCH SET POJAZD='WE 12345', KWOTA=777 "
                           "WHERE ID_ZLECENIA_PRZYCH=%1")
                .arg(key));
    invoice.paid = true;
    invoice.number = QStringLiteral("FV/Ż/9");
    invoice.issued = DateTime::fromDate(QDate(2026, 2, 1));
    invoice.received = DateTime();
    invoice.amount = 2500.75;
    invoice.paymentDays = 30;
    invoice.paymentDate = DateTime::fromDate(QDate(2026, 3, 3));
    invoice.paidAmount = 2000.0;
    ASSERT_TRUE(invoice.save(db.connection(), key));

    const TZlecenia_przychObj order = TZlecenia_przychObj(db.connection()).SelectById(key);
    EXPECT_EQ(order.NRRAMPY, 1);
    EXPECT_EQ(order.NUMER_FAKT_PRZEW, "FV/Ż/9");
    EXPECT_EQ(order.DATA_FAKT_WYSTAWIENIA.date(), QDate(2026, 2, 1));
    EXPECT_EQ(db.count(QStringLiteral("ZLECENIA_PRZYCH"),
                       QStringLiteral("DATA_FAKT_OTRZYMANIA IS NULL")),
              1);
    EXPECT_DOUBLE_EQ(order.KWOTA_FAKT_PRZEW, 2500.75);
    EXPECT_EQ(order.DNI_FAKT, 30);
    EXPECT_EQ(order.DATA_FAKT_PLATNOSCI.date(), QDate(2026, 3, 3));
    EXPECT_DOUBLE_EQ(order.ZAPLACONA_KWOTA, 2000.0);
    EXPECT_EQ(order.POJAZD, "WE 12345");
    EXPECT_DOUBLE_EQ(order.KWOTA, 777.0);

    invoice.paid = false;
    ASSERT_TRUE(invoice.save(db.connection(), key));
    EXPECT_EQ(TZlecenia_przychObj(db.connection()).SelectById(key).NRRAMPY, 0);

    db.exec(QStringLiteral("DELETE FROM ZLECENIA_PRZYCH WHERE ID_ZLECENIA_PRZYCH=%1").arg(key));
    EXPECT_FALSE(invoice.save(db.connection(), key));
}

TEST_F(CarrierInvoiceTest, TheFirstValueThatCannotBeStoredIsNamed)
{
    CarrierInvoice invoice;
    EXPECT_FALSE(invoice.problem());
    invoice.issued = DateTime::fromDate(QDate(1900, 1, 1));
    invoice.paymentDate = DateTime::fromDate(QDate(2100, 12, 31));
    invoice.amount = CarrierInvoice::MaxAmount;
    invoice.paymentDays = CarrierInvoice::MaxPaymentDays;
    invoice.number = QString(CarrierInvoice::MaxNumberLength, u'Ż');
    EXPECT_FALSE(invoice.problem());

    const auto expectProblem = [](const CarrierInvoice &wrong, Field field, const char *text) {
        const auto problem = wrong.problem();
        ASSERT_TRUE(problem);
        EXPECT_EQ(problem->field, field);
        EXPECT_EQ(problem->message, QString::fromUtf8(text));
    };
    CarrierInvoice wrong = invoice;
    wrong.received = DateTime::fromDate(QDate(1899, 12, 31));
    expectProblem(wrong, Field::Received, "Data otrzymania musi przypadać w latach 1900-2100.");
    wrong = invoice;
    wrong.paymentDate = DateTime::fromDate(QDate(2101, 1, 1));
    expectProblem(wrong, Field::PaymentDate, "Data zapłaty musi przypadać w latach 1900-2100.");
    wrong = invoice;
    wrong.amount = 100000.0;
    expectProblem(wrong, Field::Amount,
                  "Kwota netto: kwota musi wynosić od 0,00 do 99\u00a0999,00 zł.");
    wrong = invoice;
    wrong.paidAmount = -1.0;
    expectProblem(wrong, Field::PaidAmount,
                  "Zapłacono: kwota musi wynosić od 0,00 do 99\u00a0999,00 zł.");
    wrong = invoice;
    wrong.number += u'1';
    expectProblem(wrong, Field::Number, "Numer faktury może mieć najwyżej 40 znaków.");
}
