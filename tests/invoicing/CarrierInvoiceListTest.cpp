// Which carriers' invoices each list holds, in which order, and the days
// they are late.
#include "CarrierInvoiceList.h"
#include "CarrierInvoicesFixture.h"

#include <gtest/gtest.h>

using Mode = CarrierInvoiceList::Mode;

class CarrierInvoiceListTest : public CarrierInvoicesFixture
{
protected:
    QStringList numbers(Mode mode, int carrier = 0, QDate from = {}, QDate to = {})
    {
        CarrierInvoiceList list;
        list.mode = mode;
        list.carrier = carrier;
        list.from = from;
        list.to = to;
        return numbersOf(list.read(db.connection()));
    }

    static QStringList numbersOf(const std::vector<CarrierInvoiceRow> &rows)
    {
        QStringList numbers;
        for (const CarrierInvoiceRow &row : rows)
            numbers << row.number;
        return numbers;
    }

    QString daysLate(Mode mode, const QString &number)
    {
        CarrierInvoiceList list;
        list.mode = mode;
        list.from = QDate(2000, 1, 1);
        list.to = QDate(2099, 1, 1);
        for (const CarrierInvoiceRow &row : list.read(db.connection())) {
            if (row.number == number)
                return row.daysLate();
        }
        ADD_FAILURE() << number.toStdString() << " is not listed";
        return QStringLiteral("?");
    }

    const QDate march1{2026, 3, 1};
};

TEST_F(CarrierInvoiceListTest, AnOrderWithoutACarrierAmountIsNeverUnpaidOrIssued)
{
    addInvoice({.number = QStringLiteral("ZERO"), .amount = 0.0, .issued = march1});
    const int nullAmount = addInvoice({.number = QStringLiteral("NULL"), .issued = march1});
    db.exec(QStringLiteral("UPDATE ZLECENIA_PRZYCH SET KWOTA_FAKT_PRZEW=NULL "
                           "WHERE ID_ZLECENIA_PRZYCH=%1")
                .arg(nullAmount));
    addInvoice({.number = QStringLiteral("GROSZ"), .amount = 0.01, .issued = march1});

    EXPECT_EQ(numbers(Mode::Unpaid), QStringList{QStringLiteral("GROSZ")});
    EXPECT_EQ(numbers(Mode::Issued, 0, march1, march1), QStringList{QStringLiteral("GROSZ")});
    EXPECT_TRUE(CarrierInvoiceList::readPayments(db.connection()).size() == 1);
}

TEST_F(CarrierInvoiceListTest, PaidLateShowsTheDaysAndPaidInTimeShowsBlank)
{
    // Issued 1 March with 14 days: due 15 March.
    const auto paidOn = [this](const char *number, QDate day) {
        addInvoice({.number = QString::fromLatin1(number), .amount = 100.0, .issued = march1,
                    .paymentDate = day, .paid = true});
    };
    paidOn("LATE", QDate(2026, 3, 18));
    paidOn("ON DUE DAY", QDate(2026, 3, 15));
    paidOn("EARLY", QDate(2026, 3, 10));
    const int lateInTheDay = addInvoice({.number = QStringLiteral("DUE DAY AFTERNOON"),
                                         .amount = 100.0, .issued = march1, .paid = true});
    db.exec(QStringLiteral("UPDATE ZLECENIA_PRZYCH SET DATA_FAKT_PLATNOSCI='2026-03-15 16:30' "
                           "WHERE ID_ZLECENIA_PRZYCH=%1")
                .arg(lateInTheDay));
    EXPECT_EQ(daysLate(Mode::Paid, QStringLiteral("LATE")), "3");
    EXPECT_EQ(daysLate(Mode::Paid, QStringLiteral("ON DUE DAY")), "");
    EXPECT_EQ(daysLate(Mode::Paid, QStringLiteral("EARLY")), "");
    EXPECT_EQ(daysLate(Mode::Paid, QStringLiteral("DUE DAY AFTERNOON")), "");
    EXPECT_EQ(daysLate(Mode::Issued, QStringLiteral("LATE")), "3");

    // Unpaid ones count to today: overdue for 6 days, due today, not yet due.
    const auto dueIn = [this](const char *number, int days) {
        addInvoice({.number = QString::fromLatin1(number), .amount = 100.0,
                    .issued = today().addDays(days - 14)});
    };
    dueIn("OVERDUE", -6);
    dueIn("DUE TODAY", 0);
    dueIn("DUE TOMORROW", 1);
    EXPECT_EQ(daysLate(Mode::Unpaid, QStringLiteral("OVERDUE")), "6");
    EXPECT_EQ(daysLate(Mode::Unpaid, QStringLiteral("DUE TODAY")), "");
    EXPECT_EQ(daysLate(Mode::Unpaid, QStringLiteral("DUE TOMORROW")), "");
}

