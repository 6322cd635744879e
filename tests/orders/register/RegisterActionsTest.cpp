#include "OrderListColumns.h"
#include "RegisterFixture.h"
#include "ScriptedFilePrompts.h"
#include "ScriptedMessages.h"
#include "ScriptedModalRunner.h"
#include "TBitBtn.h"
#include "TMiejsca_zlecObj.h"
#include "TTowaryObj.h"
#include "TframeListView.h"
#include "TfrmAddEditZlecenia_Przych.h"
#include "TfrmAdvancedEdit.h"
#include "TfrmMiasta.h"
#include "Typing.h"

#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QTest>

namespace {

using Col = OrderListColumns::Column;

} // namespace

class RegisterActions : public RegisterFixture
{
protected:
    // The actions that need a selected row, and the buttons standing for them.
    static void expectRowActionsEnabled(const TfrmZlecPrzychodzace &form, bool enabled)
    {
        for (const QAction *action : {form.acPopraw, form.acDelete, form.acPowiel, form.acTowary,
                                      form.acMiejsceZaladunku, form.acMiejscaRozladunku})
            EXPECT_EQ(action->isEnabled(), enabled) << action->objectName().toStdString();
        for (const QPushButton *button :
             {form.frameListView1->BitBtn4, form.frameListView1->BitBtn6, form.btnPowiel,
              form.BitBtn12, form.BitBtn13, form.BitBtn4})
            EXPECT_EQ(button->isEnabled(), enabled) << button->objectName().toStdString();
    }

    void addGoods(int orderKey, const QString &name)
    {
        TTowaryObj goods(db.connection());
        goods.ID_ZLECENIA = orderKey;
        goods.NAZWA = name;
        goods.NUMER1 = QStringLiteral("N1");
        goods.NUMER2 = QStringLiteral("N2");
        goods.NUMER3 = QStringLiteral("N3");
        goods.ILOSC = 12.5;
        goods.ID_JEDNOSTKI_MIARY = 4;
        goods.ILOSC_DEKLAROWANA = 13.0;
        goods.METRY = 7.5;
        ASSERT_TRUE(goods.Insert());
    }
};

TEST_F(RegisterActions, WithoutASelectedRowTheRowActionsDoNothing)
{
    const auto form = openRegister();
    showActive(*form);
    TListView *list = form->frameListView1->lvMain;
    list->setSelectedIndex(-1);
    form->frameListView1->Refresh();
    list->setSelectedIndex(-1);
    QCoreApplication::sendPostedEvents();
    const int before = orderCount();

    expectRowActionsEnabled(*form, false);
    EXPECT_TRUE(form->acDodaj->isEnabled());
    EXPECT_TRUE(form->acWzor->isEnabled());
    for (QAction *action : {form->acPopraw, form->acDelete, form->acShowDelete, form->acPowiel,
                            form->Zamknij1, form->acAdvancedEdit, form->acUsunLadunek,
                            form->acTowary, form->acAddLadunki, form->acMiejsceZaladunku,
                            form->acMiejscaRozladunku})
        action->trigger();
    QTest::keyClick(list, Qt::Key_A, Qt::ControlModifier);
    Q_EMIT list->dblClick();

    EXPECT_TRUE(scriptedMessages().shown().empty());
    EXPECT_TRUE(scriptedModalRunner().ran().empty());
    EXPECT_EQ(orderCount(), before);
    EXPECT_EQ(list->itemCount(), listedCount());

    select(*form, list->key(0));
    expectRowActionsEnabled(*form, true);
    EXPECT_TRUE(form->acShowDelete->isEnabled());
}

TEST_F(RegisterActions, DeleteAsksThenRemovesTheRowWithoutReloading)
{
    const int key = addOrder();
    const auto form = openRegister();
    const int rows = form->frameListView1->lvMain->itemCount();
    const int addedMeanwhile = addOrder();
    select(*form, key);

    scriptedMessages().expect(MessageService::Yes);
    form->frameListView1->BitBtn6->click();

    ASSERT_EQ(scriptedMessages().shown().size(), 1u);
    EXPECT_EQ(scriptedMessages().shown()[0].caption, "Usuwanie");
    EXPECT_EQ(scriptedMessages().shown()[0].text, "Usunąć wybraną pozycję");
    EXPECT_EQ(scriptedMessages().shown()[0].icon, MessageService::Icon::Question);
    EXPECT_EQ(order(key).ID_ZLECENIA_PRZYCH, 0);
    EXPECT_FALSE(listed(*form, key));
    EXPECT_FALSE(listed(*form, addedMeanwhile));
    EXPECT_EQ(form->frameListView1->lvMain->itemCount(), rows - 1);
}

