#include "RoadCardEntries.h"
#include "RoadCards.h"
#include "ScriptedMessages.h"
#include "ScriptedModalRunner.h"
#include "SiblingFixture.h"
#include "TBitBtn.h"
#include "TKarty_drObj.h"
#include "TPojazdyObj.h"
#include "TZlecenia_przychObj.h"
#include "TfrmAddEditKartyDrogowe.h"

#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QTest>

namespace {

class RoadCardsTest : public SiblingTest
{
protected:
    RoadCardsTest()
    {
        db.exec(QStringLiteral("INSERT INTO KIEROWCY (IMIE, NAZWISKO) VALUES ('Marek', 'Wójcik')"));
        driver = lastKey(QStringLiteral("KIEROWCY"), QStringLiteral("ID_KIEROWCA"));
        db.exec(QStringLiteral("INSERT INTO NACZEPY (NR_REJ) VALUES ('EL 7N21')"));
        trailer = lastKey(QStringLiteral("NACZEPY"), QStringLiteral("ID_NACZEPY"));
        db.exec(QStringLiteral("INSERT INTO POJAZDY (NR_REJ, DEF_KIEROWCA, DEF_NACZEPA, LICZNIK, "
                               "STAN_PALIWA) VALUES ('EL 4521K', %1, %2, 412500, 310)")
                    .arg(driver)
                    .arg(trailer));
        vehicle = lastKey(QStringLiteral("POJAZDY"), QStringLiteral("ID_POJAZDU"));
        db.exec(QStringLiteral("INSERT INTO ZLECENIA_PRZYCH (NUMER, DATA, POJAZD, KM_LADOWNE, "
                               "PALETYILOSC) VALUES (120, '2026-03-14', 'el 4521k', 640, 33)"));
        order = lastKey(QStringLiteral("ZLECENIA_PRZYCH"), QStringLiteral("ID_ZLECENIA_PRZYCH"));
    }

    TKarty_drObj card(int key)
    {
        TKarty_drObj c(db.connection());
        c = c.SelectWhere(QStringLiteral("ID_KARTY_DR"), opEqual, key).at(0);
        return c;
    }

    int driver = 0, trailer = 0, vehicle = 0, order = 0;
};

} // namespace

TEST_F(RoadCardsTest, ACardGeneratedForAnOrderStartsFromItAndTheOrderPointsAtIt)
{
    scriptedModalRunner().expect<TfrmAddEditKartyDrogowe>([](TfrmAddEditKartyDrogowe &editor) {
        // The order names its vehicle only by registration; the vehicle
        // brings its driver, trailer and readings.
        EXPECT_EQ(shown(editor.field(QStringLiteral("cbPojazd"))), "EL 4521K");
        EXPECT_EQ(shown(editor.field(QStringLiteral("cbKierowca"))), "Marek Wójcik");
        type(editor.field(QStringLiteral("edUwagi")), QStringLiteral("Przez Stryków"));
        click(editor.btnOk);
        return editor.result();
    });
    const int key = RoadCardEntries::generateCard(order, &db.connection(), &transaction);
    ASSERT_NE(key, 0);
    const TKarty_drObj made = card(key);
    EXPECT_EQ((QList<int>{made.IDZLECENIA, made.NRZLECENIA, made.NUMER, made.IDPOJAZD,
                          made.IDKIEROWCA, made.IDNACZEPA, made.LICZNIK_POCZ, made.KM_LADOWNE}),
              (QList<int>{order, 120, 1, vehicle, driver, trailer, 412500, 640}));
    EXPECT_EQ((QStringList{made.KIEROWCA, made.REJ_POJAZD, made.REJ_NACZEPA, made.UWAGI}),
              (QStringList{"Marek Wójcik", "EL 4521K", "EL 7N21", "Przez Stryków"}));
    EXPECT_EQ(made.Z_DNIA.date(), QDate(2026, 3, 14));
    EXPECT_DOUBLE_EQ(made.STAN_POCZ, 310.0);
    EXPECT_EQ(TZlecenia_przychObj(db.connection()).SelectById(order).IDKARTYDR, key);

    // The second time the order's own card opens; cancel changes nothing.
    scriptedModalRunner().expect<TfrmAddEditKartyDrogowe>([](TfrmAddEditKartyDrogowe &editor) {
        EXPECT_EQ(editor.savedKey(), 0);
        click(editor.btnCancel);
        return editor.result();
    });
    EXPECT_EQ(RoadCardEntries::generateCard(order, &db.connection(), &transaction), 0);
    EXPECT_EQ(db.count(QStringLiteral("KARTY_DR")), 1);
}

