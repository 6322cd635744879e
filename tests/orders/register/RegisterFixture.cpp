#include "RegisterFixture.h"

#include "DemoSeeder.h"
#include "ScriptedMessages.h"
#include "TFakturyObj.h"
#include "TFaktury_pozycjeObj.h"
#include "TMiejsca_zlecObj.h"
#include "TframeListView.h"
#include "Typing.h"

#include <QApplication>

#include <QTest>

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

void RegisterFixture::choose(QComboBox *combo, int key)
{
    const int index = combo->findData(key);
    ASSERT_GE(index, 0) << "no item with key " << key;
    combo->setFocus();
    ASSERT_EQ(QApplication::focusWidget(), combo);
    Typing::keys(combo->itemText(index).section(u' ', 0, 0));
    ASSERT_EQ(combo->currentIndex(), index) << combo->itemText(index).toStdString();
}

void RegisterFixture::select(TfrmZlecPrzychodzace &form, int orderKey)
{
    ASSERT_TRUE(form.frameListView1->lvMain->selectByKey(orderKey));
}

void RegisterFixture::showActive(QWidget &form)
{
    form.show();
    form.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    form.findChild<TframeListView *>()->lvMain->setFocus();
}

void RegisterFixture::expectRefusals(std::size_t count)
{
    ASSERT_EQ(scriptedMessages().shown().size(), count);
    for (const ScriptedMessages::Shown &box : scriptedMessages().shown()) {
        EXPECT_EQ(box.caption, "Uprawnienia");
        EXPECT_EQ(box.text,
                  "Uprawnienia do tej operacji nie zostały nadane przez administratora.");
        EXPECT_EQ(box.icon, MessageService::Icon::Warning);
    }
}

int RegisterFixture::invoiceOf(const std::vector<int> &orderKeys)
{
    TFakturyObj invoice(db.connection());
    invoice.NUMER_PELNY = QStringLiteral("501/07/2026");
    invoice.ID_RODZAJ_DOK = 1;
    invoice.ID_KONTRAHENTA = 2;
    invoice.ID_RODZ_PLATNOSCI = 2;
    invoice.KONTO_BANKOWE = 1;
    invoice.ID_WYSTAWIL = 1;
    invoice.DATA_WYSTAWIENIA = DateTime::today();
    EXPECT_TRUE(invoice.Insert());
    TFaktury_pozycjeObj position(db.connection());
    position.ID_FAKTURY = invoice.ID_FAKTURY;
    position.TRESC = QStringLiteral("Przewóz towaru wg załącznika");
    position.ILOSC = 1;
    position.CENA_NETTO = 2000;
    position.ID_VAT = 1;
    EXPECT_TRUE(position.Insert());
    for (int orderKey : orderKeys)
        db.exec(QStringLiteral("UPDATE ZLECENIA_PRZYCH SET IDFAKTURY=%1 "
                               "WHERE ID_ZLECENIA_PRZYCH=%2")
                    .arg(invoice.ID_FAKTURY)
                    .arg(orderKey));
    return invoice.ID_FAKTURY;
}
