// The collective order editor as a dispatcher corrects an order's head.
#include "CollectiveFixture.h"
#include "ScriptedMessages.h"
#include "ScriptedModalRunner.h"
#include "TBitBtn.h"
#include "TDaneFirmy.h"
#include "TDateEdit.h"
#include "TLimitedSpinEdit.h"
#include "TNumberEdit.h"
#include "TestData.h"
#include "TfrmAddEditZleceniaZbiorcze.h"
#include "TfrmStawkiTaryfowe.h"
#include "TframeListView.h"
#include "Typing.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QScopeGuard>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>

namespace {

class CollectiveOrderEditor : public CollectiveFixture
{
protected:
    std::unique_ptr<TfrmAddEditZleceniaZbiorcze> open(int key)
    {
        auto form = TfrmRODefault::create<TfrmAddEditZleceniaZbiorcze>(
            nullptr, key, TfrmAddEditZleceniaZbiorcze::Edit);
        Typing::activate(form.get());
        return form;
    }

    static void showTab(TfrmAddEditZleceniaZbiorcze &form, int index)
    {
        QTabBar *tabs = form.pcWykonawca->tabBar();
        QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(index).center());
    }

    // Alt+Z, "&Zapisz i zamknij".
    static int save(TfrmAddEditZleceniaZbiorcze &form)
    {
        Typing::accelerator(Qt::Key_Z);
        EXPECT_TRUE(Typing::closes(&form));
        return form.result();
    }
};

} // namespace

TEST_F(CollectiveOrderEditor, AnOutsideCarriersOrderSavedAtOnceLosesItsCarrierInvoiceNumber)
{
    const int key = addCollective([&](TZlecenia_zbiorObj &z) {
        z.FAKTURA_OBCA = QStringLiteral("FV 12/2026");
        z.KWOTA_PRZEWOZNIKA = 1500;
        z.NRJAZDY = 3;
        z.DATAWYSTAWIENIA_PRZEWOZNIK = DateTime::fromDate(QDate(2026, 5, 9));
    });
    const auto form = open(key);
    // What is saved unchanged below was shown; names are only shown.
    EXPECT_EQ(form->cePojazdObcy->text(), "EL 1000");
    EXPECT_EQ(form->ceKierowcaObcy->text(), "Jan Żak");
    EXPECT_EQ(form->seNumerKolejny->value(), 7);
    EXPECT_TRUE(form->edFakturaObca->text().isEmpty());

    EXPECT_EQ(save(*form), TfrmRODefault::mrOk);
    const TZlecenia_zbiorObj saved = collective(key);
    EXPECT_TRUE(saved.FAKTURA_OBCA.isEmpty());
    EXPECT_EQ(saved.IDPRZEWOZNIK, carrierA);
    EXPECT_EQ(saved.IDPOJAZDU, vehicle1);
    EXPECT_EQ(saved.IDKIEROWCY, driver1);
    EXPECT_EQ(saved.IDVAT_PRZEWOZNIK, vat8);
    EXPECT_EQ(saved.TERMINPLATNOSCI, 21);
    EXPECT_EQ(saved.NRJAZDY, 3);
    EXPECT_DOUBLE_EQ(saved.KWOTA_PRZEWOZNIKA, 1500.0);
    EXPECT_EQ(saved.DATAWYSTAWIENIA_PRZEWOZNIK.date(), QDate(2026, 5, 9));
}

TEST_F(CollectiveOrderEditor, TypedDatesAreStoredWithoutTheHoursTypedBesideThem)
{
    const int key = addCollective();
    const auto form = open(key);
    Typing::into(form->deDataZaladunku, QStringLiteral("2026-05-06"));
    Typing::into(form->meGodzinaZaladunku, QStringLiteral("1430"));
    Typing::into(form->deDataRozladunku, QStringLiteral("2026-05-07"));
    Typing::into(form->meGodzinaRozladunku, QStringLiteral("0815"));
    EXPECT_EQ(form->meGodzinaZaladunku->text(), "14:30");
    Typing::into(form->edFakturaObca, QStringLiteral("FV 99/2026"));
    Typing::into(form->seNumerKolejny, QStringLiteral("12"));
    EXPECT_EQ(save(*form), TfrmRODefault::mrOk);

    const TZlecenia_zbiorObj saved = collective(key);
    EXPECT_EQ(saved.DATAZALADUNKU.date(), QDate(2026, 5, 6));
    EXPECT_EQ(saved.DATAZALADUNKU.time(), QTime(0, 0));
    EXPECT_EQ(saved.DATAWYLADUNKU.date(), QDate(2026, 5, 7));
    EXPECT_EQ(saved.DATAWYLADUNKU.time(), QTime(0, 0));
    EXPECT_EQ(saved.FAKTURA_OBCA, "FV 99/2026");
    EXPECT_EQ(saved.NUMER, 12);
}