TEST_F(RoadCardsTest, EditingReturnsOneOnlyWhenTheCardWasSaved)
{
    db.exec(QStringLiteral("INSERT INTO KARTY_DR (NUMER, Z_DNIA, IDPOJAZD, IDKIEROWCA, "
                           "LICZNIK_POCZ, STAN_POCZ) VALUES (7, '2026-03-01', %1, %2, 400000, 200)")
                .arg(vehicle)
                .arg(driver));
    const int key = lastKey(QStringLiteral("KARTY_DR"), QStringLiteral("ID_KARTY_DR"));
    scriptedModalRunner().expect<TfrmAddEditKartyDrogowe>([](TfrmAddEditKartyDrogowe &editor) {
        type(editor.field(QStringLiteral("seLicznikKoncowy")), QStringLiteral("401500"));
        type(editor.field(QStringLiteral("seKmLadowne")), QStringLiteral("1100"));
        type(editor.field(QStringLiteral("seKmPuste")), QStringLiteral("450"));
        scriptedMessages().expect();
        click(editor.btnOk);   // 1550 km declared, 1500 driven
        EXPECT_EQ(editor.focusWidget(), editor.field(QStringLiteral("seKmLadowne")));
        type(editor.field(QStringLiteral("seKmPuste")), QStringLiteral("380"));
        type(editor.field(QStringLiteral("sePaliwoZakupione")), QStringLiteral("250"));
        type(editor.field(QStringLiteral("seStanKoncowy")), QStringLiteral("10"));
        click(editor.btnOk);
        return editor.result();
    });
    EXPECT_EQ(RoadCardEntries::editCard(key, &db.connection(), &transaction), 1);
    EXPECT_EQ(scriptedMessages().shown().at(0).text,
              "Kilometry ładowne i puste razem (1\u00a0550 km) przekraczają przejechane według "
              "licznika (1\u00a0500 km).");
    const TKarty_drObj saved = card(key);
    EXPECT_EQ(saved.LICZNIK_ILOSC, 1500);
    EXPECT_EQ(saved.KM, 1500);
    EXPECT_DOUBLE_EQ(saved.ZUZYCIE, 440.0);
    EXPECT_EQ(saved.REJ_POJAZD, "EL 4521K");

    scriptedModalRunner().expect<TfrmAddEditKartyDrogowe>([](TfrmAddEditKartyDrogowe &editor) {
        click(editor.btnCancel);
        return editor.result();
    });
    EXPECT_EQ(RoadCardEntries::editCard(key, &db.connection(), &transaction), 0);
    scriptedMessages().expect();
    EXPECT_EQ(RoadCardEntries::editCard(key + 100, &db.connection(), &transaction), 0);
}

TEST_F(RoadCardsTest, TheReadingsOfACardMustAgree)
{
    Connection &c = db.connection();
    TKarty_drObj trip(c);
    trip.NUMER = 3;
    trip.Z_DNIA = DateTime::fromDate(QDate(2026, 3, 1));
    trip.LICZNIK_POCZ = 1000;
    trip.STAN_POCZ = 100.0;
    EXPECT_FALSE(RoadCards::check(trip, c));   // not finished yet
    EXPECT_EQ(RoadCards::driven(trip), 0);
    EXPECT_DOUBLE_EQ(RoadCards::fuelUsed(trip), 0.0);

    trip.LICZNIK_KONCOWY = 900;
    EXPECT_EQ(RoadCards::check(trip, c)->field, "seLicznikKoncowy");
    trip.LICZNIK_KONCOWY = 1500;
    trip.STAN_KONCOWY = 120.0;
    EXPECT_EQ(RoadCards::check(trip, c)->field, "seStanKoncowy");
    trip.PALIWO_ZAKUPIONE = 50.0;
    EXPECT_FALSE(RoadCards::check(trip, c));
    EXPECT_EQ(RoadCards::driven(trip), 500);
    EXPECT_DOUBLE_EQ(RoadCards::fuelUsed(trip), 30.0);

    db.exec(QStringLiteral("INSERT INTO KARTY_DR (NUMER, Z_DNIA) VALUES (3, '2026-01-10')"));
    EXPECT_EQ(RoadCards::check(trip, c)->field, "seNumer");
    trip.Z_DNIA = DateTime::fromDate(QDate(2027, 1, 2));
    EXPECT_FALSE(RoadCards::check(trip, c));
    EXPECT_EQ(RoadCards::nextNumber(c, 2026), 4);
    EXPECT_EQ(RoadCards::nextNumber(c, 2027), 1);
}

