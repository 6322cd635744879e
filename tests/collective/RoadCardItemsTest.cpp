// The road cards as the choice lists them, and an order put on a card.
#include "OrderRoadCard.h"
#include "RoadCardItems.h"
#include "TKarty_drObj.h"
#include "TZlecenia_przychObj.h"
#include "TestDatabase.h"

#include <gtest/gtest.h>

namespace {

// Cards 1 to 11 are made and 1 to 8 deleted again, so that the keys left
// are 9, 10 and 11.
void addCardsNineToEleven(TestDatabase &db)
{
    TKarty_drObj card(db.connection());
    for (int i = 1; i <= 11; ++i) {
        card.KIEROWCA = QStringLiteral("Kierowca %1").arg(i);
        card.REJ_POJAZD = QStringLiteral("EL %1").arg(1000 + i);
        ASSERT_TRUE(card.Insert());
    }
    db.exec(QStringLiteral("DELETE FROM KARTY_DR WHERE ID_KARTY_DR < 9"));
}

} // namespace

TEST(RoadCardItems, CardsAreSortedAsTextSoTenComesBeforeNine)
{
    TestDatabase db;
    addCardsNineToEleven(db);
    const std::vector<RoadCardItem> items = RoadCardItem::load(db.connection());
    ASSERT_EQ(items.size(), 3u);
    EXPECT_EQ(items[0].cardKey, 10);
    EXPECT_EQ(items[1].cardKey, 11);
    EXPECT_EQ(items[2].cardKey, 9);
    EXPECT_EQ(items[0].text, "10      Kierowca 10    EL 1010");
    EXPECT_EQ(items[2].text, "9      Kierowca 9    EL 1009");
    EXPECT_TRUE(RoadCardItem::of({}).empty());
}

TEST(OrderRoadCard, OnlyTheCardNumberOfTheOrderIsWritten)
{
    TestDatabase db;
    TZlecenia_przychObj order(db.connection());
    order.NUMER = 17;
    order.NR_KARTY = 3;
    order.POJAZD = QStringLiteral("EL 1");
    ASSERT_TRUE(order.Insert());
    const int key = order.GetMaxId();

    ASSERT_TRUE(OrderRoadCard::assign(db.connection(), key, 10));
    EXPECT_EQ(db.scalar(QStringLiteral("SELECT NR_KARTY || ' ' || NUMER || ' ' || POJAZD "
                                       "FROM ZLECENIA_PRZYCH")),
              "10 17 EL 1");
    EXPECT_FALSE(OrderRoadCard::assign(db.connection(), key + 1, 10));
    EXPECT_EQ(db.count(QStringLiteral("ZLECENIA_PRZYCH"), QStringLiteral("NR_KARTY = 10")), 1);
}
