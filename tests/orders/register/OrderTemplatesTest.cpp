#include "OrderPlaces.h"
#include "OrderTemplates.h"
#include "RegisterExport.h"
#include "RegisterFixture.h"
#include "ScriptedMessages.h"
#include "TListViewModel.h"
#include "TMiejsca_zlecObj.h"

class OrderTemplatesTest : public RegisterFixture
{
protected:
    std::vector<TZlecenia_przychObj> templates()
    {
        return TZlecenia_przychObj(db.connection())
            .SelectClause(QStringLiteral("WHERE DATA IS NULL AND PALETYPLAN<>0 ORDER BY 1"));
    }
};

TEST_F(OrderTemplatesTest, AreInsertedOnceForTheChosenDay)
{
    const QDate day(2027, 2, 15);
    const std::vector<TZlecenia_przychObj> patterns = templates();
    ASSERT_EQ(patterns.size(), 3u);
    const int orders = orderCount();
    EXPECT_FALSE(OrderTemplates::ordersOnDay(db.connection(), day));

    EXPECT_EQ(OrderTemplates::insertForDay(db.connection(), transaction, day), 3);

    EXPECT_EQ(orderCount(), orders + 3);
    EXPECT_TRUE(templates().empty());
    EXPECT_TRUE(OrderTemplates::ordersOnDay(db.connection(), day));
    const std::vector<TZlecenia_przychObj> made = TZlecenia_przychObj(db.connection())
        .SelectClause(QStringLiteral("WHERE DATA = '2027-02-15' ORDER BY 1"));
    ASSERT_EQ(made.size(), 3u);
    for (std::size_t i = 0; i < made.size(); ++i) {
        const TZlecenia_przychObj &pattern = patterns[i];
        const TZlecenia_przychObj &order = made[i];
        EXPECT_EQ(order.IDKONTRAHENTA, pattern.IDKONTRAHENTA);
        EXPECT_EQ(order.IDPRZEWOZNIK, pattern.IDPRZEWOZNIK);
        EXPECT_EQ(order.KWOTA, pattern.KWOTA);
        EXPECT_EQ(order.KOSZTKWOTA, pattern.KOSZTKWOTA);
        EXPECT_EQ(order.PALETYILOSC, pattern.PALETYPLAN);
        EXPECT_EQ(order.PALETYPLAN, pattern.PALETYPLAN);
        EXPECT_EQ(order.NUMER, 0);
        EXPECT_EQ(order.IDFAKTURY, 0);
        if (!pattern.AWIZO.isNull()) {
            EXPECT_EQ(order.AWIZO.days(), pattern.AWIZO.days() + 1.0);
        }
        EXPECT_EQ(order.DATA_ROZLADUNKU.date(), QDate::currentDate());
        EXPECT_EQ(db.count(QStringLiteral("TOWARY"),
                           QStringLiteral("ID_ZLECENIA = %1").arg(order.ID_ZLECENIA_PRZYCH)),
                  db.count(QStringLiteral("TOWARY"),
                           QStringLiteral("ID_ZLECENIA = %1").arg(pattern.ID_ZLECENIA_PRZYCH)));
    }

    // The second run finds no template any more.
    EXPECT_EQ(OrderTemplates::insertForDay(db.connection(), transaction, day.addDays(1)), 0);
    EXPECT_EQ(orderCount(), orders + 3);
}

TEST_F(OrderTemplatesTest, AFailedTemplateLeavesTheTemplatesAsTheyWere)
{
    db.exec(QStringLiteral(
        "ALTER TABLE TOWARY ADD CONSTRAINT CK_TEST_TOWARY CHECK (ID_ZLECENIA <= "
        "(SELECT MAX(ID_ZLECENIA_PRZYCH) FROM ZLECENIA_PRZYCH WHERE DATA IS NULL))"));
    const int orders = orderCount();
    scriptedMessages().expect();   // the goods table's error
    EXPECT_EQ(OrderTemplates::insertForDay(db.connection(), transaction, QDate(2027, 2, 15)), 0);
    EXPECT_EQ(orderCount(), orders);
    EXPECT_EQ(templates().size(), 3u);
}

TEST_F(OrderTemplatesTest, APlaceMadeForAnOrderIsFoundAgainNotMadeTwice)
{
    const int key = addOrder();
    const int places = db.count(QStringLiteral("MIEJSCA_ZLEC"));
    const auto loading = [&] {
        return OrderPlaces::placeOf(db.connection(), key, OrderPlaces::Loading).ID_MIEJSCA_ZLEC;
    };
    const int made = loading();
    EXPECT_GT(made, 0);
    EXPECT_EQ(loading(), made);
    EXPECT_EQ(db.count(QStringLiteral("MIEJSCA_ZLEC")), places + 1);
}

TEST(RegisterExportHeader, IsCutAt255Characters)
{
    TListViewModel list;
    for (int column = 0; column < 20; ++column)
        list.addColumn(QString(30, QChar(u'A' + column)));
    list.addRow({QStringLiteral("a;b")});
    const QString header = RegisterExport::headerLine(list);
    EXPECT_EQ(header.size(), 255);
    EXPECT_TRUE(header.startsWith(QString(30, u'A') + u';' + QString(30, u'B') + u';'));
    // Missing sub-items export as empty fields; the row keeps its fifteen fields.
    EXPECT_EQ(RegisterExport::rowLine(list, 0).split(QStringLiteral("###")).size(), 15);
}
