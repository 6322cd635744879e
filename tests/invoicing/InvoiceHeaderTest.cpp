#include "BatchInvoicing.h"
#include "InvoiceHeader.h"
#include "InvoicingError.h"
#include "OrderInvoicingFixture.h"
#include "RevenueAccounts.h"
#include "SessionContext.h"
#include "TFakturyObj.h"

#include <gtest/gtest.h>

class InvoiceHeaderTest : public OrderInvoicingFixture
{
protected:
    InvoiceHeader proposed(int client, bool ownFleet)
    {
        TFakturyObj record(db.connection());
        record.ID_KONTRAHENTA = client;
        return InvoiceHeader::proposed(InvoiceHeaderChoices::load(db.connection()), record,
                                       ownFleet, DateTime::fromDate(QDate(2026, 3, 20)),
                                       InvoiceHeader::storedPkwiu(db.connection()));
    }

    BatchInvoicing::Options month(int client)
    {
        return {client, QDate(2026, 3, 1), QDate(2026, 3, 31), false, QDate(2026, 4, 2), 7};
    }
};

TEST_F(InvoiceHeaderTest, ProposesTheDefaultsAndOffersOnlyKindsThatInvoiceOrders)
{
    const InvoiceHeaderChoices choices = InvoiceHeaderChoices::load(db.connection());
    ASSERT_EQ(choices.documentKinds.size(), 2u);
    EXPECT_EQ(choices.documentKinds[0].text, QStringLiteral("Faktura VAT"));
    // Polish order, where a byte order would put Ł after M.
    ASSERT_EQ(choices.clients.size(), 4u);
    EXPECT_EQ(choices.clients[1].text, QStringLiteral("ŁAD Sp. z o.o."));
    EXPECT_EQ(choices.clients[2].text, QStringLiteral("MOST Sp. z o.o."));

    const InvoiceHeader own = proposed(ClientB, true);
    EXPECT_EQ(own.documentKind, 1);
    EXPECT_EQ(own.client, int(ClientB));
    // The proposed payment and account are checked where an invoice stores them.
    EXPECT_EQ(own.pkwiu, QStringLiteral("49.41.19"));
    EXPECT_EQ(RevenueAccounts::all()[own.revenueAccount].number, QStringLiteral("700-11"));
    EXPECT_EQ(RevenueAccounts::all()[proposed(ClientB, false).revenueAccount].number,
              QStringLiteral("700-12"));
    EXPECT_EQ(proposed(0, false).client, 0);
    EXPECT_TRUE(proposed(ClientB, false).problem().isEmpty());
}

TEST_F(InvoiceHeaderTest, ChecksTheChoicesInTheDialogsOrder)
{
    InvoiceHeader header;
    EXPECT_EQ(header.problem(), QStringLiteral("Uzupełnij pole Rodzaj dokumentu."));
    header.documentKind = 1;
    EXPECT_EQ(header.problem(), QStringLiteral("Uzupełnij pole Konto."));
    header.bankAccount = 1;
    EXPECT_EQ(header.problem(), QStringLiteral("Uzupełnij pole Sposób zapłaty."));
    header.paymentType = 1;
    EXPECT_EQ(header.problem(), QStringLiteral("Uzupełnij pole Kontrahent."));
    header.client = 1;
    EXPECT_TRUE(header.problem().isEmpty());

    header.revenueAccount = 3;
    TFakturyObj record(db.connection());
    header.applyTo(record);
    EXPECT_EQ(record.DZIAL, 4);
    EXPECT_EQ(record.ID_REJESTR, 4);
}

TEST_F(InvoiceHeaderTest, BatchInvoicesTheClientsFreeOrdersOfThePeriodOnly)
{
    const int first = addOrder([](auto &o) { o.DATA = DateTime::fromDate(QDate(2026, 3, 1)); });
    const int lastDay = addOrder([](auto &o) {
        o.DATA = DateTime(DateTime::fromDate(QDate(2026, 3, 31)).days() + 0.75);
        o.KWOTA = 300;
        o.STAWKA_RAZEM = 0;
    });
    const int april = addOrder([](auto &o) { o.DATA = DateTime::fromDate(QDate(2026, 4, 1)); });
    const int otherClient = addOrder([](auto &o) { o.IDKONTRAHENTA = ClientB; });
    const auto issued = BatchInvoicing::run(transaction, month(ClientA));
    ASSERT_TRUE(issued.has_value());
    EXPECT_EQ(issued->fullNumber, QStringLiteral("001/04/2026"));
    EXPECT_EQ(invoiceOf(first), issued->key);
    EXPECT_EQ(invoiceOf(lastDay), issued->key);
    EXPECT_EQ(invoiceOf(april), 0);
    EXPECT_EQ(invoiceOf(otherClient), 0);
    const TFakturyObj f = TFakturyObj(db.connection()).SelectById(issued->key);
    EXPECT_EQ(f.ID_WYSTAWIL, 7);
    // No delivery dates: sold when last loaded.
    EXPECT_EQ(f.DATA_SPRZEDAZY.date(), QDate(2026, 3, 31));
    EXPECT_EQ(db.scalar(QStringLiteral("SELECT CENA_NETTO FROM FAKTURY_POZYCJE")).toDouble(),
              1300.0);

    EXPECT_FALSE(BatchInvoicing::run(transaction, month(ClientA)).has_value());
}

TEST_F(InvoiceHeaderTest, BatchOfTheOwnFleetProposesFromThePreviousFlagThenKeepsItsOwn)
{
    addOrder([](auto &o) { o.IDPRZEWOZNIK = OwnCompany; });
    addOrder([](auto &o) { o.IDPRZEWOZNIK = OwnCompany; o.IDKONTRAHENTA = ClientB; });
    const auto first = BatchInvoicing::run(transaction, month(ClientA));
    const auto second = BatchInvoicing::run(transaction, month(ClientB));
    const auto dzial = [this](int key) {
        return TFakturyObj(db.connection()).SelectById(key).DZIAL;
    };
    EXPECT_EQ(dzial(first->key), 2);
    EXPECT_EQ(dzial(second->key), 1);
    EXPECT_TRUE(session().OwnFleet);
    EXPECT_EQ(TFakturyObj(db.connection()).SelectById(first->key).NUMER_ROZSZERZONY,
              QStringLiteral(" "));
}
