// The invoicing form's way to the collective order of the selected order,
// and who may remove the last invoice there.
#include "CollectiveFixture.h"
#include "ScriptedMessages.h"
#include "ScriptedModalRunner.h"
#include "TLimitedSpinEdit.h"
#include "TfrmAddEditZleceniaZbiorcze.h"
#include "TfrmListaPrzesylekNaSamochod.h"
#include "TfrmWybierzZlecenia.h"
#include "TframeListView.h"
#include "Typing.h"

#include <QLineEdit>
#include <QTest>

namespace {

class CollectiveFromInvoicing : public CollectiveFixture
{
protected:
    static constexpr int Dispatcher = 2;

    std::unique_ptr<TfrmWybierzZlecenia> openSelection(int orderKey)
    {
        auto form = TfrmRODefault::create<TfrmWybierzZlecenia>(nullptr, 0, orderKey);
        Typing::activate(form.get());
        return form;
    }

    void grantEdit(int userId, bool edit)
    {
        db.exec(QStringLiteral("INSERT INTO FORMS (NAZWA) VALUES ('TfrmWybierzZlecenia')"));
        db.exec(QStringLiteral("INSERT INTO USER_ACCESS (ID_USER, ID_FORMATKI, PRIVIL_RUN, "
                               "PRIVIL_ADD, PRIVIL_EDIT, PRIVIL_DELETE) SELECT %1, "
                               "MAX(ID_FORMATKI), 1, 0, %2, 0 FROM FORMS")
                    .arg(userId)
                    .arg(int(edit)));
    }

    static void expectOne(const QString &caption, const QString &text)
    {
        ASSERT_EQ(scriptedMessages().shown().size(), 1u);
        EXPECT_EQ(scriptedMessages().shown()[0].caption, caption);
        EXPECT_EQ(scriptedMessages().shown()[0].text, text);
        scriptedMessages().clear();
    }
};

} // namespace

TEST_F(CollectiveFromInvoicing, CorrectingTheCollectiveOrderNeedsTheEditPrivilege)
{
    const int key = addCollective();
    const int orderKey = addOrder([&](TZlecenia_przychObj &o) { o.IDZLECENIAZBIOR = key; });
    setUser(Dispatcher);
    grantEdit(Dispatcher, false);
    const auto form = openSelection(orderKey);
    ASSERT_EQ(form->frameListView1->lvMain->selectedIndex(), 0);

    scriptedMessages().expect();
    Typing::click(form->frameListView1->BitBtn4);
    expectOne(QStringLiteral("Uprawnienia"),
              QStringLiteral("Uprawnienia do tej operacji nie zostały nadane przez "
                             "administratora."));
    EXPECT_TRUE(scriptedModalRunner().ran().empty());

    db.exec(QStringLiteral("UPDATE USER_ACCESS SET PRIVIL_EDIT = 1"));
    scriptedModalRunner().expect<TfrmAddEditZleceniaZbiorcze>(
        [&](TfrmAddEditZleceniaZbiorcze &editor) {
            EXPECT_EQ(editor.key(), key);
            EXPECT_EQ(editor.windowTitle(), "Edycja danych");
            Typing::activate(&editor);
            Typing::into(editor.seNumerJazdy, QStringLiteral("5"));
            Typing::accelerator(Qt::Key_Z);
            return editor.result();
        });
    // A double click on the order does the same as "&Popraw".
    TListView &list = *form->frameListView1->lvMain;
    const QRect row = list.visualRect(list.model()->index(0, 1));
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, row.center());
    EXPECT_TRUE(scriptedModalRunner().allRun());
    EXPECT_EQ(collective(key).NRJAZDY, 5);
    EXPECT_EQ(list.selectedIndex(), 0);
}

TEST_F(CollectiveFromInvoicing, LoadsShowTheVehicleOfTheSelectedOrdersCollectiveOrder)
{
    const int key = addCollective();
    const int onVehicle = addOrder([&](TZlecenia_przychObj &o) { o.IDZLECENIAZBIOR = key; });
    const int alone = addOrder([](TZlecenia_przychObj &o) { o.NUMER = 2; });
    grantEdit(1, true);
    auto form = openSelection(onVehicle);
    scriptedModalRunner().expect<TfrmListaPrzesylekNaSamochod>(
        [](TfrmListaPrzesylekNaSamochod &list) {
            EXPECT_EQ(list.edPojazd->text(), "EL 1000");
            EXPECT_EQ(list.frameListView1->lvMain->itemCount(), 1);
            return int(TfrmRODefault::mrCancel);
        });
    Typing::click(form->btnLadunki);
    EXPECT_TRUE(scriptedModalRunner().allRun());

    // An order that travels alone has no collective order to show.
    form = openSelection(alone);
    for (QWidget *button : {static_cast<QWidget *>(form->btnLadunki),
                            static_cast<QWidget *>(form->frameListView1->BitBtn4)}) {
        scriptedMessages().expect();
        Typing::click(button);
        expectOne(QStringLiteral("Uwaga"),
                  QStringLiteral("Zlecenie nie należy do żadnego zlecenia zbiorczego."));
    }
    EXPECT_TRUE(scriptedModalRunner().ran().size() == 1u);
}

TEST_F(CollectiveFromInvoicing, OnlyUserOneRemovesTheLastInvoice)
{
    addOrder();
    setUser(Dispatcher);
    const auto form = openSelection(0);
    scriptedMessages().expect();
    Typing::click(form->btnUsun);
    expectOne(QString(), QStringLiteral("Brak uprawnień do usuwania "));
    EXPECT_EQ(form->lastInvoice(), 0);
}
