#include "RegisterFixture.h"

#include "DemoSeeder.h"
#include "TMiejsca_zlecObj.h"
#include "TframeListView.h"

#include <gtest/gtest.h>

void RegisterFixture::SetUp()
{
    DemoSeeder::Options options;
    options.orders = DemoOrders;
    DemoSeeder(db.connection(), options).seed();
}

std::unique_ptr<TfrmZlecPrzychodzace> RegisterFixture::openRegister()
{
    return TfrmRODefault::create<TfrmZlecPrzychodzace>();
}

int RegisterFixture::addOrder(const std::function<void(TZlecenia_przychObj &)> &change)
{
    TZlecenia_przychObj order(db.connection());
    order.DATA = DateTime::today();
    order.NUMER = 9001;
    order.IDKONTRAHENTA = 2;
    order.IDPRZEWOZNIK = 1;
    order.IDUSER = 1;
    if (change)
        change(order);
    EXPECT_TRUE(order.Insert());
    return order.ID_ZLECENIA_PRZYCH;
}

int RegisterFixture::addPlace(int orderKey, int type, const QString &street)
{
    TMiejsca_zlecObj place(db.connection());
    place.ID_ZLECENIA = orderKey;
    place.ID_ZRP = type;
    place.ADRES1 = street;
    EXPECT_TRUE(place.Insert());
    return place.ID_MIEJSCA_ZLEC;
}

TZlecenia_przychObj RegisterFixture::order(int key)
{
    return TZlecenia_przychObj(db.connection()).SelectById(key);
}

int RegisterFixture::orderCount()
{
    return db.count(QStringLiteral("ZLECENIA_PRZYCH"));
}

int RegisterFixture::listedCount(const QString &condition)
{
    const QDate today = QDate::currentDate();
    return db.count(QStringLiteral("ZLECENIA_PRZYCH"),
                    QStringLiteral("(DATA BETWEEN '%1' AND '%2' OR DATA IS NULL) AND (%3)")
                        .arg(today.addMonths(-1).toString(Qt::ISODate),
                             today.addMonths(1).toString(Qt::ISODate), condition));
}

QString RegisterFixture::cell(const TfrmZlecPrzychodzace &form, int orderKey, int column)
{
    const TListView *list = form.frameListView1->lvMain;
    const int row = list->findByKey(orderKey);
    EXPECT_GE(row, 0) << "order " << orderKey << " is not listed";
    return row < 0 ? QString() : list->text(row, column);
}

bool RegisterFixture::listed(const TfrmZlecPrzychodzace &form, int orderKey)
{
    return form.frameListView1->lvMain->findByKey(orderKey) >= 0;
}

void RegisterFixture::select(TfrmZlecPrzychodzace &form, int orderKey)
{
    ASSERT_TRUE(form.frameListView1->lvMain->selectByKey(orderKey));
}