TEST_F(RegisterActions, DeleteOrCopyAnsweredNoChangesNothing)
{
    const int key = addOrder();
    const int orders = orderCount();
    const auto form = openRegister();
    select(*form, key);
    scriptedMessages().expect(MessageService::No);
    form->acShowDelete->trigger();
    EXPECT_EQ(order(key).ID_ZLECENIA_PRZYCH, key);
    EXPECT_TRUE(listed(*form, key));
    scriptedMessages().expect(MessageService::No);
    form->acPowiel->trigger();
    EXPECT_EQ(scriptedMessages().shown().size(), 2u);
    EXPECT_EQ(orderCount(), orders);
}

TEST_F(RegisterActions, AFailedDeleteIsSilentAndTheRowComesBackOnReload)
{
    const int key = addOrder();
    addGoods(key, QStringLiteral("Jabłka"));
    db.exec(QStringLiteral("ALTER TABLE TOWARY ADD CONSTRAINT FK_TEST_TOWARY "
                           "FOREIGN KEY (ID_ZLECENIA) REFERENCES ZLECENIA_PRZYCH"));
    const auto form = openRegister();
    showActive(*form);
    select(*form, key);

    scriptedMessages().expect(MessageService::Yes);
    QTest::keyClick(form->frameListView1->lvMain, Qt::Key_U,
                    Qt::ControlModifier | Qt::AltModifier);

    EXPECT_EQ(scriptedMessages().shown().size(), 1u);
    EXPECT_FALSE(listed(*form, key));
    EXPECT_EQ(order(key).ID_ZLECENIA_PRZYCH, key);
    form->frameListView1->Refresh();
    EXPECT_TRUE(listed(*form, key));
}

TEST_F(RegisterActions, ARefusedPrivilegeShowsTheMessageAndChangesNothing)
{
    const int key = addOrder();
    const int orders = orderCount();
    setUser(2);   // everything but deleting
    auto form = openRegister();
    select(*form, key);
    scriptedMessages().expect();
    form->acDelete->trigger();
    expectRefusals(1);
    EXPECT_EQ(orderCount(), orders);
    EXPECT_TRUE(listed(*form, key));

    scriptedMessages().clear();
    setUser(3);   // may only run the register
    form = openRegister();
    select(*form, key);
    scriptedMessages().expect();
    scriptedMessages().expect();
    form->acPowiel->trigger();
    form->Zamknij1->trigger();
    expectRefusals(2);
    EXPECT_EQ(orderCount(), orders);
    EXPECT_EQ(order(key).ZAMKNIETE, 0);
}

