#include "Format.h"
#include "OrderListColumns.h"
#include "RegisterFixture.h"
#include "TDateEdit.h"
#include "TImageList.h"
#include "TRadioGroup.h"
#include "TframeListView.h"
#include "Typing.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace {

using Col = OrderListColumns::Column;

QString amount(const char *text)
{
    return QString::fromUtf8(text).replace(u' ', Format::ThousandSeparator);
}

} // namespace

class RegisterList : public RegisterFixture
{
};

TEST_F(RegisterList, ClosedOrdersCarryTheClosedImage)
{
    const int closed = addOrder([](TZlecenia_przychObj &o) { o.ZAMKNIETE = 1; });
    const int open = addOrder();
    const auto form = openRegister();
    const TListView *list = form->frameListView1->lvMain;
    EXPECT_EQ(list->image(list->findByKey(closed)), TfrmZlecPrzychodzace::ClosedOrderImage);
    EXPECT_EQ(list->image(list->findByKey(open)), -1);
    EXPECT_FALSE(form->frameListView1->lvImages->icon(16).isNull());
    // The padlock sits beside the number, which keeps its 60 pixels.
    EXPECT_GT(list->rowImageRoom(), 0);
    EXPECT_EQ(list->columnWidth(Col::Numer), 60);
}

TEST_F(RegisterList, AtItsMinimumWidthTheSearchBoxStaysUsableAndEveryButtonReadable)
{
    const auto form = openRegister();
    form->resize(form->minimumWidth(), form->height());
    form->show();
    QApplication::processEvents();
    const TframeListView &frame = *form->frameListView1;
    const QLineEdit &box = *frame.edSearch;
    const QString name = QStringLiteral("Mleczarnia Wąchock");
    EXPECT_GE(box.width(), box.fontMetrics().horizontalAdvance(name));

    const QWidget &row = *frame.pnlSearch->topRow();
    int left = box.geometry().right();
    for (const QPushButton *button : row.findChildren<QPushButton *>()) {
        if (!button->isVisible())
            continue;
        const QString caption = button->text().remove(u'&');
        EXPECT_GE(button->width(), button->fontMetrics().horizontalAdvance(caption))
            << caption.toStdString();
        EXPECT_GT(button->x(), left) << caption.toStdString();
        left = button->geometry().right();
    }
    EXPECT_LE(left, row.width());
}

TEST_F(RegisterList, TheTotalAddsTheRevenueOfTheListedRows)
{
    db.exec(QStringLiteral("DELETE FROM ZLECENIA_PRZYCH"));
    addOrder([](TZlecenia_przychObj &o) { o.KWOTA = 1000.0; });
    addOrder([](TZlecenia_przychObj &o) { o.KWOTA = 234.4; });
    addOrder([](TZlecenia_przychObj &o) {
        o.KWOTA = 0.0;
        o.KM_LADOWNE = 10;
        o.STAWKA_KMLAD = 1.5;
    });
    addOrder([](TZlecenia_przychObj &o) {
        o.DATA = DateTime::fromDate(QDate(2001, 1, 1));
        o.KWOTA = 5000.0;
    });
    const auto form = openRegister();
    EXPECT_EQ(form->lblKwota->text(), amount("1 249,00"));
}

TEST_F(RegisterList, AFilterChangeWaitsForARefresh)
{
    const int own = addOrder([](TZlecenia_przychObj &o) { o.IDPRZEWOZNIK = 1; });
    const int forwarded = addOrder([](TZlecenia_przychObj &o) { o.IDPRZEWOZNIK = 3; });
    const auto form = openRegister();
    const int all = form->frameListView1->lvMain->itemCount();
    showActive(*form);

    Typing::click(form->RadioGroup1->button(OrderListFilter::Forwarded));
    EXPECT_EQ(form->RadioGroup1->itemIndex(), OrderListFilter::Forwarded);
    EXPECT_EQ(form->frameListView1->lvMain->itemCount(), all);
    form->frameListView1->Refresh();
    EXPECT_TRUE(listed(*form, forwarded));
    EXPECT_FALSE(listed(*form, own));
    EXPECT_EQ(form->frameListView1->lvMain->itemCount(),
              listedCount(QStringLiteral("IDPRZEWOZNIK <> 1")));

    Typing::click(form->RadioGroup1->button(OrderListFilter::OwnHaulage));
    form->frameListView1->Refresh();
    EXPECT_TRUE(listed(*form, own));
    EXPECT_FALSE(listed(*form, forwarded));
}

