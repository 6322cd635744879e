#include "OrdersFixture.h"

#include "IncomingOrderStatements.h"
#include "ScriptedMessages.h"
#include "ScriptedModalRunner.h"
#include "TBitBtn.h"
#include "TLimitedSpinEdit.h"
#include "TNumberEdit.h"
#include "TframeListView.h"
#include "TfrmAddEditZlecenia_Przych.h"
#include "TfrmMiasta.h"
#include "TfrmStawkiTaryfowe.h"
#include "Typing.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

namespace {

using namespace TestData;
using Editor = TfrmAddEditZlecenia_Przych;

class OrderPricing : public OrdersFixture
{
protected:
    void SetUp() override
    {
        a = addCity(db.connection(), {.name = QStringLiteral("Białystok")});
        b = addCity(db.connection(), {.name = QStringLiteral("Warszawa")});
        c = addCity(db.connection(), {.name = QStringLiteral("Kraków")});
        d = addCity(db.connection(), {.name = QStringLiteral("Łódź")});
    }

    std::unique_ptr<Editor> newOrder()
    {
        auto editor = TfrmRODefault::create<Editor>(nullptr, 0, Editor::Add);
        Typing::activate(editor.get());
        return editor;
    }

    // Alt+Z, "Zapisz i zamknij", in the editor made active again after
    // any register that was open above it.
    static void save(Editor &e)
    {
        Typing::activate(&e);
        Typing::accelerator(Qt::Key_Z);
    }

    void route(Editor &e, int from, int via, int to)
    {
        choose(e.cbMiastoOd, from);
        choose(e.cbMiastoPrzez, via);
        choose(e.cbMiastoDo, to);
    }

    // Plays the tariff register: picks the tariff and presses "&Wybierz".
    void pickInRegister(int tariff, int expectedKind)
    {
        scriptedModalRunner().expect<TfrmStawkiTaryfowe>([=](TfrmStawkiTaryfowe &f) {
            EXPECT_EQ(f.cbFilter->currentIndex(), expectedKind);
            f.frameListView1->lvMain->selectByKey(tariff);
            f.btnOk->click();
            return f.result();
        });
    }

    int a = 0;
    int b = 0;
    int c = 0;
    int d = 0;
};

} // namespace

TEST_F(OrderPricing, ARouteSavedWithItsDistanceIsFoundBackwardsButNotThroughAnotherCity)
{
    auto first = newOrder();
    Typing::into(first->seOdleglosc, QStringLiteral("55"));
    Typing::into(first->seKMLadownych, QStringLiteral("55"));
    route(*first, a, b, c);
    // An unknown route: both distance fields go to 0.
    EXPECT_EQ(first->seOdleglosc->value(), 0);
    EXPECT_EQ(first->seKMLadownych->value(), 0);
    Typing::into(first->seOdleglosc, QStringLiteral("310"));
    save(*first);
    EXPECT_EQ(first->result(), TfrmRODefault::mrOk);
    EXPECT_EQ(db.count(QStringLiteral("ODLEGLOSCI")), 1);

    auto back = newOrder();
    route(*back, c, b, a);
    EXPECT_EQ(back->seOdleglosc->value(), 310);
    EXPECT_EQ(back->seKMLadownych->value(), 310);
    choose(back->cbMiastoPrzez, d);
    EXPECT_EQ(back->seOdleglosc->value(), 0);
    EXPECT_EQ(back->seKMLadownych->value(), 0);

    // A known route is not stored twice; a distance of 0 is never stored.
    route(*back, c, b, a);
    save(*back);
    auto unknown = newOrder();
    route(*unknown, a, d, c);
    save(*unknown);
    EXPECT_EQ(db.count(QStringLiteral("ODLEGLOSCI")), 1);
    EXPECT_EQ(db.count(QStringLiteral("ZLECENIA_PRZYCH")), 3);
}

TEST_F(OrderPricing, TheRevenueTariffComesFromOwnTariffsAndBringsItsFourRates)
{
    const int own = addTariff(db.connection(), {.name = QStringLiteral("Krajowa 2024"), .own = 1,
                                                .perTonne = 40.0, .perLoadedKm = 1.235});
    auto e = newOrder();
    Typing::click(e->rbStawkaTaryfowa);
    Typing::into(e->edStawkaIloscGodzin, QStringLiteral("99"));
    Typing::into(e->seKMLadownych, QStringLiteral("100"));
    Typing::into(e->seKMPustych, QStringLiteral("2"));
    // Cancelling the register changes nothing.
    scriptedModalRunner().expect<TfrmStawkiTaryfowe>([](TfrmStawkiTaryfowe &f) {
        f.btnCancel->click();
        return f.result();
    });
    e->acTaryfa->trigger();
    EXPECT_EQ(e->tariffKey(), 0);
    EXPECT_DOUBLE_EQ(e->edStawkaKMLadowny->value(), 0.0);
    EXPECT_DOUBLE_EQ(e->edStawkaIloscGodzin->value(), 99.0);
    pickInRegister(own, 1);
    e->acTaryfa->trigger();
    EXPECT_TRUE(scriptedModalRunner().allRun());
    EXPECT_EQ(e->tariffKey(), own);
    EXPECT_EQ(e->ceTaryfa->text(), "Krajowa 2024");
    EXPECT_DOUBLE_EQ(e->edStawkaKMLadowny->value(), 1.235);
    EXPECT_DOUBLE_EQ(e->edStawkaKMPusty->value(), 40.0);
    // Zeros of the tariff overwrite what was typed.
    EXPECT_DOUBLE_EQ(e->edStawkaIloscGodzin->value(), 0.0);
    EXPECT_EQ(e->lblStawkaRazem->text(), "203,50");

    // Delete in the field drops the tariff; the rates stay.
    QTest::keyClick(e->ceTaryfa, Qt::Key_Delete);
    EXPECT_EQ(e->tariffKey(), 0);
    EXPECT_TRUE(e->ceTaryfa->text().isEmpty());
    EXPECT_EQ(e->lblStawkaRazem->text(), "203,50");
    pickInRegister(own, 1);
    e->acTaryfa->trigger();
    save(*e);
    const auto saved = lastOrder();
    EXPECT_EQ(saved.IDTARYFY, own);
    EXPECT_DOUBLE_EQ(saved.STAWKA_RAZEM, 203.5);
}

