#include "OrdersFixture.h"

#include "ErrorLog.h"
#include "ErrorLogs.h"
#include "IncomingOrderStatements.h"
#include "ScriptedMessages.h"
#include "ScriptedModalRunner.h"
#include "Statement.h"
#include "TBitBtn.h"
#include "TDateEdit.h"
#include "TLimitedSpinEdit.h"
#include "TNumberEdit.h"
#include "TZlecenia_przychObj.h"
#include "TfrmAddEditZlecenia_Przych.h"
#include "Typing.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTest>

namespace {

using namespace TestData;
using Editor = TfrmAddEditZlecenia_Przych;

class OrderEditor : public OrdersFixture
{
protected:
    void SetUp() override
    {
        Connection &c = db.connection();
        client = addContractor(c, QStringLiteral("Agromax"));
        carrier = addContractor(c, QStringLiteral("Spedpol"));
        own = addContractor(c, QStringLiteral("Trans-Wisła"));
        addSetting(c, {.name = QStringLiteral("IDWłaściciela"), .number = own});
        lodz = addCity(c, {.name = QStringLiteral("Łódź")});
        lublin = addCity(c, {.name = QStringLiteral("Lublin")});
        zakopane = addCity(c, {.name = QStringLiteral("Zakopane")});
        addFilter(c, QStringLiteral("Jan Wiśniewski"));
    }

    // Opens the editor modally; the handler plays the user.
    int run(int key, int mode, std::function<void(Editor &)> user)
    {
        auto form = TfrmRODefault::create<Editor>(nullptr, key, mode);
        scriptedModalRunner().expect<Editor>([&](Editor &editor) {
            Typing::activate(&editor);
            user(editor);
            return editor.result();
        });
        return form->showModal();
    }

    // Alt+Z, "Zapisz i zamknij".
    static void save() { Typing::accelerator(Qt::Key_Z); }

    TZlecenia_przychObj stored(int key)
    {
        return IncomingOrderStatements::load(db.connection(), key);
    }

    int insertOrder(TZlecenia_przychObj order)
    {
        order.Insert();
        return order.ID_ZLECENIA_PRZYCH;
    }

    int client = 0;
    int carrier = 0;
    int own = 0;
    int lodz = 0;
    int lublin = 0;
    int zakopane = 0;
};

QStringList itemTexts(const QComboBox *combo)
{
    QStringList texts;
    for (int i = 0; i < combo->count(); ++i)
        texts << combo->itemText(i);
    return texts;
}

} // namespace

TEST_F(OrderEditor, AddModeStartsEmptyWithAgreedRatesAndMidnight)
{
    auto form = TfrmRODefault::create<Editor>(nullptr, 0, Editor::Add);
    EXPECT_TRUE(scriptedMessages().shown().empty());
    EXPECT_TRUE(form->rbStawkaUmowna->isChecked());
    EXPECT_TRUE(form->rbKosztUmowna->isChecked());
    EXPECT_TRUE(form->seKwota->isEnabled());
    EXPECT_FALSE(form->ceTaryfa->isEnabled());
    EXPECT_EQ(form->meAwizo->text(), "00:00");
    EXPECT_EQ(form->meRozladunek->text(), "00:00");
    EXPECT_TRUE(form->deAwizo->isEmpty());
    EXPECT_EQ(form->cbKlient->currentIndex(), -1);
    EXPECT_EQ(form->seNumerKolejny->value(), 0);
    EXPECT_EQ(form->lblStawkaRazem->text(), "0,00");
    EXPECT_EQ(form->cbWspolnik->currentText(), "---");
    EXPECT_EQ(itemTexts(form->cbWspolnik), QStringList({"---", "Jan Wiśniewski"}));
    // Polish order, an empty entry first for a route without the city.
    EXPECT_EQ(itemTexts(form->cbMiastoPrzez), QStringList({"", "Lublin", "Łódź", "Zakopane"}));
    EXPECT_EQ(itemTexts(form->cbKlient), QStringList({"Agromax", "Spedpol", "Trans-Wisła"}));
    EXPECT_EQ(form->cbKlient->itemData(0).toInt(), client);
}

