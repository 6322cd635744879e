#include "ScriptedMessages.h"
#include "ScriptedModalRunner.h"
#include "SessionFixture.h"
#include "TBitBtn.h"
#include "TLimitedFloatEdit.h"
#include "TLimitedSpinEdit.h"
#include "TListView.h"
#include "TTaryfyprzewoznikaObj.h"
#include "TestData.h"
#include "TframeListView.h"
#include "TfrmAddEditStawkiTaryfowe.h"
#include "TfrmStawkiTaryfowe.h"
#include "Typing.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>

#include <gtest/gtest.h>

namespace {

using namespace TestData;

class TariffRegister : public SessionFixture
{
protected:
    void SetUp() override
    {
        Connection &c = db.connection();
        carrier = addTariff(c, {.name = QStringLiteral("Podwykonawca"), .perTonne = 10.0,
                                .perLoadedKm = 2.7, .perHour = 70.0, .perPallet = 35.0});
        own = addTariff(c, {.name = QStringLiteral("Krajowa standard"), .own = 1, .perTonne = 12.5,
                            .perLoadedKm = 3.2, .perHour = 85.0, .perPallet = 45.0});
        express = addTariff(c, {.name = QStringLiteral("Ekspres"), .own = 1, .perLoadedKm = 4.4,
                                .perHour = 120.0});
        db.exec(QStringLiteral("UPDATE TARYFYPRZEWOZNIKA SET MAGAZYNOWANIE = 35, INNE = 7, "
                               "NUMER_STAWKI = 3 WHERE ID_TARYFYPRZEWOZNIKA = %1")
                    .arg(express));
    }

    std::unique_ptr<TfrmStawkiTaryfowe> open(int current, int kind)
    {
        return TfrmRODefault::create<TfrmStawkiTaryfowe>(nullptr, current, kind);
    }
    static TListView &list(TfrmStawkiTaryfowe &form) { return *form.frameListView1->lvMain; }
    static QStringList captions(TfrmStawkiTaryfowe &form)
    {
        QStringList result;
        for (int row = 0; row < list(form).itemCount(); ++row)
            result << list(form).caption(row);
        return result;
    }
    QString column(int key, const char *name)
    {
        return db.scalar(QStringLiteral("SELECT %1 FROM TARYFYPRZEWOZNIKA WHERE "
                                        "ID_TARYFYPRZEWOZNIKA = %2")
                             .arg(QLatin1String(name))
                             .arg(key));
    }

    int carrier = 0, own = 0, express = 0;
};

} // namespace

TEST_F(TariffRegister, ShowsOnlyTheKindChosenByItsOpenerOrInTheFilter)
{
    auto form = open(0, 0);
    EXPECT_EQ(form->btnOk->text(), "&Wybierz");
    EXPECT_EQ(form->cbFilter->currentText(), "przewoźnika");
    EXPECT_EQ(captions(*form), QStringList{"Podwykonawca"});

    Typing::activate(form.get());
    form->cbFilter->setFocus();
    Typing::keys(QStringLiteral("w"));
    EXPECT_EQ(captions(*form), (QStringList{"Krajowa standard", "Ekspres"}));
    const int row = list(*form).findByKey(own);
    EXPECT_EQ(list(*form).items().texts(row),
              (QStringList{"Krajowa standard", "0", "3,20", "12,50", "45,00", "85,00"}));

    // The opener's kind: 1 and 0 as given, other numbers as 0, -1 and 2 none.
    EXPECT_EQ(open(0, 1)->cbFilter->currentIndex(), 1);
    EXPECT_EQ(open(0, -7)->cbFilter->currentIndex(), 0);
    EXPECT_EQ(open(0, 3)->cbFilter->currentIndex(), 0);
    for (int noKind : {-1, 2}) {
        auto none = open(0, noKind);
        EXPECT_EQ(none->cbFilter->currentIndex(), -1);
        EXPECT_EQ(list(*none).itemCount(), 0);
    }
}

TEST_F(TariffRegister, ChoosingHandsBackTheWholeRecordZerosIncluded)
{
    auto form = open(express, 1);
    ASSERT_EQ(list(*form).selectedIndex(), list(*form).findByKey(express));
    scriptedModalRunner().expect<TfrmStawkiTaryfowe>([](TfrmStawkiTaryfowe &f) {
        f.btnOk->click();
        return f.result();
    });
    ASSERT_EQ(form->showModal(), TfrmRODefault::mrOk);
    const TTaryfyprzewoznikaObj &chosen = form->selectedTariff();
    EXPECT_EQ(chosen.ID_TARYFYPRZEWOZNIKA, express);
    EXPECT_EQ(chosen.NAZWA_STAWKI, "Ekspres");
    EXPECT_EQ(chosen.NUMER_STAWKI, 3);
    EXPECT_DOUBLE_EQ(chosen.KWOTA_ZA_KM, 0.0);
    EXPECT_DOUBLE_EQ(chosen.KWOTA_ZA_KM_LAD, 4.4);
    EXPECT_DOUBLE_EQ(chosen.KWOTA_ZA_GODZ, 120.0);
    EXPECT_DOUBLE_EQ(chosen.KWOTA_ZA_PALETE, 0.0);
    EXPECT_DOUBLE_EQ(chosen.MAGAZYNOWANIE, 35.0);
}

