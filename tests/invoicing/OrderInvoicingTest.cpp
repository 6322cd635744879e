#include "InvoiceDraft.h"
#include "InvoiceRemoval.h"
#include "InvoicingError.h"
#include "OrderInvoicingFixture.h"
#include "ScriptedMessages.h"
#include "TableObjects.h"

#include <gtest/gtest.h>

namespace {

const QDate March(2026, 3, 20);

} // namespace

class OrderInvoicingTest : public OrderInvoicingFixture
{
protected:
    TFakturyObj invoice(int key) { return TFakturyObj(db.connection()).SelectById(key); }

    // The only position of the invoice.
    TFaktury_pozycjeObj position(int invoiceKey)
    {
        const auto positions = TFaktury_pozycjeObj(db.connection())
                                   .SelectWhere(QStringLiteral("ID_FAKTURY"), opEqual,
                                                invoiceKey);
        EXPECT_EQ(positions.size(), 1u);
        return positions.empty() ? TFaktury_pozycjeObj(db.connection()) : positions.front();
    }

    void failOn(const QString &table, const QString &event)
    {
        db.exec(QStringLiteral("CREATE EXCEPTION AWARIA 'Awaria testowa'"));
        db.exec(QStringLiteral("CREATE TRIGGER AWARIA_%1 FOR %1 BEFORE %2 AS "
                               "BEGIN EXCEPTION AWARIA; END")
                    .arg(table, event));
    }

    // Issues and expects the failure a table object shows as "Błąd".
    void issueFailing(const std::vector<int> &orders, const QString &shownText)
    {
        scriptedMessages().clear();
        scriptedMessages().expect();
        EXPECT_THROW(issue(orders, March), InvoicingError);
        ASSERT_EQ(scriptedMessages().shown().size(), 1u);
        EXPECT_EQ(scriptedMessages().shown()[0].caption, QStringLiteral("Błąd"));
        EXPECT_EQ(scriptedMessages().shown()[0].text, shownText);
    }
};

TEST_F(OrderInvoicingTest, WritesTheInvoiceItsOnePositionAndLinksEveryOrder)
{
    const int agreed = addOrder([](auto &o) { o.STAWKA_RAZEM = 1200; o.KWOTA = 900; });
    const int byAmount = addOrder([](auto &o) { o.STAWKA_RAZEM = 0; o.KWOTA = 850.5; });
    const OrderInvoicing::Issued issued = issue({agreed, byAmount}, March);

    EXPECT_EQ(issued.number, 1);
    EXPECT_EQ(issued.fullNumber, QStringLiteral("001/03/2026"));
    const TFakturyObj f = invoice(issued.key);
    EXPECT_EQ(f.NUMER_PELNY, issued.fullNumber);
    EXPECT_EQ(f.MASKA, QString::fromLatin1(Mask));
    EXPECT_EQ(f.IDWALUTA, 24);
    EXPECT_EQ(f.ID_REJESTR, 2);
    EXPECT_EQ(f.DZIAL, 2);   // domestic forwarding: no order of the own fleet
    EXPECT_EQ(f.GATUNEK_DOK_NADRZ, 4);
    EXPECT_EQ(f.ID_WYSTAWIL, UserKey);
    EXPECT_EQ(f.ID_KONTRAHENTA, int(ClientA));
    EXPECT_EQ(f.KONTO_BANKOWE, DefaultAccount);
    EXPECT_EQ(f.ID_RODZ_PLATNOSCI, 2);
    EXPECT_EQ(f.ILOSC_DNI_PLATN, 30);
    EXPECT_EQ(f.OPIS_POZYCJI, QStringLiteral("Płatne przelewem"));

    const TFaktury_pozycjeObj p = position(issued.key);
    EXPECT_EQ(p.TRESC, QStringLiteral("Przewóz towaru wg załącznika"));
    EXPECT_EQ(p.ILOSC, 1.0);
    EXPECT_EQ(p.JM, QStringLiteral("Fracht"));
    EXPECT_DOUBLE_EQ(p.CENA_NETTO, 2050.5);
    EXPECT_DOUBLE_EQ(p.KWOTA_W_WALUCIE, 2050.5);
    EXPECT_EQ(p.ID_VAT, 1);
    EXPECT_EQ(p.SWWKU, QStringLiteral("49.41.19"));
    EXPECT_EQ(p.RODZAJ_USLUGI, 4);
    EXPECT_EQ(invoiceOf(agreed), issued.key);
    EXPECT_EQ(invoiceOf(byAmount), issued.key);
}

TEST_F(OrderInvoicingTest, NumbersRestartWithTheSettlementMonthButTakeTheIssueYear)
{
    EXPECT_EQ(issue({addOrder()}, QDate(2025, 12, 10)).number, 1);
    EXPECT_EQ(issue({addOrder()}, QDate(2025, 12, 30)).number, 2);
    EXPECT_EQ(issue({addOrder()}, QDate(2026, 1, 2)).fullNumber, QStringLiteral("001/01/2026"));
    // Sold in December, issued in January and settled by the sale: the
    // December numbers of 2025 do not count, the year being the issue's.
    const auto bySale = issue({addOrder()}, QDate(2026, 1, 5), QDate(2025, 12, 20), true);
    EXPECT_EQ(bySale.number, 1);
    EXPECT_EQ(bySale.fullNumber, QStringLiteral("001/12/2025"));
    // Another document kind has numbers of its own.
    OrderInvoicing::Request correction = request({addOrder()}, QDate(2026, 1, 7));
    correction.header.ID_RODZAJ_DOK = 2;
    EXPECT_EQ(OrderInvoicing::issue(transaction, correction).number, 1);
    EXPECT_EQ(issue({addOrder()}, QDate(2026, 1, 8)).number, 2);
}