TEST_F(OrderEditor, SavingANewOrderWritesTheFieldsTheSessionUserAndTheFirstNumberOfTheYear)
{
    const QString description = QStringLiteral("Towar na paletach") + QString(300, u'ż');
    const int result = run(0, Editor::Add, [&](Editor &e) {
        choose(e.cbKlient, client);
        choose(e.cbPrzewoznik, carrier);
        choose(e.cbMiastoOd, lodz);
        choose(e.cbMiastoDo, zakopane);
        Typing::into(e.deAwizo, QStringLiteral("2024-05-06"));
        Typing::into(e.meAwizo, QStringLiteral("8:30"));
        Typing::into(e.deRozladunek, QStringLiteral("07.05.2024"));
        Typing::into(e.meRozladunek, QStringLiteral("14:05"));
        Typing::into(e.seOdleglosc, QStringLiteral("420"));
        Typing::into(e.seKMLadownych, QStringLiteral("420"));
        Typing::into(e.seKMPustych, QStringLiteral("12,5"));
        Typing::into(e.seKwota, QStringLiteral("1850"));
        Typing::into(e.seKosztKwota, QStringLiteral("1400"));
        Typing::into(e.edPojazd, QStringLiteral("EL 12345"));
        // The description keeps at most 255 characters.
        Typing::into(e.memOpisDod, description);
        EXPECT_EQ(e.memOpisDod->toPlainText().size(), 255);
        save();
    });
    EXPECT_EQ(result, TfrmRODefault::mrOk);
    ASSERT_EQ(db.count(QStringLiteral("ZLECENIA_PRZYCH")), 1);
    const TZlecenia_przychObj o = lastOrder();
    EXPECT_EQ(o.IDUSER, SessionUser);
    EXPECT_EQ(o.NUMER, 1);
    EXPECT_EQ(o.IDKONTRAHENTA, client);
    EXPECT_EQ(o.IDPRZEWOZNIK, carrier);
    EXPECT_EQ(o.IDMIASTO_OD, lodz);
    EXPECT_EQ(o.IDMIASTO_VIA, 0);
    EXPECT_EQ(o.IDMIASTO_DO, zakopane);
    EXPECT_EQ(o.DATA.toDateTime(), QDateTime(QDate(2024, 5, 6), QTime(0, 0), Qt::UTC));
    EXPECT_EQ(o.AWIZO.toDateTime(), QDateTime(QDate(2024, 5, 6), QTime(8, 30), Qt::UTC));
    EXPECT_EQ(o.DOSTARCZENIE.toDateTime(), QDateTime(QDate(2024, 5, 7), QTime(14, 5), Qt::UTC));
    EXPECT_EQ(o.ODLEGLOSC, 420);
    EXPECT_DOUBLE_EQ(o.KM_PUSTE, 12.5);
    EXPECT_DOUBLE_EQ(o.KWOTA, 1850.0);
    EXPECT_DOUBLE_EQ(o.STAWKA_RAZEM, 1850.0);
    EXPECT_DOUBLE_EQ(o.KOSZTKWOTA, 1400.0);
    EXPECT_DOUBLE_EQ(o.KOSZTRAZEM, 1400.0);
    EXPECT_EQ(o.POJAZD, "EL 12345");
    EXPECT_EQ(o.DODATKOWY_OPIS, description.left(255));
    EXPECT_EQ(o.TYP, "");
}

TEST_F(OrderEditor, ANewOrderFollowsTheMostRecentlyInsertedNumberOfItsLoadingYear)
{
    TZlecenia_przychObj earlier(db.connection());
    earlier.DATA = DateTime::fromDate(QDate(2024, 1, 2));
    earlier.NUMER = 300;
    insertOrder(earlier);
    earlier.NUMER = 41;
    insertOrder(earlier);
    run(0, Editor::Add, [&](Editor &e) {
        Typing::into(e.deAwizo, QStringLiteral("2024-08-01"));
        save();
        EXPECT_EQ(e.seNumerKolejny->value(), 42);
    });
    EXPECT_EQ(lastOrder().NUMER, 42);
}