TEST_F(CollectiveOrderEditor, TheOwnFleetTabSavesTheCompanyAsCarrierWithItsRate)
{
    const int own = addCollective([&](TZlecenia_zbiorObj &z) {
        z.IDPRZEWOZNIK = ownCompany;
        z.STAWKA = 800;
        z.FAKTURA_OBCA = QStringLiteral("stary");
    });
    auto form = open(own);
    EXPECT_EQ(form->pcWykonawca->currentWidget(), form->tsWlasny);
    EXPECT_EQ(form->cePojazd->text(), "EL 1000");
    EXPECT_EQ(form->ceKierowca->text(), "Jan Żak");
    EXPECT_DOUBLE_EQ(form->seStawkaWlasna->value(), 800.0);
    // The company is no outside carrier, nor is a client who never carries.
    EXPECT_LT(form->cbWykonawca->findData(ownCompany), 0);
    EXPECT_LT(form->cbWykonawca->findData(clientOnly), 0);
    EXPECT_EQ(form->cbWykonawca->itemText(0), "ANTRANS");
    EXPECT_EQ(form->cbWykonawca->itemText(form->cbWykonawca->count() - 1), "ŻBIK TRANS");
    Typing::into(form->seStawkaWlasna, QStringLiteral("1234,5"));
    EXPECT_EQ(save(*form), TfrmRODefault::mrOk);
    TZlecenia_zbiorObj saved = collective(own);
    EXPECT_EQ(saved.IDPRZEWOZNIK, ownCompany);
    EXPECT_DOUBLE_EQ(saved.STAWKA, 1234.5);
    EXPECT_EQ(saved.IDPOJAZDU, vehicle1);
    EXPECT_TRUE(saved.FAKTURA_OBCA.isEmpty());

    // An outside carrier's order moved to the own fleet: the own tab's
    // crew (none chosen) and rate go with it.
    const int outside = addCollective();
    form = open(outside);
    showTab(*form, 0);
    Typing::into(form->seStawkaWlasna, QStringLiteral("950"));
    EXPECT_EQ(save(*form), TfrmRODefault::mrOk);
    saved = collective(outside);
    EXPECT_EQ(saved.IDPRZEWOZNIK, ownCompany);
    EXPECT_DOUBLE_EQ(saved.STAWKA, 950.0);
    EXPECT_EQ(saved.IDPOJAZDU, 0);
    EXPECT_EQ(saved.IDKIEROWCY, 0);
}

TEST_F(CollectiveOrderEditor, TheFixedTextImageFollowsTheNumberAsItIsTyped)
{
    const QString app = TDaneFirmy().GetAppPath();
    const QString dir = app + QStringLiteral("/Reports/ZleceniaTeksty");
    const bool dirExisted = QDir(dir).exists();
    ASSERT_TRUE(QDir().mkpath(dir));
    const QString file = dir + QStringLiteral("/987.txt");
    ASSERT_FALSE(QFile::exists(file));
    const auto cleanUp = qScopeGuard([&] {
        QFile::remove(file);
        if (!dirExisted)
            QDir(app).rmpath(QStringLiteral("Reports/ZleceniaTeksty"));
    });
    {
        QFile text(file);
        ASSERT_TRUE(text.open(QIODevice::WriteOnly));
        text.write("Płatność w ciągu 21 dni od otrzymania faktury.");
    }
    const int key = addCollective([](TZlecenia_zbiorObj &z) { z.IDUWAGI = 986; });
    const auto form = open(key);
    EXPECT_EQ(form->seTekstStaly->value(), 986);
    EXPECT_FALSE(form->textShown());
    EXPECT_FALSE(form->imgTekstJest->isVisible());
    EXPECT_TRUE(form->imgTekstBrak->isVisible());
    EXPECT_EQ(form->imgTekstBrak->toolTip(), "Brak tekstu stałego o tym numerze....");

    Typing::into(form->seTekstStaly, QStringLiteral("987"));
    EXPECT_TRUE(form->imgTekstJest->isVisible());
    EXPECT_FALSE(form->imgTekstBrak->isVisible());
    EXPECT_EQ(form->imgTekstJest->toolTip(), "Wyświetl stały tekst...");

    scriptedMessages().expect();
    Typing::click(form->imgTekstJest);
    ASSERT_EQ(scriptedMessages().shown().size(), 1u);
    EXPECT_EQ(scriptedMessages().shown()[0].caption, "Tekst stały nr 987");
    EXPECT_EQ(scriptedMessages().shown()[0].text, "Płatność w ciągu 21 dni od otrzymania faktury.");

    Typing::into(form->seTekstStaly, QStringLiteral("12"));
    EXPECT_FALSE(form->textShown());
    EXPECT_EQ(save(*form), TfrmRODefault::mrOk);
    EXPECT_EQ(collective(key).IDUWAGI, 12);
}

