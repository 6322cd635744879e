#include "TframeListView.h"
#include "ScriptedMessages.h"
#include "ScriptedModalRunner.h"
#include "SiblingFixture.h"
#include "TBitBtn.h"
#include "TListView.h"
#include "TMiastaObj.h"
#include "TMiejscaObj.h"
#include "TfrmAddEditMiejsca.h"
#include "TfrmAddEditMiejscowosci.h"
#include "TfrmMiejsca.h"
#include "TfrmMiejscowosci.h"

#include <QAction>

namespace {

class PlacesAndCities : public SiblingTest
{
protected:
    PlacesAndCities()
    {
        grant({QStringLiteral("TfrmMiejsca"), QStringLiteral("TfrmMiejscowosci")});
        db.exec(QStringLiteral("INSERT INTO KRAJE (SYMBOL, NAZWA) VALUES ('PL', 'Polska')"));
        poland = lastKey(QStringLiteral("KRAJE"), QStringLiteral("ID_KRAJU"));
        db.exec(QStringLiteral("INSERT INTO KRAJE (SYMBOL, NAZWA, KOD_POCZTOWY_MASKA) "
                               "VALUES ('DE', 'Niemcy', '99999')"));
        germany = lastKey(QStringLiteral("KRAJE"), QStringLiteral("ID_KRAJU"));
        lodz = addCity("Łódź", "90-001", poland);
        berlin = addCity("Berlin", "10115", germany);
    }

    int addCity(const char *name, const char *code, int country)
    {
        TMiastaObj city(db.connection());
        city.NAZWA = QString::fromUtf8(name);
        city.KOD = QString::fromUtf8(code);
        city.IDKRAJU = country;
        EXPECT_TRUE(city.Insert());
        return lastKey(QStringLiteral("MIASTA"), QStringLiteral("ID_MIASTA"));
    }

    int poland = 0, germany = 0, lodz = 0, berlin = 0;
};

} // namespace

TEST_F(PlacesAndCities, CitiesShowTheirCountryPolishCodesHaveTheirFormAndAUsedCityStays)
{
    auto form = TfrmRODefault::create<TfrmMiejscowosci>(nullptr, TfrmRegister::Browse, 0);
    const TListView &list = *form->frameListView1->lvMain;
    EXPECT_EQ(list.items().texts(list.findByKey(berlin)),
              (QStringList{"Berlin", "10115", "Niemcy"}));

    scriptedModalRunner().expect<TfrmAddEditMiejscowosci>([](TfrmAddEditMiejscowosci &editor) {
        // Poland has no mask of its own in this database: NN-NNN holds.
        EXPECT_EQ(shown(editor.field(QStringLiteral("cbKraj"))), "Polska");
        type(editor.field(QStringLiteral("edNazwa")), QStringLiteral("Kutno"));
        type(editor.field(QStringLiteral("edKod")), QStringLiteral("99300"));
        scriptedMessages().expect();
        click(editor.btnOk);
        type(editor.field(QStringLiteral("edKod")), QStringLiteral("99-300"));
        click(editor.btnOk);
        return editor.result();
    });
    form->acDodaj->trigger();
    EXPECT_EQ(scriptedMessages().shown().at(0).text,
              "Nieprawidłowy kod pocztowy: 99300.\nKod pocztowy (Polska) ma postać NN-NNN, "
              "gdzie N to cyfra.");
    EXPECT_EQ(list.caption(list.selectedIndex()), "Kutno");
    EXPECT_EQ(db.count(QStringLiteral("MIASTA")), 3);

    // A city of a route or a distance stays.
    db.exec(QStringLiteral("INSERT INTO ODLEGLOSCI (IDMIASTAOD, IDMIASTAVIA, IDMIASTADO, "
                           "ODLEGLOSC) VALUES (%1, 0, %2, 560)")
                .arg(lodz)
                .arg(berlin));
    db.exec(QStringLiteral("INSERT INTO ZLECENIA_PRZYCH (NUMER, IDMIASTO_VIA) VALUES (5, %1)")
                .arg(berlin));
    form->frameListView1->lvMain->selectByKey(berlin);
    scriptedMessages().clear();
    scriptedMessages().expect(MessageService::Yes);
    scriptedMessages().expect();
    form->acUsun->trigger();
    EXPECT_EQ(scriptedMessages().shown().at(1).text,
              "Nie można usunąć wybranej pozycji, ponieważ korzystają z niej: zlecenia "
              "przychodzące (1), odległości między miastami (1).\n"
              "Najpierw zmień lub usuń te zapisy. Nic nie zostało usunięte.");
    EXPECT_EQ(db.count(QStringLiteral("MIASTA")), 3);
}

TEST_F(PlacesAndCities, APlaceIsSavedWithTheCodeItsCountryExpects)
{
    auto form = TfrmRODefault::create<TfrmMiejsca>(nullptr, TfrmRegister::Browse, 0);
    scriptedModalRunner().expect<TfrmAddEditMiejsca>([&](TfrmAddEditMiejsca &editor) {
        type(editor.field(QStringLiteral("edNazwa")), QStringLiteral("Lager Spandau"));
        type(editor.field(QStringLiteral("edMiasto")), QStringLiteral("Berlin"));
        type(editor.field(QStringLiteral("edKod")), QStringLiteral("13-597"));
        Typing::activate(&editor);
        editor.field(QStringLiteral("cbKraj"))->setFocus();
        Typing::keys(QStringLiteral("Niemcy"));
        scriptedMessages().expect();
        click(editor.btnOk);
        type(editor.field(QStringLiteral("edKod")), QStringLiteral("13597"));
        click(editor.btnOk);
        return editor.result();
    });
    form->acDodaj->trigger();
    EXPECT_TRUE(scriptedMessages().shown().at(0).text.contains("(Niemcy) ma postać NNNNN"));
    const TMiejscaObj saved = TMiejscaObj(db.connection()).SelectById(form->selectedKey());
    EXPECT_EQ(saved.NAZWA, "Lager Spandau");
    EXPECT_EQ(saved.KOD, "13597");
    EXPECT_EQ(saved.ID_KRAJU, germany);
    EXPECT_EQ(form->frameListView1->lvMain->items().texts(0).at(4), "Niemcy");
}