TEST_F(OrderEditor, ByTariffEachRateProductIsRoundedAndTheAmountGoesToZero)
{
    run(0, Editor::Add, [&](Editor &e) {
        Typing::into(e.seKwota, QStringLiteral("999"));
        Typing::click(e.rbStawkaTaryfowa);
        EXPECT_DOUBLE_EQ(e.seKwota->value(), 0.0);
        EXPECT_FALSE(e.seKwota->isEnabled());
        EXPECT_TRUE(e.ceTaryfa->isEnabled());
        Typing::into(e.seKMLadownych, QStringLiteral("100"));
        Typing::into(e.edStawkaKMLadowny, QStringLiteral("1,235"));
        EXPECT_EQ(e.lblStawkaRazem->text(), "123,50");
        Typing::into(e.seIloscPalet, QStringLiteral("3"));
        Typing::into(e.edStawkaIloscPalet, QStringLiteral("10,005"));
        EXPECT_EQ(e.lblStawkaRazem->text(), "153,52");
        // 0.005 alone rounds up to a grosz, the plain sum would not.
        Typing::into(e.seIloscGodzin, QStringLiteral("1"));
        Typing::into(e.edStawkaIloscGodzin, QStringLiteral("0,005"));
        EXPECT_EQ(e.lblStawkaRazem->text(), "153,53");
        save();
    });
    const TZlecenia_przychObj o = lastOrder();
    EXPECT_DOUBLE_EQ(o.STAWKA_RAZEM, 153.53);
    EXPECT_DOUBLE_EQ(o.KWOTA, 0.0);
    EXPECT_DOUBLE_EQ(o.STAWKA_KMLAD, 1.235);
}

TEST_F(OrderEditor, TheOwnCarrierBoxTicksExactlyForTheCompanysOwnContractor)
{
    run(0, Editor::Add, [&](Editor &e) {
        choose(e.cbPrzewoznik, own);
        EXPECT_TRUE(e.cbPrzewoznikObcy->isChecked());
        choose(e.cbPrzewoznik, carrier);
        EXPECT_FALSE(e.cbPrzewoznikObcy->isChecked());
        // Space on the box ticks it, and again unticks it.
        e.cbPrzewoznikObcy->setFocus();
        Typing::press(Qt::Key_Space);
        EXPECT_TRUE(e.cbPrzewoznikObcy->isChecked());
        EXPECT_EQ(e.cbPrzewoznik->currentData().toInt(), own);
        Typing::press(Qt::Key_Space);   // unticking leaves the carrier
        EXPECT_FALSE(e.cbPrzewoznikObcy->isChecked());
        EXPECT_EQ(e.cbPrzewoznik->currentData().toInt(), own);
    });
}