TEST_F(CarrierInvoiceListTest, ThePeriodTakesBothEndsWholeAndTheCarrierFilterOneCarrier)
{
    const auto invoice = [this](const char *number, int carrier, QDate issued, QDate paid) {
        addInvoice({.carrier = carrier, .number = QString::fromLatin1(number), .amount = 10.0,
                    .issued = issued, .paymentDate = paid, .paid = true});
    };
    invoice("A-FEB", Alfa, QDate(2026, 2, 28), QDate(2026, 2, 28));
    invoice("A-MAR1", Alfa, march1, march1);
    invoice("B-MAR31", Beta, QDate(2026, 3, 31), QDate(2026, 3, 31));
    invoice("A-APR", Alfa, QDate(2026, 4, 1), QDate(2026, 4, 1));
    db.exec(QStringLiteral("UPDATE ZLECENIA_PRZYCH SET DATA_FAKT_PLATNOSCI='2026-03-31 23:59:59' "
                           "WHERE NUMER_FAKT_PRZEW='B-MAR31'"));
    const QDate march31(2026, 3, 31);

    EXPECT_EQ(numbers(Mode::Paid, 0, march1, march31),
              (QStringList{QStringLiteral("A-MAR1"), QStringLiteral("B-MAR31")}));
    EXPECT_EQ(numbers(Mode::Issued, 0, march1, march31),
              (QStringList{QStringLiteral("A-MAR1"), QStringLiteral("B-MAR31")}));
    EXPECT_EQ(numbers(Mode::Paid, Beta, march1, march31), QStringList{QStringLiteral("B-MAR31")});
    QStringList alfa = numbers(Mode::Paid, Alfa, QDate(2026, 2, 1), march31);
    alfa.sort();
    EXPECT_EQ(alfa, (QStringList{QStringLiteral("A-FEB"), QStringLiteral("A-MAR1")}));
    // Any mark but 1 is unpaid, NULL too.
    db.exec(QStringLiteral("UPDATE ZLECENIA_PRZYCH SET NRRAMPY=NULL"));
    EXPECT_EQ(numbers(Mode::Unpaid, Beta), QStringList{QStringLiteral("B-MAR31")});
}

TEST_F(CarrierInvoiceListTest, ListsGoByCarrierNameThePaymentListByPaymentDate)
{
    addInvoice({.carrier = Beta, .number = QStringLiteral("B1"), .amount = 300.0,
                .issued = march1, .paymentDate = QDate(2026, 3, 5), .paidAmount = 100.0});
    addInvoice({.carrier = Alfa, .number = QStringLiteral("A1"), .amount = 200.0,
                .issued = march1, .paymentDate = QDate(2026, 3, 9)});
    addInvoice({.carrier = Beta, .number = QStringLiteral("B2"), .amount = 50.0,
                .issued = march1, .paymentDate = QDate(2026, 3, 7)});
    // The full name decides, not the key: "Alfa Trans" before "Beta Cargo".
    db.exec(QStringLiteral(
        "UPDATE KONTRAHENCI SET NAZWA='Zeta Cargo S.A.' WHERE SKROT='ALFA TRANS'"));
    const QStringList unpaid = numbers(Mode::Unpaid);
    ASSERT_EQ(unpaid.size(), 3);
    EXPECT_EQ(unpaid.last(), "A1");

    EXPECT_EQ(numbersOf(CarrierInvoiceList::readPayments(db.connection())),
              (QStringList{"B1", "B2", "A1"}));
}

TEST_F(CarrierInvoiceListTest, TitlesNameTheListAndItsPeriod)
{
    CarrierInvoiceList list;
    list.from = march1;
    list.to = QDate(2026, 3, 31);
    EXPECT_EQ(list.title(), " Faktury przewoźników niezapłacone ");
    list.mode = Mode::Issued;   // the paid list's is read from its page
    EXPECT_EQ(list.title(), " Faktury przewoźników wystawione  od 2026-03-01 do dnia 2026-03-31");
}

TEST_F(CarrierInvoiceListTest, TheCarriersToChooseFromAreThoseOfTheOrders)
{
    addInvoice({.carrier = Beta, .number = QStringLiteral("B1")});
    addInvoice({.carrier = Beta, .number = QStringLiteral("B2")});
    addInvoice({.carrier = 0, .number = QStringLiteral("NONE")});
    const auto carriers = CarrierInvoiceList::carriers(db.connection());
    ASSERT_EQ(carriers.size(), 1u);
    EXPECT_EQ(carriers.front().key, Beta);
    EXPECT_EQ(carriers.front().name, "BETA CARGO");
}