TEST_F(RoadCardsTest, ChoosingAVehicleFillsOnlyWhatTheCardLacks)
{
    db.exec(QStringLiteral("INSERT INTO KIEROWCY (IMIE, NAZWISKO) VALUES ('Anna', 'Nowak')"));
    const int other = lastKey(QStringLiteral("KIEROWCY"), QStringLiteral("ID_KIEROWCA"));
    TKarty_drObj trip(db.connection());
    trip.IDKIEROWCA = other;
    trip.STAN_POCZ = 50.0;
    RoadCards::takeOverVehicle(trip, TPojazdyObj(db.connection()).SelectById(vehicle));
    EXPECT_EQ(trip.IDPOJAZD, vehicle);
    EXPECT_EQ(trip.IDKIEROWCA, other);
    EXPECT_EQ(trip.IDNACZEPA, trailer);
    EXPECT_EQ(trip.LICZNIK_POCZ, 412500);
    EXPECT_DOUBLE_EQ(trip.STAN_POCZ, 50.0);

    auto editor = TfrmRODefault::create<TfrmAddEditKartyDrogowe>(nullptr, 0);
    auto *vehicles = static_cast<QComboBox *>(editor->field(QStringLiteral("cbPojazd")));
    type(editor->field(QStringLiteral("edUwagi")), QStringLiteral("bez zmian"));
    vehicles->setFocus();
    QTest::keyClick(vehicles, Qt::Key_Down);
    EXPECT_EQ(shown(editor->field(QStringLiteral("cbNaczepa"))), "EL 7N21");
    EXPECT_EQ(shown(editor->field(QStringLiteral("edUwagi"))), "bez zmian");
}

TEST_F(RoadCardsTest, WhenTheOrderCannotPointAtTheCardNoCardIsSavedAndTheEditorStaysOpen)
{
    db.exec(QStringLiteral("CREATE EXCEPTION ZLECENIE_ZABLOKOWANE 'Zlecenie zablokowane'"));
    db.exec(QStringLiteral("CREATE TRIGGER ZLECENIA_BLOKADA FOR ZLECENIA_PRZYCH BEFORE UPDATE AS "
                           "BEGIN EXCEPTION ZLECENIE_ZABLOKOWANE; END"));
    scriptedModalRunner().expect<TfrmAddEditKartyDrogowe>([&](TfrmAddEditKartyDrogowe &editor) {
        type(editor.field(QStringLiteral("edUwagi")), QStringLiteral("Przez Stryków"));
        scriptedMessages().expect();
        click(editor.btnOk);
        EXPECT_TRUE(editor.isVisible());
        EXPECT_EQ(db.count(QStringLiteral("KARTY_DR")), 0);
        EXPECT_EQ(shown(editor.field(QStringLiteral("edUwagi"))), "Przez Stryków");
        click(editor.btnCancel);
        return editor.result();
    });
    EXPECT_EQ(RoadCardEntries::generateCard(order, &db.connection(), &transaction), 0);
    ASSERT_EQ(scriptedMessages().shown().size(), 1u);
    EXPECT_EQ(scriptedMessages().shown()[0].caption, "Błąd");
    EXPECT_TRUE(scriptedMessages().shown()[0].text.startsWith(
        "Nie udało się zapisać zmian: baza danych odrzuciła zapis. Nic nie zostało zapisane."));
    // The engine's own words are for the error log.
    QFile log(db.directory() + QStringLiteral("/SQLErrors.ini"));
    ASSERT_TRUE(log.open(QIODevice::ReadOnly));
    EXPECT_TRUE(QString::fromUtf8(log.readAll()).contains("Zlecenie zablokowane"));
    EXPECT_EQ(db.count(QStringLiteral("KARTY_DR")), 0);
    EXPECT_EQ(TZlecenia_przychObj(db.connection()).SelectById(order).IDKARTYDR, 0);
}