TEST_F(OrderEditor, AnEditRoundTripKeepsWhatTheEditorDoesNotShow)
{
    const int tariff = addTariff(db.connection(),
                                 {.name = QStringLiteral("Chłodnia 24t"), .perLoadedKm = 2.0});
    TZlecenia_przychObj order(db.connection());
    order.NUMER = 77;
    order.DATA = DateTime::fromDate(QDate(2024, 5, 6));
    order.AWIZO = DateTime::fromDateTime(QDateTime(QDate(2024, 5, 6), QTime(14, 45), Qt::UTC));
    order.IDKONTRAHENTA = client;
    order.IDPRZEWOZNIK = own;
    order.IDMIASTO_OD = lublin;
    order.KM_LADOWNE = 100;
    order.IDTARYFYKOSZT = tariff;
    order.KWOTA = 900.0;
    // Columns the editor does not show, and that no demo order fills.
    order.IDMIASTO = lodz;
    order.ZWROTY = 2;
    order.TELEFON = QStringLiteral("601 200 300");
    const int key = insertOrder(order);

    const int result = run(key, Editor::Edit, [&](Editor &e) {
        EXPECT_EQ(e.seNumerKolejny->value(), 77);
        EXPECT_EQ(e.deAwizo->value().date(), QDate(2024, 5, 6));
        EXPECT_EQ(e.meAwizo->text(), "14:45");
        EXPECT_EQ(e.cbKlient->currentText(), "Agromax");
        EXPECT_TRUE(e.cbPrzewoznikObcy->isChecked());
        EXPECT_EQ(e.cbMiastoOd->currentText(), "Lublin");
        EXPECT_TRUE(e.rbStawkaUmowna->isChecked());
        EXPECT_EQ(e.lblStawkaRazem->text(), "900,00");
        EXPECT_TRUE(e.rgKosztTaryfa->isChecked());
        EXPECT_EQ(e.ceKosztTaryfa->text(), "Chłodnia 24t");
        EXPECT_EQ(e.costTariffKey(), tariff);
        Typing::into(e.edPojazd, QStringLiteral("WZ 9876A"));
        save();
    });
    EXPECT_EQ(result, TfrmRODefault::mrOk);
    EXPECT_EQ(db.count(QStringLiteral("ZLECENIA_PRZYCH")), 1);
    const TZlecenia_przychObj o = stored(key);
    EXPECT_EQ(o.POJAZD, "WZ 9876A");
    EXPECT_EQ(o.NUMER, 77);
    EXPECT_EQ(o.IDMIASTO, lodz);
    EXPECT_EQ(o.ZWROTY, 2);
    EXPECT_EQ(o.TELEFON, "601 200 300");
    EXPECT_EQ(o.AWIZO.toDateTime(), QDateTime(QDate(2024, 5, 6), QTime(14, 45), Qt::UTC));
    // The carrier's tariff prices the cost: 100 km at 2.00.
    EXPECT_DOUBLE_EQ(o.KOSZTRAZEM, 200.0);
    EXPECT_EQ(o.IDTARYFYKOSZT, tariff);
}

TEST_F(OrderEditor, ATimeThatDoesNotConvertStopsTheSaveAndCancelThenWritesNothing)
{
    TZlecenia_przychObj order(db.connection());
    order.NUMER = 5;
    order.KWOTA = 100.0;
    order.POJAZD = QStringLiteral("EL 1");
    const int key = insertOrder(order);
    const int result = run(key, Editor::Edit, [&](Editor &e) {
        Typing::into(e.edPojazd, QStringLiteral("EL 2"));
        Typing::into(e.seKwota, QStringLiteral("250"));
        Typing::into(e.seNumerKolejny, QStringLiteral("0"));
        Typing::into(e.meRozladunek, QStringLiteral("25:70"));
        scriptedMessages().expect(MessageService::Ok);
        save();
        EXPECT_TRUE(e.isVisible());
        Typing::accelerator(Qt::Key_A);   // "Anuluj"
    });
    EXPECT_EQ(result, TfrmRODefault::mrCancel);
    ASSERT_EQ(scriptedMessages().shown().size(), 1u);
    EXPECT_EQ(scriptedMessages().shown()[0].caption, "Błąd");
    EXPECT_TRUE(scriptedMessages().shown()[0].text.contains(u"25:70"));
    EXPECT_EQ(stored(key).POJAZD, "EL 1");
    EXPECT_DOUBLE_EQ(stored(key).KWOTA, 100.0);
    EXPECT_EQ(stored(key).NUMER, 5);

    run(0, Editor::Add, [&](Editor &e) {
        Typing::into(e.meAwizo, QStringLiteral("9:99"));
        scriptedMessages().expect(MessageService::Ok);
        save();
    });
    EXPECT_EQ(db.count(QStringLiteral("ZLECENIA_PRZYCH")), 1);
}