TEST_F(CollectiveOrderEditor, EscAsksAndCancelsWithoutSaving)
{
    const int key = addCollective();
    const auto form = open(key);
    Typing::into(form->seNumerJazdy, QStringLiteral("44"));
    scriptedMessages().expect(MessageService::No);
    Typing::press(Qt::Key_Escape);
    ASSERT_EQ(scriptedMessages().shown().size(), 1u);
    EXPECT_EQ(scriptedMessages().shown()[0].caption, "Wyjście");
    EXPECT_EQ(scriptedMessages().shown()[0].text, "Anulować edycję?");
    EXPECT_EQ(scriptedMessages().shown()[0].icon, MessageService::Icon::Question);
    EXPECT_TRUE(form->isVisible());

    scriptedMessages().expect(MessageService::Yes);
    Typing::press(Qt::Key_Escape);
    EXPECT_TRUE(Typing::closes(form.get()));
    EXPECT_EQ(form->result(), TfrmRODefault::mrCancel);
    EXPECT_EQ(collective(key).NRJAZDY, 0);
}

TEST_F(CollectiveOrderEditor, AddingStartsTodayWithTheFirstRateAndInsertsANewOrder)
{
    const auto form = TfrmRODefault::create<TfrmAddEditZleceniaZbiorcze>(
        nullptr, 0, TfrmAddEditZleceniaZbiorcze::Add);
    Typing::activate(form.get());
    EXPECT_EQ(form->windowTitle(), "Wprowadzanie danych");
    EXPECT_EQ(form->deZlecenia->date(), QDate::currentDate());
    EXPECT_EQ(form->cbVAT->currentText(), "23%");
    EXPECT_EQ(form->ceTermin->value(), 35);
    showTab(*form, 1);
    form->cbWykonawca->setFocus();
    // No carrier is proposed for a new order.
    EXPECT_EQ(form->cbWykonawca->currentIndex(), -1);
    QTest::keyClick(form->cbWykonawca, Qt::Key_Down);
    QTest::keyClick(form->cbWykonawca, Qt::Key_Down);
    EXPECT_EQ(form->cbWykonawca->currentText(), "ŻBIK TRANS");
    Typing::into(form->seNumerKolejny, QStringLiteral("31"));
    EXPECT_EQ(save(*form), TfrmRODefault::mrOk);
    ASSERT_NE(form->key(), 0);
    const TZlecenia_zbiorObj saved = collective(form->key());
    EXPECT_EQ(saved.NUMER, 31);
    EXPECT_EQ(saved.IDPRZEWOZNIK, carrierB);
    EXPECT_EQ(saved.IDVAT_PRZEWOZNIK, vat23);
    EXPECT_EQ(saved.TERMINPLATNOSCI, 35);
    EXPECT_EQ(saved.DATA.date(), QDate::currentDate());
}

TEST_F(CollectiveOrderEditor, TheOwnTariffIsShownByNameAndChosenFromTheOwnTariffs)
{
    Connection &c = db.connection();
    const int city = TestData::addTariff(c, {.name = QStringLiteral("Miasto"), .own = 1});
    const int country = TestData::addTariff(c, {.name = QStringLiteral("Kraj"), .own = 1});
    const int key = addCollective([&](TZlecenia_zbiorObj &z) {
        z.IDPRZEWOZNIK = ownCompany;
        z.IDTARYFYWLASNEJ = city;
    });
    const auto form = open(key);
    EXPECT_EQ(form->ceTaryfaWlasna->text(), "Miasto");

    scriptedModalRunner().expect<TfrmStawkiTaryfowe>([&](TfrmStawkiTaryfowe &picker) {
        TListView &list = *picker.frameListView1->lvMain;
        EXPECT_EQ(list.key(list.selectedIndex()), city);
        list.setSelectedIndex(list.findByKey(country));
        Typing::click(picker.btnOk);
        return picker.result();
    });
    form->acTaryfaWlasna->trigger();
    EXPECT_TRUE(scriptedModalRunner().allRun());
    EXPECT_EQ(form->ceTaryfaWlasna->text(), "Kraj");
    Typing::activate(form.get());
    EXPECT_EQ(save(*form), TfrmRODefault::mrOk);
    EXPECT_EQ(collective(key).IDTARYFYWLASNEJ, country);
}
