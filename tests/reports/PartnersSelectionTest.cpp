// What the partners report selects, without a widget; its margins are read
// from its pages.
#include "PartnersSelection.h"
#include "ReportsFixture.h"
#include "Statement.h"
#include "TestData.h"

class PartnersSelectionTest : public ReportsFixture
{
protected:
    // The order numbers the selection lists, in its order.
    QList<int> numbers(const PartnersSelection &selection)
    {
        Statement st(db.connection());
        selection.prepare(st, PartnersSelection::ownShortName(db.connection()));
        st.exec();
        QList<int> result;
        for (; !st.atEnd(); st.next())
            result << st.integer(QStringLiteral("NUMER"));
        return result;
    }

    // An invoiced order: number, invoice day in March, carrier, abroad, partner.
    void invoiced(int number, int day, int carrierKey, bool abroad, int partner)
    {
        const int invoice = addInvoice({.sequence = number, .issued = QDate(2026, 3, day)});
        addOrder({.invoice = invoice, .number = number, .carrier = carrierKey,
                  .rate = 100.0 * number, .abroad = abroad, .partner = partner});
    }
};

TEST_F(PartnersSelectionTest, TheTitleNamesThePartnerUnlessAllAreShownAndTheRegion)
{
    PartnersSelection s = partnersOfMarch();
    s.partnerText = QStringLiteral("Jan Wiśniewski");
    EXPECT_EQ(s.title(), "Dla kontrahenta: Jan Wiśniewski. Z okresu: 2026-03-01 - 2026-03-31. "
                         "Zlecenia krajowe i zagraniczne.");
    s.region = PartnersSelection::Domestic;
    EXPECT_EQ(s.title(), "Dla kontrahenta: Jan Wiśniewski. Z okresu: 2026-03-01 - 2026-03-31. "
                         "Zlecenia krajowe.");
    s.showAll = true;
    s.region = PartnersSelection::Foreign;
    EXPECT_EQ(s.title(), "Z okresu: 2026-03-01 - 2026-03-31. Zlecenia zagraniczne.");
}

TEST_F(PartnersSelectionTest, BrakStandsForNoPartnerOnlyWhenTheFirstFilterHasNone)
{
    db.exec(QStringLiteral("INSERT INTO FILTRY_PRZYCH (NR_FILTRA, OPIS) VALUES (2, 'Słubice')"));
    auto partners = PartnersSelection::partners(db.connection());
    ASSERT_EQ(partners.size(), 1u);
    EXPECT_EQ(partners[0].key, 0);
    EXPECT_EQ(partners[0].text, "Brak");

    const int jan = TestData::addFilter(db.connection(), QStringLiteral("Jan Wiśniewski"));
    partners = PartnersSelection::partners(db.connection());
    ASSERT_EQ(partners.size(), 1u);
    EXPECT_EQ(partners[0].key, jan);
    EXPECT_EQ(partners[0].text, "Jan Wiśniewski");
}

TEST_F(PartnersSelectionTest, RowsOfThePeriodRegionCarrierAndPartnerInInvoiceDateOrder)
{
    invoiced(1, 20, 0, false, 1);
    invoiced(2, 1, carrier, false, 1);
    invoiced(3, 31, 0, true, 1);
    invoiced(4, 10, carrier, true, 2);
    invoiced(5, 5, 0, false, 0);
    addOrder({.number = 6, .rate = 1.0, .partner = 1});   // not invoiced
    const int april = addInvoice({.sequence = 7, .issued = QDate(2026, 4, 1)});
    addOrder({.invoice = april, .number = 7, .partner = 1});

    PartnersSelection s = partnersOfMarch();
    EXPECT_EQ(numbers(s), QList<int>({2, 5, 4, 1, 3}));
    s.region = PartnersSelection::Domestic;
    EXPECT_EQ(numbers(s), QList<int>({2, 5, 1}));
    s.region = PartnersSelection::Foreign;
    EXPECT_EQ(numbers(s), QList<int>({4, 3}));
    s.region = PartnersSelection::AllRegions;
    s.executor = PartnersSelection::OwnCompany;
    EXPECT_EQ(numbers(s), QList<int>({5, 1, 3}));
    s.executor = PartnersSelection::OtherCarriers;
    EXPECT_EQ(numbers(s), QList<int>({2, 4}));
    s.executor = PartnersSelection::AnyExecutor;
    // "Pokaż wszystkie" shortens the title only: the partner still filters.
    s.partner = 1;
    s.showAll = true;
    EXPECT_EQ(numbers(s), QList<int>({2, 1, 3}));
    s.partner = 0;
    EXPECT_EQ(numbers(s), QList<int>({5}));
}

TEST_F(PartnersSelectionTest, WithoutAnOwnContractorTheOwnChoiceMatchesEmptyCarriersOnly)
{
    db.exec(QStringLiteral("DELETE FROM KONFIGURACJA WHERE POLE='IDWłaściciela'"));
    EXPECT_EQ(PartnersSelection::ownShortName(db.connection()), QString());
    invoiced(1, 2, 0, false, 1);
    invoiced(2, 3, carrier, false, 1);
    db.exec(QStringLiteral("UPDATE ZLECENIA_PRZYCH SET IDPRZEWOZNIK=0 WHERE NUMER=1"));
    PartnersSelection s = partnersOfMarch();
    s.executor = PartnersSelection::OwnCompany;
    EXPECT_EQ(numbers(s), QList<int>({1}));
    s.executor = PartnersSelection::OtherCarriers;
    EXPECT_EQ(numbers(s), QList<int>({2}));
}

TEST(PartnersSelection, AMonthBackKeepsTheDayOrTakesTheMonthsLast)
{
    EXPECT_EQ(PartnersSelection::monthBefore(QDate(2026, 3, 15)), QDate(2026, 2, 15));
    EXPECT_EQ(PartnersSelection::monthBefore(QDate(2026, 3, 31)), QDate(2026, 2, 28));
    EXPECT_EQ(PartnersSelection::monthBefore(QDate(2024, 3, 30)), QDate(2024, 2, 29));
    EXPECT_EQ(PartnersSelection::monthBefore(QDate(2026, 1, 31)), QDate(2025, 12, 31));
}