TEST_F(RegisterActions, CopyMakesOneOrderWithItsFirstPlacesAndSixGoodsColumns)
{
    const int source = addOrder([](TZlecenia_przychObj &o) {
        o.NUMER = 77;
        o.IDFAKTURY = 5;
        o.KOSZTRAZEM = 812.0;
        o.KWOTA = 1500.0;
        o.DATA = DateTime::fromDate(QDate::currentDate().addDays(-3));
        o.POJAZD = QStringLiteral("WA 1234");
    });
    addPlace(source, 1, QStringLiteral("Polna 1"));
    addPlace(source, 1, QStringLiteral("Leśna 2"));
    addPlace(source, 2, QStringLiteral("Morska 3"));
    addGoods(source, QStringLiteral("Jabłka"));
    addGoods(source, QStringLiteral("Gruszki"));
    const int orders = orderCount();
    const auto form = openRegister();
    select(*form, source);

    scriptedMessages().expect(MessageService::Yes);
    int edited = 0;
    scriptedModalRunner().expect<TfrmAddEditZlecenia_Przych>(
        [&](TfrmAddEditZlecenia_Przych &editor) {
            // The editor opens on the copy, which keeps its copy when cancelled.
            edited = editor.orderKey();
            EXPECT_EQ(editor.mode(), TfrmAddEditZlecenia_Przych::Edit);
            EXPECT_EQ(editor.order().NUMER, 0);
            editor.btnCancel->click();
            return editor.result();
        });
    form->btnPowiel->click();

    EXPECT_TRUE(scriptedModalRunner().allRun());
    ASSERT_EQ(scriptedMessages().shown().size(), 1u);
    EXPECT_EQ(scriptedMessages().shown()[0].caption, "Kopiowaie zlecenia");
    EXPECT_EQ(scriptedMessages().shown()[0].text, "Czy powielić wybraną pozycję?");
    ASSERT_EQ(orderCount(), orders + 1);
    const int copy
        = db.scalar(QStringLiteral("SELECT MAX(ID_ZLECENIA_PRZYCH) FROM ZLECENIA_PRZYCH")).toInt();
    EXPECT_EQ(edited, copy);
    const TZlecenia_przychObj copied = order(copy);
    EXPECT_EQ(copied.NUMER, 0);
    EXPECT_EQ(copied.IDFAKTURY, 0);
    EXPECT_EQ(copied.KOSZTRAZEM, 812.0);
    EXPECT_EQ(copied.DATA, order(source).DATA);
    EXPECT_EQ(copied.POJAZD, "WA 1234");

    const QString ofCopy = QStringLiteral("ID_ZLECENIA = %1").arg(copy);
    EXPECT_EQ(db.count(QStringLiteral("MIEJSCA_ZLEC"), ofCopy + " AND ID_ZRP = 1"), 1);
    EXPECT_EQ(db.scalar("SELECT ADRES1 FROM MIEJSCA_ZLEC WHERE ID_ZRP = 1 AND " + ofCopy),
              "Polna 1");
    EXPECT_EQ(db.scalar("SELECT ADRES1 FROM MIEJSCA_ZLEC WHERE ID_ZRP = 2 AND " + ofCopy),
              "Morska 3");
    EXPECT_EQ(db.count(QStringLiteral("TOWARY"), ofCopy), 2);
    const std::vector<TTowaryObj> goods = TTowaryObj(db.connection()).SelectClause(
        "WHERE " + ofCopy + " ORDER BY NAZWA");
    ASSERT_EQ(goods.size(), 2u);
    EXPECT_EQ(goods[0].NAZWA, "Gruszki");
    EXPECT_EQ(goods[1].NAZWA, "Jabłka");
    for (const TTowaryObj &item : goods) {
        EXPECT_EQ(item.NUMER1, "N1");
        EXPECT_EQ(item.NUMER2, "N2");
        EXPECT_EQ(item.ILOSC, 12.5);
        EXPECT_EQ(item.ID_JEDNOSTKI_MIARY, 4);
        EXPECT_EQ(item.ILOSC_DEKLAROWANA, 13.0);
        // Only those six columns travel with the copy.
        EXPECT_EQ(item.NUMER3, "");
        EXPECT_EQ(item.METRY, 0.0);
    }

    const TListView *list = form->frameListView1->lvMain;
    ASSERT_GE(list->selectedIndex(), 0);
    EXPECT_EQ(list->key(list->selectedIndex()), copy);
    EXPECT_EQ(cell(*form, copy, Col::Numer), "00000000");
}

TEST_F(RegisterActions, ACopyThatFailsHalfwayLeavesNothingBehind)
{
    const int source = addOrder();
    addPlace(source, 1, QStringLiteral("Polna 1"));
    addGoods(source, QStringLiteral("Jabłka"));
    db.exec(QStringLiteral(
                "ALTER TABLE TOWARY ADD CONSTRAINT CK_TEST_TOWARY CHECK (ID_ZLECENIA <= %1)")
                .arg(source));
    const int orders = orderCount();
    const int places = db.count(QStringLiteral("MIEJSCA_ZLEC"));
    const int goods = db.count(QStringLiteral("TOWARY"));
    const auto form = openRegister();
    select(*form, source);

    scriptedMessages().expect(MessageService::Yes);
    scriptedMessages().expect(MessageService::Ok);   // the goods table's error
    form->acPowiel->trigger();

    ASSERT_EQ(scriptedMessages().shown().size(), 2u);
    EXPECT_EQ(scriptedMessages().shown()[1].caption, "Błąd");
    EXPECT_EQ(orderCount(), orders);
    EXPECT_EQ(db.count(QStringLiteral("MIEJSCA_ZLEC")), places);
    EXPECT_EQ(db.count(QStringLiteral("TOWARY")), goods);
    EXPECT_FALSE(transaction.InTransaction());
}

TEST_F(RegisterActions, CloseAndReopenTogglesTheOrderAndItsImage)
{
    const int key = addOrder();
    const auto form = openRegister();
    TListView *list = form->frameListView1->lvMain;
    select(*form, key);

    form->Zamknij1->trigger();
    EXPECT_EQ(order(key).ZAMKNIETE, 1);
    EXPECT_EQ(list->image(list->findByKey(key)), TfrmZlecPrzychodzace::ClosedOrderImage);

    select(*form, key);
    form->Zamknij1->trigger();
    EXPECT_EQ(order(key).ZAMKNIETE, 0);
    EXPECT_EQ(list->image(list->findByKey(key)), -1);
    EXPECT_TRUE(scriptedMessages().shown().empty());
}

