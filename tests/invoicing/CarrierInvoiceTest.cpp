// The carrier's invoice kept in its order: what the dialog's tests cannot
// reach of reading, writing and refusing it.
#include "CarrierInvoice.h"
#include "CarrierInvoicesFixture.h"
#include "TZlecenia_przychObj.h"

#include <gtest/gtest.h>

using CarrierInvoiceTest = CarrierInvoicesFixture;

TEST_F(CarrierInvoiceTest, OnlyNrRampyOneMeansPaid)
{
    const int paid = addInvoice({.number = QStringLiteral("FV 12/2026"), .paid = true});
    EXPECT_TRUE(CarrierInvoice::load(db.connection(), paid)->paid);
    // A ramp number or NULL left by older data does not.
    for (const QString &mark : {QStringLiteral("5"), QStringLiteral("NULL")}) {
        db.exec(QStringLiteral("UPDATE ZLECENIA_PRZYCH SET NRRAMPY=%1 WHERE ID_ZLECENIA_PRZYCH=%2")
                    .arg(mark)
                    .arg(paid));
        EXPECT_FALSE(CarrierInvoice::load(db.connection(), paid)->paid) << mark.toStdString();
    }
    EXPECT_FALSE(CarrierInvoice::load(db.connection(), paid + 100));
}

TEST_F(CarrierInvoiceTest, SavingWritesItsColumnsAndLeavesTheRestOfTheOrder)
{
    const int key = addInvoice({.amount = 100.0, .issued = QDate(2026, 1, 5)});
    CarrierInvoice invoice = *CarrierInvoice::load(db.connection(), key);
    // Another workstation changes the order while the dialog is open.
    db.exec(QStringLiteral("UPDATE ZLECENIA_PRZYCH SET POJAZD='WE 12345', KWOTA=777 "
                           "WHERE ID_ZLECENIA_PRZYCH=%1")
                .arg(key));
    invoice.paid = true;
    invoice.number = QStringLiteral("FV/Ż/9");
    invoice.received = DateTime();
    invoice.amount = 2500.75;
    ASSERT_TRUE(invoice.save(db.connection(), key));

    const TZlecenia_przychObj order = TZlecenia_przychObj(db.connection()).SelectById(key);
    EXPECT_EQ(order.NRRAMPY, 1);
    EXPECT_EQ(order.NUMER_FAKT_PRZEW, "FV/Ż/9");
    EXPECT_EQ(order.DATA_FAKT_WYSTAWIENIA.date(), QDate(2026, 1, 5));
    EXPECT_EQ(db.count(QStringLiteral("ZLECENIA_PRZYCH"),
                       QStringLiteral("DATA_FAKT_OTRZYMANIA IS NULL")),
              1);
    EXPECT_DOUBLE_EQ(order.KWOTA_FAKT_PRZEW, 2500.75);
    EXPECT_EQ(order.POJAZD, "WE 12345");
    EXPECT_DOUBLE_EQ(order.KWOTA, 777.0);
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

    using Field = CarrierInvoice::Field;
    const struct
    {
        void (*spoil)(CarrierInvoice &);
        Field field;
        const char *message;
    } wrong[] = {
        {[](CarrierInvoice &i) { i.received = DateTime::fromDate(QDate(1899, 12, 31)); },
         Field::Received, "Data otrzymania musi przypadać w latach 1900-2100."},
        {[](CarrierInvoice &i) { i.paymentDate = DateTime::fromDate(QDate(2101, 1, 1)); },
         Field::PaymentDate, "Data zapłaty musi przypadać w latach 1900-2100."},
        {[](CarrierInvoice &i) { i.amount = 100000.0; }, Field::Amount,
         "Kwota netto: kwota musi wynosić od 0,00 do 99\u00a0999,00 zł."},
        {[](CarrierInvoice &i) { i.paidAmount = -1.0; }, Field::PaidAmount,
         "Zapłacono: kwota musi wynosić od 0,00 do 99\u00a0999,00 zł."},
        {[](CarrierInvoice &i) { i.number += u'1'; }, Field::Number,
         "Numer faktury może mieć najwyżej 40 znaków."}};
    for (const auto &[spoil, field, message] : wrong) {
        CarrierInvoice spoilt = invoice;
        spoil(spoilt);
        const auto problem = spoilt.problem();
        ASSERT_TRUE(problem) << message;
        EXPECT_EQ(problem->field, field);
        EXPECT_EQ(problem->message, QString::fromUtf8(message));
    }
}