TEST_F(RegisterList, HiddenLocationAndPartnerFiltersNarrowTheList)
{
    db.exec(QStringLiteral("DELETE FROM FILTRY_PRZYCH"));
    db.exec(QStringLiteral("INSERT INTO FILTRY_PRZYCH (ID_FILTRY_PRZYCH, NR_FILTRA, OPIS) "
                           "VALUES (1, 1, 'Nowak')"));
    db.exec(QStringLiteral("INSERT INTO FILTRY_PRZYCH (ID_FILTRY_PRZYCH, NR_FILTRA, OPIS) "
                           "VALUES (2, 1, 'Zięba')"));
    db.exec(QStringLiteral("INSERT INTO FILTRY_PRZYCH (ID_FILTRY_PRZYCH, NR_FILTRA, OPIS) "
                           "VALUES (3, 2, 'inny')"));
    const int branch = addOrder([](TZlecenia_przychObj &o) {
        o.FILTR2 = 1;
        o.FILTR1 = 2;
    });
    const int elsewhere = addOrder([](TZlecenia_przychObj &o) { o.FILTR1 = 1; });
    const auto form = openRegister();
    EXPECT_FALSE(form->RadioGroup2->isVisibleTo(form.get()));
    EXPECT_FALSE(form->cbWspolnik->isVisibleTo(form.get()));
    ASSERT_EQ(form->cbWspolnik->count(), 3);
    EXPECT_EQ(form->cbWspolnik->itemText(0), "---");
    EXPECT_EQ(form->cbWspolnik->itemText(2), "Zięba");
    EXPECT_EQ(form->cbWspolnik->itemData(2).toInt(), 2);
    EXPECT_EQ(form->cbWspolnik->currentIndex(), 0);
    EXPECT_EQ(cell(*form, branch, Col::Filtr), "Zięba");

    form->RadioGroup2->setItemIndex(OrderListFilter::BranchOnly);
    form->frameListView1->Refresh();
    EXPECT_TRUE(listed(*form, branch));
    EXPECT_FALSE(listed(*form, elsewhere));

    form->RadioGroup2->setItemIndex(OrderListFilter::OutsideBranch);
    form->cbWspolnik->setCurrentIndex(1);
    form->frameListView1->Refresh();
    EXPECT_EQ(form->frameListView1->lvMain->itemCount(),
              listedCount(QStringLiteral("FILTR2 <> 1 AND FILTR1 = 1")));
    EXPECT_TRUE(listed(*form, elsewhere));
    EXPECT_FALSE(listed(*form, branch));
}

TEST_F(RegisterList, TheDateRangeIsAMonthEitherSideOfTodayAndUndatedOrdersAreAlwaysListed)
{
    const QDate today = QDate::currentDate();
    const int inside = addOrder([&](TZlecenia_przychObj &o) {
        o.DATA = DateTime::fromDate(today.addMonths(-1));
    });
    const int outside = addOrder([&](TZlecenia_przychObj &o) {
        o.DATA = DateTime::fromDate(today.addMonths(1).addDays(1));
    });
    const auto form = openRegister();
    EXPECT_EQ(form->deOd->date(), today.addMonths(-1));
    EXPECT_EQ(form->deDo->date(), today.addMonths(1));
    EXPECT_TRUE(listed(*form, inside));
    EXPECT_FALSE(listed(*form, outside));

    const int undated = addOrder([](TZlecenia_przychObj &o) { o.DATA = DateTime(); });
    showActive(*form);
    Typing::into(form->deOd, QStringLiteral("2001-01-01"));
    Typing::into(form->deDo, QStringLiteral("2001-01-31"));
    form->frameListView1->Refresh();
    EXPECT_FALSE(listed(*form, inside));
    EXPECT_EQ(cell(*form, undated, Col::DataZaladunku), "");
    EXPECT_EQ(form->frameListView1->lvMain->itemCount(),
              db.count(QStringLiteral("ZLECENIA_PRZYCH"), QStringLiteral("DATA IS NULL")));
}