TEST_F(OrderEditor, AnotherWorkstationsChangeMeanwhileIsOnePolishSentenceAndKeepsTheEditorOpen)
{
    TZlecenia_przychObj order(db.connection());
    order.NUMER = 12;
    order.DATA = DateTime::fromDate(QDate(2026, 5, 4));
    const int key = insertOrder(order);
    const int result = run(key, Editor::Edit, [&](Editor &e) {
        // The host's transaction was running when another workstation
        // changed the same order and committed.
        transaction.StartTransaction();
        Connection elsewhere;
        elsewhere.open(db.path());
        Statement change(elsewhere);
        change.add(QStringLiteral("UPDATE ZLECENIA_PRZYCH SET POJAZD='KR 1234'"));
        change.exec();
        e.edPojazd->setFocus();
        QTest::keyClicks(e.edPojazd, QStringLiteral("WX 5150"));
        scriptedMessages().expect(MessageService::Ok);
        QTest::mouseClick(e.btnOk, Qt::LeftButton);
        EXPECT_TRUE(e.isVisible());
        EXPECT_EQ(e.edPojazd->text(), "WX 5150");
        transaction.Rollback();
    });
    EXPECT_NE(result, TfrmRODefault::mrOk);
    ASSERT_EQ(scriptedMessages().shown().size(), 1u);
    EXPECT_EQ(scriptedMessages().shown()[0].caption, "Błąd");
    EXPECT_EQ(scriptedMessages().shown()[0].text,
              "Nie można zapisać zlecenia.\nInne stanowisko zmieniło w tym samym czasie te same "
              "dane. Spróbuj jeszcze raz.");
    const QStringList logged = loggedToday(ErrorLog::SqlErrors);
    ASSERT_EQ(logged.size(), 1);
    EXPECT_TRUE(logged[0].contains(u"update conflicts with concurrent update"));
    EXPECT_TRUE(logged[0].contains(u"UPDATE ZLECENIA_PRZYCH SET"));
    EXPECT_EQ(stored(key).POJAZD, "KR 1234");
}

TEST_F(OrderEditor, AContractorOrCityGoneFromItsListStaysWithTheOrder)
{
    TZlecenia_przychObj order(db.connection());
    order.IDKONTRAHENTA = 999;
    order.IDPRZEWOZNIK = carrier;
    order.IDMIASTO_DO = 888;
    order.FILTR1 = 77;
    order.NR_LISTU = 654321;   // beyond what the field lets a user type
    const int key = insertOrder(order);
    run(key, Editor::Edit, [&](Editor &e) {
        EXPECT_EQ(e.cbKlient->currentIndex(), -1);
        EXPECT_EQ(e.edNrListu->value(), 654321);
        save();
    });
    const TZlecenia_przychObj o = stored(key);
    EXPECT_EQ(o.IDKONTRAHENTA, 999);
    EXPECT_EQ(o.IDPRZEWOZNIK, carrier);
    EXPECT_EQ(o.IDMIASTO_DO, 888);
    EXPECT_EQ(o.FILTR1, 77);
    EXPECT_EQ(o.NR_LISTU, 654321);
}

TEST_F(OrderEditor, AgreedAfterTariffClearsTheTariffAndKeepsTheRates)
{
    const int tariff = addTariff(
        db.connection(), {.name = QStringLiteral("Własna krajowa"), .own = 1, .perLoadedKm = 3.0});
    TZlecenia_przychObj order(db.connection());
    order.IDTARYFY = tariff;
    order.KM_LADOWNE = 10;
    order.STAWKA_KMLAD = 3.0;
    const int key = insertOrder(order);
    run(key, Editor::Edit, [&](Editor &e) {
        EXPECT_TRUE(e.rbStawkaTaryfowa->isChecked());
        EXPECT_EQ(e.ceTaryfa->text(), "Własna krajowa");
        EXPECT_EQ(e.lblStawkaRazem->text(), "30,00");
        Typing::click(e.rbStawkaUmowna);
        EXPECT_EQ(e.tariffKey(), 0);
        EXPECT_TRUE(e.ceTaryfa->text().isEmpty());
        EXPECT_TRUE(e.seKwota->isEnabled());
        EXPECT_EQ(e.lblStawkaRazem->text(), "0,00");
        Typing::into(e.seKwota, QStringLiteral("75"));
        save();
    });
    const TZlecenia_przychObj o = stored(key);
    EXPECT_EQ(o.IDTARYFY, 0);
    EXPECT_DOUBLE_EQ(o.KWOTA, 75.0);
    EXPECT_DOUBLE_EQ(o.STAWKA_RAZEM, 75.0);
    EXPECT_DOUBLE_EQ(o.STAWKA_KMLAD, 3.0);
}