TEST_F(OrderPricing, TheCostTariffKeepsOnlyKeyAndNameAndPricesTheCarrierCost)
{
    const int carriers = addTariff(db.connection(), {.name = QStringLiteral("Spedpol standard"),
                                                     .perLoadedKm = 2.0, .perPallet = 10.0});
    auto e = newOrder();
    Typing::into(e->seKMLadownych, QStringLiteral("100"));
    Typing::into(e->seIloscPalet, QStringLiteral("3"));
    Typing::into(e->seKwota, QStringLiteral("500"));
    Typing::click(e->rgKosztTaryfa);
    pickInRegister(carriers, 0);
    e->acKosztTaryfa->trigger();
    EXPECT_EQ(e->costTariffKey(), carriers);
    EXPECT_EQ(e->ceKosztTaryfa->text(), "Spedpol standard");
    EXPECT_DOUBLE_EQ(e->edStawkaKMLadowny->value(), 0.0);
    EXPECT_EQ(e->lblStawkaRazem->text(), "500,00");
    save(*e);
    const auto saved = lastOrder();
    EXPECT_EQ(saved.IDTARYFYKOSZT, carriers);
    EXPECT_DOUBLE_EQ(saved.KOSZTRAZEM, 230.0);
}

TEST_F(OrderPricing, APriceListEntryFillsTheAgreedAmountFromTheLookUp)
{
    Connection &c = db.connection();
    const int row = addKilometreRange(c, 0, 100);
    const int column = addKilogramRange(c, 0, 24000);
    const int key = addGroup(c, QStringLiteral("Kluczowi"));
    addGroup(c, QStringLiteral("Stary"), true);
    addCell(c, {.group = 0, .row = row, .column = column, .amount = 850});
    addCell(c, {.group = key, .row = row, .column = column, .amount = 700});

    auto e = newOrder();
    const QList<QAction *> entries = e->pmCennik->actions();
    ASSERT_EQ(entries.size(), 2);
    EXPECT_EQ(entries[0]->text(), " --- GŁÓWNY ---");
    EXPECT_EQ(entries[0]->data().toInt(), 0);
    EXPECT_EQ(entries[1]->text(), "Kluczowi");
    EXPECT_EQ(entries[1]->data().toInt(), key);

    Typing::click(e->rbStawkaTaryfowa);
    Typing::into(e->seOdleglosc, QStringLiteral("100"));
    Typing::into(e->seKMPustych, QStringLiteral("12,345"));
    entries[1]->trigger();
    EXPECT_TRUE(e->rbStawkaUmowna->isChecked());
    EXPECT_DOUBLE_EQ(e->seKwota->value(), 700.0);
    EXPECT_EQ(e->lblStawkaRazem->text(), "700,00");
    entries[0]->trigger();
    EXPECT_DOUBLE_EQ(e->seKwota->value(), 850.0);
    Typing::into(e->seOdleglosc, QStringLiteral("101"));
    entries[0]->trigger();
    EXPECT_DOUBLE_EQ(e->seKwota->value(), 0.0);
    EXPECT_TRUE(scriptedMessages().shown().empty());
}

TEST_F(OrderPricing, TheCityButtonOpensTheDistanceRegisterAndKeepsTheChosenCities)
{
    auto e = newOrder();
    choose(e->cbMiastoOd, d);
    scriptedModalRunner().expect<TfrmMiasta>([&](TfrmMiasta &f) {
        addCity(db.connection(), {.name = QStringLiteral("Gdańsk")});
        return f.result() == 0 ? 2 : f.result();
    });
    e->btnMiastoOd->click();
    EXPECT_TRUE(scriptedModalRunner().allRun());
    EXPECT_EQ(e->cbMiastoOd->currentData().toInt(), d);
    EXPECT_GE(e->cbMiastoDo->findText(QStringLiteral("Gdańsk")), 0);
}