TEST_F(OrderInvoicingTest, DraftTakesTheLatestDeliveryAndNoticesTheOwnFleet)
{
    const auto deliveredOn = [this](int day) {
        return addOrder([day](auto &o) { o.DOSTARCZENIE = DateTime::fromDate(QDate(2026, 3, day)); });
    };
    const int early = deliveredOn(12);
    const int late = deliveredOn(14);
    const int own = addOrder([](auto &o) { o.IDPRZEWOZNIK = OwnCompany; });
    const InvoiceDraft outside = InvoiceDraft::of(db.connection(), {late, early}, OwnCompany);
    EXPECT_EQ(outside.latestDelivery.date(), QDate(2026, 3, 14));
    EXPECT_FALSE(outside.ownFleet);
    EXPECT_DOUBLE_EQ(outside.netTotal, 2000.0);
    EXPECT_TRUE(InvoiceDraft::of(db.connection(), {early, own}, OwnCompany).ownFleet);

    const InvoiceDraft single = InvoiceDraft::of(db.connection(), {early}, OwnCompany);
    EXPECT_EQ(single.serviceName, QStringLiteral("Usługa haulixowa na trasie:Łódź-Kraków"));
    const int via = addOrder([](auto &o) { o.IDMIASTO_VIA = Warszawa; });
    EXPECT_EQ(InvoiceDraft::of(db.connection(), {via}, OwnCompany).serviceName,
              QStringLiteral("Usługa haulixowa na trasie:Łódź-Warszawa-Kraków"));
    EXPECT_EQ(InvoiceDraft::serviceNameOf(1, QStringLiteral("A"), QStringLiteral("  "),
                                        QStringLiteral("C")),
              QStringLiteral("Usługa haulixowa na trasie:A-C"));
}

TEST_F(OrderInvoicingTest, AFailedPositionOrLinkOfTheLastOrderLeavesNoInvoiceNumberOrLink)
{
    const int first = addOrder();
    const int last = addOrder([](auto &o) { o.NUMER = 777; });
    failOn(QStringLiteral("FAKTURY_POZYCJE"), QStringLiteral("INSERT"));
    issueFailing({first, last},
                 QStringLiteral("Błąd przy dodawaniu danych tabeli FAKTURY_POZYCJE"));
    expectNothingInvoiced();

    db.exec(QStringLiteral("DROP TRIGGER AWARIA_FAKTURY_POZYCJE"));
    db.exec(QStringLiteral("CREATE TRIGGER AWARIA_LINK FOR ZLECENIA_PRZYCH BEFORE UPDATE AS "
                           "BEGIN IF (NEW.NUMER = 777) THEN EXCEPTION AWARIA; END"));
    issueFailing({first, last},
                 QStringLiteral("Błąd przy poprawie danych tabeli ZLECENIA_PRZYCH"));
    expectNothingInvoiced();
}

TEST_F(OrderInvoicingTest, AnOrderInvoicedElsewhereMeanwhileStopsTheInvoicing)
{
    const int free = addOrder();
    const int taken = addOrder();
    const OrderInvoicing::Request later = request({free, taken}, March);
    issue({taken}, March);
    try {
        OrderInvoicing::issue(transaction, later);
        ADD_FAILURE() << "invoiced twice";
    } catch (const InvoicingError &error) {
        EXPECT_TRUE(error.message().contains(QStringLiteral("zafakturowane")));
    }
    EXPECT_EQ(db.count(QStringLiteral("FAKTURY")), 1);
    EXPECT_EQ(invoiceOf(free), 0);
}

TEST_F(OrderInvoicingTest, RemovalFreesEveryOrderOfTheInvoiceAndOnlyThoseAFailedOneNone)
{
    const int a = addOrder();
    const int b = addOrder();
    const int other = addOrder();
    const int removed = issue({a, b}, March).key;
    const int kept = issue({other}, March).key;
    failOn(QStringLiteral("FAKTURY"), QStringLiteral("DELETE"));
    scriptedMessages().expect();
    EXPECT_THROW(InvoiceRemoval::remove(transaction, removed), InvoicingError);
    EXPECT_EQ(scriptedMessages().shown().at(0).text,
              QStringLiteral("Błąd przy usuwaniu danych z tabeli FAKTURY"));
    EXPECT_EQ(invoiceOf(a), removed);
    EXPECT_EQ(db.count(QStringLiteral("FAKTURY_POZYCJE")), 2);

    db.exec(QStringLiteral("DROP TRIGGER AWARIA_FAKTURY"));
    InvoiceRemoval::remove(transaction, removed);
    EXPECT_EQ(invoiceOf(a), 0);
    EXPECT_EQ(invoiceOf(b), 0);
    EXPECT_EQ(invoiceOf(other), kept);
    EXPECT_EQ(db.count(QStringLiteral("FAKTURY")), 1);
    EXPECT_EQ(db.count(QStringLiteral("FAKTURY_POZYCJE")), 1);
}