TEST_F(RegisterActions, CtrlAOpensTheAdvancedEditAndReselectsTheOrder)
{
    const int key = addOrder();
    const auto form = openRegister();
    showActive(*form);
    select(*form, key);
    scriptedModalRunner().expect<TfrmAdvancedEdit>([&](TfrmAdvancedEdit &edit) {
        EXPECT_EQ(edit.orderKey(), key);
        Typing::activate(&edit);
        choose(edit.cbWypisal, 2);
        Typing::accelerator(Qt::Key_Z);
        return edit.result();
    });
    QTest::keyClick(form->frameListView1->lvMain, Qt::Key_A, Qt::ControlModifier);

    EXPECT_TRUE(scriptedModalRunner().allRun());
    EXPECT_EQ(order(key).IDUSER, 2);
    EXPECT_EQ(cell(*form, key, Col::Operator),
              db.scalar(QStringLiteral("SELECT LOGIN FROM USERS WHERE ID_USER = 2")));
    const TListView *list = form->frameListView1->lvMain;
    EXPECT_EQ(list->key(list->selectedIndex()), key);
}

TEST_F(RegisterActions, KilometryOpensTheDistanceRegisterWithoutASelection)
{
    const auto form = openRegister();
    form->frameListView1->lvMain->setSelectedIndex(-1);
    QString firstCity;
    scriptedModalRunner().expect<TfrmMiasta>([&](TfrmMiasta &distances) {
        EXPECT_EQ(distances.parentWidget(), form.get());
        firstCity = distances.CBMiasta->itemText(1);
        return 2;
    });
    form->BitBtn6->click();
    EXPECT_TRUE(scriptedModalRunner().allRun());
    EXPECT_FALSE(firstCity.isEmpty());
    EXPECT_TRUE(scriptedMessages().shown().empty());
}

TEST_F(RegisterActions, DetachingFromACollectiveOrderClearsItsKey)
{
    const int key = addOrder([](TZlecenia_przychObj &o) { o.IDZLECENIAZBIOR = 5; });
    const auto form = openRegister();
    select(*form, key);
    form->acUsunLadunek->trigger();
    EXPECT_EQ(order(key).IDZLECENIAZBIOR, 0);
    EXPECT_TRUE(listed(*form, key));
}

TEST_F(RegisterActions, ExportWritesTheHeaderWithSemicolonsAndLinesWithHashes)
{
    const auto form = openRegister();
    const QString path = db.directory() + QStringLiteral("/zlecenia.csv");
    scriptedFilePrompts().answer(path);
    form->btnCenniki->click();

    ASSERT_EQ(scriptedFilePrompts().asked().size(), 1u);
    EXPECT_TRUE(scriptedFilePrompts().asked()[0].fileName.endsWith("Zleceniakraj.csv"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QStringLiteral("\r\n"),
                                                                       Qt::SkipEmptyParts);
    const TListView *list = form->frameListView1->lvMain;
    ASSERT_EQ(lines.size(), list->itemCount() + 1);
    EXPECT_EQ(lines[0], "Numer;Zleceniodawca;Przewoźnik;Kierowca;ZlecObce;Data załad;Trasa;"
                        "Faktura;Nr.karty;Nr.listu;Nr.rej;Fakt.Przew;Koszt;Przychod;Różnica;");
    for (int row = 0; row < list->itemCount(); ++row) {
        const QString &line = lines[row + 1];
        EXPECT_FALSE(line.contains(u';')) << line.toStdString();
        const QStringList fields = line.split(QStringLiteral("###"));
        ASSERT_EQ(fields.size(), 15);
        EXPECT_EQ(fields[0], list->caption(row));
        EXPECT_EQ(fields[14], list->text(row, Col::Roznica));
    }
    EXPECT_TRUE(scriptedMessages().shown().empty());
}

TEST_F(RegisterActions, ACancelledExportWritesNothingAndAnUnwritablePlaceIsNamed)
{
    const auto form = openRegister();
    scriptedFilePrompts().answer(QString());
    form->btnCenniki->click();
    EXPECT_TRUE(QDir(db.directory()).entryList({QStringLiteral("*.csv")}).isEmpty());
    EXPECT_TRUE(scriptedMessages().shown().empty());

    const QString path = db.directory() + QStringLiteral("/brak/zlecenia.csv");
    scriptedFilePrompts().answer(path);
    scriptedMessages().expect();
    form->btnCenniki->click();
    ASSERT_EQ(scriptedMessages().shown().size(), 1u);
    EXPECT_EQ(scriptedMessages().shown()[0].text, "Błąd otwarcia pliku (" + path + ")");
}
