#include "OrdersFixture.h"

#include "ScriptedMessages.h"
#include "ScriptedModalRunner.h"
#include "TBitBtn.h"
#include "TZlecenia_przychObj.h"
#include "TfrmAdresy.h"
#include "Typing.h"

#include <QLabel>
#include <QLineEdit>

namespace {

class Places : public OrdersFixture
{
protected:
    void SetUp() override
    {
        client = TestData::addContractor(db.connection(), QStringLiteral("Agromax"));
        TZlecenia_przychObj order(db.connection());
        order.IDKONTRAHENTA = client;
        order.Insert();
        orderKey = order.GetMaxId();
    }

    TMiejsca_zlecObj newPlace(int type)
    {
        TMiejsca_zlecObj place(db.connection());
        place.ID_ZLECENIA = orderKey;
        place.ID_ZRP = type;
        place.Insert();
        place.ID_MIEJSCA_ZLEC = place.GetMaxId();
        return place;
    }

    TMiejsca_zlecObj storedPlace(int key)
    {
        const auto places = TMiejsca_zlecObj(db.connection())
                                .SelectClause(QStringLiteral("where ID_MIEJSCA_ZLEC=%1").arg(key));
        return places.empty() ? TMiejsca_zlecObj(db.connection()) : places.front();
    }

    int client = 0;
    int orderKey = 0;
};

} // namespace

TEST_F(Places, CaptionsFollowThePlaceType)
{
    auto loading = TfrmRODefault::create<TfrmAdresy>(nullptr, newPlace(1));
    EXPECT_EQ(loading->windowTitle(), "Miejsca Załadunków ");
    EXPECT_EQ(loading->lblHeader->text(), "Miejsca załadunków");
    auto unloading = TfrmRODefault::create<TfrmAdresy>(nullptr, newPlace(2));
    EXPECT_EQ(unloading->windowTitle(), "Miejsca Rozładunków");
    EXPECT_EQ(unloading->lblHeader->text(), "Miejsca rozładunków");
    EXPECT_TRUE(scriptedMessages().shown().empty());
}

TEST_F(Places, PowrotLeavesWithoutSavingOkWritesTheRowsBackIntoTheirSlots)
{
    TMiejsca_zlecObj place = newPlace(2);
    place.setSlot(2, {QStringLiteral("ul. Długa 5"), QStringLiteral("00-950"),
                      QStringLiteral("Warszawa"), 1, QStringLiteral("Hurtownia Żak")});
    place.Update();
    auto form = TfrmRODefault::create<TfrmAdresy>(nullptr, place);
    scriptedModalRunner().expect<TfrmAdresy>([](TfrmAdresy &f) {
        Typing::activate(&f);
        Typing::into(f.edNazwa[0], QStringLiteral("Nie zapisane"));
        Typing::accelerator(Qt::Key_P);   // "Powrót"
        return f.result();
    });
    EXPECT_EQ(form->showModal(), TfrmRODefault::mrCancel);
    EXPECT_TRUE(storedPlace(place.ID_MIEJSCA_ZLEC).slot(1).NAZWA.isEmpty());

    form = TfrmRODefault::create<TfrmAdresy>(nullptr, place);
    scriptedModalRunner().expect<TfrmAdresy>([](TfrmAdresy &f) {
        Typing::activate(&f);
        EXPECT_EQ(f.edNazwa[1]->text(), "Hurtownia Żak");
        EXPECT_EQ(f.edKod[1]->text(), "00-950");
        Typing::into(f.edMiejscowosc[1], QStringLiteral("Warszawa-Wola"));
        Typing::into(f.edNazwa[17], QStringLiteral("Odbiorca ostatni"));
        Typing::into(f.edUlica[17], QStringLiteral("ul. Krańcowa 18"));
        Typing::accelerator(Qt::Key_Z);
        return f.result();
    });
    EXPECT_EQ(form->showModal(), TfrmRODefault::mrOk);
    const TMiejsca_zlecObj saved = storedPlace(place.ID_MIEJSCA_ZLEC);
    EXPECT_EQ(saved.slot(2).MIEJSCOWOSC, "Warszawa-Wola");
    EXPECT_EQ(saved.slot(2).ID_KRAJU, 1);
    EXPECT_EQ(saved.slot(18).NAZWA, "Odbiorca ostatni");
    EXPECT_EQ(saved.slot(18).ADRES, "ul. Krańcowa 18");
    EXPECT_EQ(saved.ID_ZRP, 2);
    EXPECT_EQ(saved.ID_KONTRAHENT, client);
    EXPECT_EQ(db.count(QStringLiteral("MIEJSCA_ZLEC")), 1);
}

TEST_F(Places, LeavingTheFirstNameFillsTheRowFromTheClientsKnownAddress)
{
    TMiejsca_zlecObj earlier(db.connection());
    earlier.ID_ZLECENIA = 999;
    earlier.ID_ZRP = 1;
    earlier.ID_KONTRAHENT = client;
    earlier.setSlot(1, {QStringLiteral("Magazyn \"Północ\""), QStringLiteral("91-001"),
                        QStringLiteral("Łódź"), 1, QStringLiteral("Agromax magazyn")});
    earlier.Insert();
    auto form = TfrmRODefault::create<TfrmAdresy>(nullptr, newPlace(1));
    EXPECT_EQ(form->clientKey(), client);
    scriptedModalRunner().expect<TfrmAdresy>([](TfrmAdresy &f) {
        Typing::activate(&f);
        // Tab leaves the name.
        Typing::into(f.edNazwa[0], QStringLiteral("Nieznany\t"));
        EXPECT_TRUE(f.edMiejscowosc[0]->text().isEmpty());
        // Quotes typed by the user are data, never part of the statement.
        Typing::into(f.edNazwa[0], QStringLiteral("Magazyn \"Północ\"\t"));
        EXPECT_EQ(f.edNazwa[0]->text(), "Agromax magazyn");
        EXPECT_EQ(f.edUlica[0]->text(), "Magazyn \"Północ\"");
        EXPECT_EQ(f.edKod[0]->text(), "91-001");
        EXPECT_EQ(f.edMiejscowosc[0]->text(), "Łódź");
        return 2;
    });
    form->showModal();
    EXPECT_TRUE(scriptedMessages().shown().empty());
}
