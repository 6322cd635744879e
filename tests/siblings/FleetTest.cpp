#include "TframeListView.h"
#include "ScriptedMessages.h"
#include "ScriptedModalRunner.h"
#include "SiblingFixture.h"
#include "TBitBtn.h"
#include "TListView.h"
#include "TNaczepyObj.h"
#include "TPojazdyObj.h"
#include "TfrmAddEditPojazdy.h"
#include "TfrmNaczepy.h"
#include "TfrmPojazdy.h"
#include "Vehicles.h"

#include <QAction>
#include <QComboBox>
#include <QTest>

namespace {

class Fleet : public SiblingTest
{
protected:
    Fleet()
    {
        grant({QStringLiteral("TfrmPojazdy"), QStringLiteral("TfrmNaczepy")});
        db.exec(QStringLiteral("INSERT INTO KIEROWCY (IMIE, NAZWISKO) VALUES ('Marek', 'Wójcik')"));
        driver = lastKey(QStringLiteral("KIEROWCY"), QStringLiteral("ID_KIEROWCA"));
        db.exec(QStringLiteral("INSERT INTO NACZEPY (NR_REJ, TYP, LADOWNOSC, MASA) "
                               "VALUES ('EL 7N21', 'Chłodnia', 33, 7200)"));
        trailer = lastKey(QStringLiteral("NACZEPY"), QStringLiteral("ID_NACZEPY"));
        db.exec(QStringLiteral("INSERT INTO POJAZDY (NR_REJ, TYP, LADOWNOSC, DEF_KIEROWCA, "
                               "DEF_NACZEPA, NORMA_PALIWA) "
                               "VALUES ('EL 4521K', 'Ciągnik siodłowy', 24000, %1, %2, 29.5)")
                    .arg(driver)
                    .arg(trailer));
        vehicle = lastKey(QStringLiteral("POJAZDY"), QStringLiteral("ID_POJAZDU"));
    }

    int driver = 0, trailer = 0, vehicle = 0;
};

} // namespace

TEST_F(Fleet, VehiclesShowTheirDefaultTrailerAndDriverByNameAndThatTrailerStays)
{
    auto form = TfrmRODefault::create<TfrmPojazdy>(nullptr, TfrmRegister::Browse, 0);
    const TListView &list = *form->frameListView1->lvMain;
    ASSERT_EQ(list.itemCount(), 1);
    EXPECT_EQ(list.items().texts(0), (QStringList{"EL 4521K", "Ciągnik siodłowy", "24000", "",
                                                  "EL 7N21", "Marek Wójcik", "", "29,5"}));
    auto trailers = TfrmRODefault::create<TfrmNaczepy>(nullptr, TfrmRegister::Browse, 0);
    EXPECT_EQ(trailers->frameListView1->lvMain->items().texts(0).mid(0, 4),
              (QStringList{"EL 7N21", "Chłodnia", "33", "7200"}));

    // A trailer of a vehicle is not deleted.
    trailers->frameListView1->lvMain->selectByKey(trailer);
    scriptedMessages().expect(MessageService::Yes);
    scriptedMessages().expect();
    trailers->acUsun->trigger();
    EXPECT_TRUE(scriptedMessages().shown().at(1).text.contains(
        "pojazdy (jako naczepa domyślna) (1)"));
    EXPECT_EQ(db.count(QStringLiteral("NACZEPY")), 1);
}

TEST_F(Fleet, ARegistrationBelongsToOneVehicleWhateverTheLetterCase)
{
    Connection &c = db.connection();
    TPojazdyObj other(c);
    other.NR_REJ = QStringLiteral(" el 4521k");
    ASSERT_TRUE(Vehicles::check(other, c));
    EXPECT_EQ(Vehicles::check(other, c)->field, "edNrRej");
    other.NR_REJ = QStringLiteral("EL 4522K");
    EXPECT_FALSE(Vehicles::check(other, c));
    other.ROK_PROD = 1890;
    EXPECT_EQ(Vehicles::check(other, c)->field, "seRokProd");
    other.ROK_PROD = 2019;
    other.DEF_KIEROWCA = other.DEF_ZMIENNIK = driver;
    EXPECT_EQ(Vehicles::check(other, c)->field, "cbDefZmiennik");
}

TEST_F(Fleet, AVehicleTypedInIsSavedWithItsCrewInCapitals)
{
    auto form = TfrmRODefault::create<TfrmPojazdy>(nullptr, TfrmRegister::Browse, 0);
    scriptedModalRunner().expect<TfrmAddEditPojazdy>([&](TfrmAddEditPojazdy &editor) {
        type(editor.field(QStringLiteral("edNrRej")), QStringLiteral("el 4521k"));
        type(editor.field(QStringLiteral("seLadownosc")), QStringLiteral("12000"));
        auto *crew = static_cast<QComboBox *>(editor.field(QStringLiteral("cbDefKierowca")));
        crew->setFocus();
        QTest::keyClick(crew, Qt::Key_Down);
        scriptedMessages().expect();
        click(editor.btnOk);   // the registration is taken
        type(editor.field(QStringLiteral("edNrRej")), QStringLiteral("el 9001p"));
        click(editor.btnOk);
        return editor.result();
    });
    form->acDodaj->trigger();
    EXPECT_EQ(scriptedMessages().shown().size(), 1u);
    const TPojazdyObj saved = TPojazdyObj(db.connection()).SelectById(form->selectedKey());
    EXPECT_EQ(saved.NR_REJ, "EL 9001P");
    EXPECT_EQ(saved.LADOWNOSC, 12000);
    EXPECT_EQ(saved.DEF_KIEROWCA, driver);
    EXPECT_EQ(form->frameListView1->lvMain->itemCount(), 2);
}