TEST_F(TariffRegister, ChooseWithoutASelectionKeepsTheRegisterOpen)
{
    auto form = open(0, 0);
    list(*form).setSelectedIndex(-1);
    EXPECT_FALSE(form->acPopraw->isEnabled());
    EXPECT_FALSE(form->acUsun->isEnabled());
    EXPECT_FALSE(form->frameListView1->BitBtn4->isEnabled());
    EXPECT_TRUE(form->acDodaj->isEnabled());
    scriptedModalRunner().expect<TfrmStawkiTaryfowe>([](TfrmStawkiTaryfowe &f) {
        f.btnOk->click();
        EXPECT_TRUE(f.isVisible());
        list(f).setSelectedIndex(0);
        EXPECT_TRUE(f.acPopraw->isEnabled());
        EXPECT_TRUE(f.frameListView1->BitBtn6->isEnabled());
        return f.result();
    });
    EXPECT_EQ(form->showModal(), 0);
    EXPECT_FALSE(form->hasSelectedTariff());
    EXPECT_THROW(form->selectedTariff(), std::logic_error);
}

TEST_F(TariffRegister, AddingStoresTheKindAndZeroStorage)
{
    auto form = open(0, 1);
    scriptedModalRunner().expect<TfrmAddEditStawkiTaryfowe>([](TfrmAddEditStawkiTaryfowe &e) {
        EXPECT_EQ(e.cbFilter->currentIndex(), 0);
        EXPECT_TRUE(e.cbFilter->isEnabled());
        Typing::activate(&e);
        EXPECT_EQ(QApplication::focusWidget(), e.cbFilter);
        Typing::keys(QStringLiteral("w\tPaletowa\t"));
        Typing::into(e.seNumerStawki, QStringLiteral("14"));
        Typing::into(e.seStawkaKM, QStringLiteral("2,5"));
        Typing::into(e.seStawkaKMPusty, QStringLiteral("11"));
        Typing::into(e.seStawkaPaleta, QStringLiteral("40"));
        Typing::into(e.seStawkaGodzina, QStringLiteral("90"));
        Typing::accelerator(Qt::Key_Z);
        return e.result();
    });
    form->acDodaj->trigger();
    const QString key
        = db.scalar(QStringLiteral("SELECT MAX(ID_TARYFYPRZEWOZNIKA) FROM TARYFYPRZEWOZNIKA"));
    EXPECT_EQ(db.count(QStringLiteral("TARYFYPRZEWOZNIKA"),
                       QStringLiteral("ID_TARYFYPRZEWOZNIKA = %1 AND NAZWA_STAWKI = 'Paletowa' "
                                      "AND TARYFAWLASNA = 1 AND NUMER_STAWKI = 14 AND "
                                      "KWOTA_ZA_KM_LAD = 2.5 AND KWOTA_ZA_KM = 11 AND "
                                      "KWOTA_ZA_PALETE = 40 AND KWOTA_ZA_GODZ = 90 AND "
                                      "MAGAZYNOWANIE = 0 AND INNE = 0")
                           .arg(key)),
              1);
    EXPECT_TRUE(captions(*form).contains("Paletowa"));
}

TEST_F(TariffRegister, EditingKeepsTheKindStorageAndOther)
{
    auto form = open(0, 1);
    list(*form).setSelectedIndex(list(*form).findByKey(express));
    scriptedModalRunner().expect<TfrmAddEditStawkiTaryfowe>([](TfrmAddEditStawkiTaryfowe &e) {
        EXPECT_EQ(e.cbFilter->currentIndex(), 1);
        EXPECT_FALSE(e.cbFilter->isEnabled());
        EXPECT_EQ(e.edNazwaStawki->text(), "Ekspres");
        EXPECT_DOUBLE_EQ(e.seStawkaKM->value(), 4.4);
        EXPECT_DOUBLE_EQ(e.seStawkaGodzina->value(), 120.0);
        e.cbFilter->setCurrentIndex(0);   // even forced, the kind must stay
        Typing::activate(&e);
        Typing::into(e.edNazwaStawki, QStringLiteral("Ekspres 24h"));
        Typing::into(e.seStawkaKMPusty, QStringLiteral("1,5"));
        Typing::accelerator(Qt::Key_Z);
        return e.result();
    });
    form->acPopraw->trigger();
    EXPECT_EQ(column(express, "TARYFAWLASNA"), "1");
    EXPECT_EQ(column(express, "NAZWA_STAWKI"), "Ekspres 24h");
    EXPECT_EQ(column(express, "KWOTA_ZA_KM").toDouble(), 1.5);
    EXPECT_EQ(column(express, "MAGAZYNOWANIE").toDouble(), 35.0);
    EXPECT_EQ(column(express, "INNE").toDouble(), 7.0);
    EXPECT_EQ(list(*form).caption(list(*form).selectedIndex()), "Ekspres 24h");
}

TEST_F(TariffRegister, DeletingAsksAndRemovesTheRow)
{
    auto form = open(0, 1);
    list(*form).setSelectedIndex(list(*form).findByKey(own));
    scriptedMessages().expect(MessageService::No);
    form->acUsun->trigger();
    EXPECT_EQ(db.count(QStringLiteral("TARYFYPRZEWOZNIKA")), 3);

    scriptedMessages().expect(MessageService::Yes);
    form->acUsun->trigger();
    const auto &asked = scriptedMessages().shown().back();
    EXPECT_EQ(asked.caption, "Usuwanie");
    EXPECT_EQ(asked.text, "Usunąć wybraną pozycję");
    EXPECT_EQ(asked.icon, MessageService::Icon::Question);
    EXPECT_EQ(db.count(QStringLiteral("TARYFYPRZEWOZNIKA"),
                       QStringLiteral("ID_TARYFYPRZEWOZNIKA = %1").arg(own)),
              0);
    EXPECT_EQ(captions(*form), QStringList{"Ekspres"});
}
