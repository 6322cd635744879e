#include "Distances.h"
#include "TestData.h"
#include "TestDatabase.h"

#include <gtest/gtest.h>

namespace {

using namespace TestData;

class DistancesTest : public testing::Test
{
protected:
    void SetUp() override
    {
        Connection &c = db.connection();
        lodz = addCity(c, {.name = QStringLiteral("Łódź")});
        warszawa = addCity(c, {.name = QStringLiteral("Warszawa")});
        krakow = addCity(c, {.name = QStringLiteral("Kraków")});
        addRoute(c, {.from = lodz, .to = warszawa, .kilometres = 135});
        addRoute(c, {.from = lodz, .via = krakow, .to = warszawa, .kilometres = 560});
    }

    TestDatabase db;
    int lodz = 0, warszawa = 0, krakow = 0;
};

} // namespace

TEST_F(DistancesTest, ARouteIsFoundBothWaysWithTheSameViaCityOnly)
{
    EXPECT_EQ(Distances::lookup(db.connection(), lodz, 0, warszawa), 135);
    EXPECT_EQ(Distances::lookup(db.connection(), warszawa, 0, lodz), 135);
    EXPECT_EQ(Distances::lookup(db.connection(), warszawa, krakow, lodz), 560);
    EXPECT_EQ(Distances::lookup(db.connection(), lodz, warszawa, krakow), std::nullopt);
    EXPECT_EQ(Distances::lookup(db.connection(), krakow, 0, lodz), std::nullopt);
}

TEST_F(DistancesTest, RememberStoresTheRouteAsGiven)
{
    Distances::remember(db.connection(), krakow, 0, lodz, 270);
    EXPECT_EQ(db.count(QStringLiteral("ODLEGLOSCI"),
                       QStringLiteral("IDMIASTAOD = %1 AND IDMIASTAVIA = 0 AND IDMIASTADO = %2 "
                                      "AND ODLEGLOSC = 270")
                           .arg(krakow)
                           .arg(lodz)),
              1);
    EXPECT_EQ(Distances::lookup(db.connection(), lodz, 0, krakow), 270);
}

TEST_F(DistancesTest, LearnStoresOnlyNewRoutesWithADistance)
{
    EXPECT_FALSE(Distances::learn(db.connection(), warszawa, 0, lodz, 140));   // known reversed
    EXPECT_FALSE(Distances::learn(db.connection(), krakow, 0, lodz, 0));       // no distance
    EXPECT_TRUE(Distances::learn(db.connection(), krakow, 0, lodz, 270));
    EXPECT_FALSE(Distances::learn(db.connection(), lodz, 0, krakow, 275));
    EXPECT_EQ(db.count(QStringLiteral("ODLEGLOSCI")), 3);
    EXPECT_EQ(Distances::lookup(db.connection(), warszawa, 0, lodz), 135);
}
