// The register's road card, carrier's invoice and statements menu.
#include "CarrierInvoiceList.h"
#include "OrderListColumns.h"
#include "PdfFileReportOutput.h"
#include "RegisterFixture.h"
#include "ReportOutput.h"
#include "ScriptedMessages.h"
#include "ScriptedModalRunner.h"
#include "TBitBtn.h"
#include "TDateEdit.h"
#include "TNumberEdit.h"
#include "TRadioGroup.h"
#include "TestData.h"
#include "TframeListView.h"
#include "TfrmFaktPrzew.h"
#include "TfrmKartaDrogowa.h"
#include "TfrmWybierzDatyAndKontrahenta.h"
#include "TfrmWybierzDatyAndUsera1.h"
#include "TfrmWydrukiPrzewoz.h"
#include "TfrmWyborKontrachentDaty.h"
#include "TfrmWyborKontrachentDaty1.h"
#include "TfrmWyborWspolnika.h"
#include "WindowScript.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>
#include <QScopeGuard>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

namespace {

using Col = OrderListColumns::Column;

void click(QAbstractButton *button)
{
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
}

} // namespace

class RegisterCarriers : public RegisterFixture
{
protected:
    int firstCard()
    {
        return db.scalar(QStringLiteral("SELECT MIN(ID_KARTY_DR) FROM KARTY_DR")).toInt();
    }

    // The road-card choice answers with the card, chosen with the arrow keys.
    static void chooseCard(int card)
    {
        scriptedModalRunner().expect<TfrmKartaDrogowa>([card](TfrmKartaDrogowa &dialog) {
            click(dialog.rbKarta->button(1));
            for (int i = 0; i < dialog.cbKarta->count()
                 && dialog.cbKarta->currentData().toInt() != card;
                 ++i)
                QTest::keyClick(dialog.cbKarta, Qt::Key_Down);
            EXPECT_EQ(dialog.cbKarta->currentData().toInt(), card);
            click(dialog.btnWykonaj);
            return dialog.result();
        });
    }

    // The road-card module's library is found through Haulix.ini beside
    // the program, as the host's own is.
    void useTheBuiltLibraries()
    {
        const QString ini = QCoreApplication::applicationDirPath() + QStringLiteral("/Haulix.ini");
        if (QFile::exists(ini))
            return;
        QSettings settings(ini, QSettings::IniFormat);
        settings.setValue(QStringLiteral("AppPath"),
                          QString(QCoreApplication::applicationDirPath() + u'/'));
        m_ini = ini;
    }
    void TearDown() override
    {
        if (!m_ini.isEmpty())
            QFile::remove(m_ini);
    }

    QString m_ini;
};

TEST_F(RegisterCarriers, TheRoadCardActionNeedsARowAndTheSetting)
{
    const int key = addOrder();
    auto form = openRegister();
    ASSERT_TRUE(form->KartaZeZlecen());
    form->frameListView1->lvMain->setSelectedIndex(-1);
    EXPECT_FALSE(form->acKarta->isEnabled());
    EXPECT_FALSE(form->btnKarta->isEnabled());
    select(*form, key);
    EXPECT_TRUE(form->btnKarta->isEnabled());

    db.exec(QStringLiteral("UPDATE KONFIGURACJA SET VALUE_INT=0 WHERE POLE='KartaZeZlecen'"));
    form = openRegister();
    select(*form, key);
    EXPECT_FALSE(form->KartaZeZlecen());
    EXPECT_FALSE(form->acKarta->isEnabled());
    form->acKarta->trigger();
    EXPECT_TRUE(scriptedModalRunner().ran().empty());
}

TEST_F(RegisterCarriers, ANewCardOnlyChecksTheRightToEdit)
{
    const int key = addOrder([](TZlecenia_przychObj &o) { o.NR_KARTY = 4; });
    const TZlecenia_przychObj before = order(key);
    const auto newCard = [] {
        scriptedModalRunner().expect<TfrmKartaDrogowa>([](TfrmKartaDrogowa &dialog) {
            click(dialog.btnWykonaj);
            return dialog.result();
        });
    };
    auto form = openRegister();
    select(*form, key);
    newCard();
    QTest::mouseClick(form->btnKarta, Qt::LeftButton);
    EXPECT_TRUE(scriptedModalRunner().allRun());
    EXPECT_TRUE(scriptedMessages().shown().empty());
    EXPECT_EQ(order(key).NR_KARTY, 4);
    EXPECT_EQ(order(key).IDKARTYDR, before.IDKARTYDR);

    setUser(3);   // may only run the register
    form = openRegister();
    select(*form, key);
    newCard();
    scriptedMessages().expect();
    form->acKarta->trigger();
    expectRefusals(1);
    EXPECT_EQ(order(key).NR_KARTY, 4);
}

TEST_F(RegisterCarriers, ACardSavedInTheRoadCardModuleGoesIntoTheOrderACancelledOneDoesNot)
{
    useTheBuiltLibraries();
    const int key = addOrder([](TZlecenia_przychObj &o) { o.NR_KARTY = 0; });
    const int card = firstCard();
    auto form = openRegister();
    select(*form, key);

    WindowScript script;
    script.then(QStringLiteral("TfrmAddEditKartyDrogowe"),
                [](QWidget &window) { WindowScript::click(window, QStringLiteral("btnCancel")); });
    chooseCard(card);
    form->acKarta->trigger();
    EXPECT_TRUE(script.finished()) << script.seen().join(u' ').toStdString();
    EXPECT_EQ(order(key).NR_KARTY, 0);
    EXPECT_EQ(cell(*form, key, Col::NrKarty), "00000");

    script.then(QStringLiteral("TfrmAddEditKartyDrogowe"),
                [](QWidget &window) { WindowScript::click(window, QStringLiteral("btnOk")); });
    chooseCard(card);
    form->acKarta->trigger();
    EXPECT_TRUE(script.finished()) << script.seen().join(u' ').toStdString();
    EXPECT_EQ(order(key).NR_KARTY, card);
    EXPECT_EQ(cell(*form, key, Col::NrKarty), QStringLiteral("%1").arg(card, 5, 10, QChar(u'0')));
    EXPECT_TRUE(scriptedMessages().shown().empty());
}

TEST_F(RegisterCarriers, TheCarriersInvoiceIsEnteredForTheSelectedOrderWhichIsShownAgain)
{
    const int key = addOrder([](TZlecenia_przychObj &o) {
        o.NUMER_FAKT_PRZEW = QStringLiteral("FV 7/2026");
        o.KWOTA_FAKT_PRZEW = 300.0;
        o.NRRAMPY = 1;
    });
    auto form = openRegister();
    select(*form, key);
    scriptedModalRunner().expect<TfrmFaktPrzew>([key](TfrmFaktPrzew &dialog) {
        EXPECT_EQ(dialog.orderKey(), key);
        EXPECT_EQ(dialog.EdNumerFakt->text(), "FV 7/2026");
        EXPECT_TRUE(dialog.CBZaplacono->isChecked());
        dialog.EdNumerFakt->setFocus();
        QTest::keyClick(dialog.EdNumerFakt, Qt::Key_End);
        QTest::keyClicks(dialog.EdNumerFakt, QStringLiteral("/K"));
        click(dialog.CBZaplacono);
        QTest::mouseClick(dialog.btnOk, Qt::LeftButton);
        return dialog.result();
    });
    // Alt+B, as the button's caption says.
    showActive(*form);
    QTest::keyClick(form->frameListView1->lvMain, Qt::Key_B, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([] { return scriptedModalRunner().allRun(); }));
    EXPECT_EQ(order(key).NUMER_FAKT_PRZEW, "FV 7/2026/K");
    EXPECT_EQ(order(key).NRRAMPY, 0);
    EXPECT_EQ(cell(*form, key, Col::FaktPrzewoznika), "FV 7/2026/K");
    EXPECT_EQ(form->selectedOrder(), key);

    // Without a selected order there is no invoice to enter.
    form->frameListView1->lvMain->setSelectedIndex(-1);
    QTest::mouseClick(form->BtnFakturaObca, Qt::LeftButton);
    EXPECT_EQ(scriptedModalRunner().ran().size(), 1u);
}

TEST_F(RegisterCarriers, TheStatementsMenuOpensTheCarriersListsForTheSelectedCarrier)
{
    const int carrier
        = db.scalar(QStringLiteral("SELECT MAX(IDPRZEWOZNIK) FROM ZLECENIA_PRZYCH")).toInt();
    const int key = addOrder([carrier](TZlecenia_przychObj &o) { o.IDPRZEWOZNIK = carrier; });
    auto form = openRegister();
    select(*form, key);

    QTest::mouseClick(form->btnZest, Qt::LeftButton);
    EXPECT_TRUE(form->pmZestaw->isVisible());
    form->pmZestaw->hide();

    using Mode = CarrierInvoiceList::Mode;
    const Mode modes[] = {Mode::Unpaid, Mode::Paid, Mode::Issued};
    for (int i = 0; i < 3; ++i) {
        scriptedModalRunner().expect<TfrmWydrukiPrzewoz>(
            [carrier, mode = modes[i]](TfrmWydrukiPrzewoz &dialog) {
                EXPECT_EQ(dialog.mode(), mode);
                EXPECT_EQ(dialog.CBKontrahenci->currentData().toInt(), carrier);
                EXPECT_EQ(dialog.deOd->isVisible(), mode != Mode::Unpaid);
                QTest::mouseClick(dialog.btnCancel, Qt::LeftButton);
                return dialog.result();
            });
        form->pmZestaw->actions().at(3 + i)->trigger();
    }
    EXPECT_TRUE(scriptedModalRunner().allRun());

    QTemporaryDir dir;
    ReportOutputs::Scoped<PdfFileReportOutput> files{dir.path()};
    form->pmZestaw->actions().at(6)->trigger();
    ASSERT_EQ(files->deliveries().size(), 1u);
    EXPECT_EQ(files->deliveries()[0].kind, PdfFileReportOutput::Kind::Preview);
    EXPECT_EQ(files->deliveries()[0].title, " Faktury przewoźników niezapłacone ");
}

TEST_F(RegisterCarriers, TheStatementsOfClientsCarriersAndDispatchersStartFromTheSelectedOrder)
{
    const int client = TestData::addContractor(db.connection(), QStringLiteral("KLIENT"));
    const int carrier = TestData::addContractor(db.connection(), QStringLiteral("PRZEWOŹNIK"));
    const int key = addOrder([=](TZlecenia_przychObj &o) {
        o.IDKONTRAHENTA = client;
        o.IDPRZEWOZNIK = carrier;
    });
    auto form = openRegister();
    select(*form, key);

    scriptedModalRunner().expect<TfrmWyborKontrachentDaty>([](TfrmWyborKontrachentDaty &dialog) {
        EXPECT_EQ(dialog.cbWybor->currentText(), "KLIENT");
        QTest::mouseClick(dialog.btnCancel, Qt::LeftButton);
        return dialog.result();
    });
    form->pmZestaw->actions().at(1)->trigger();
    scriptedModalRunner().expect<TfrmWyborKontrachentDaty1>([](TfrmWyborKontrachentDaty1 &dialog) {
        EXPECT_EQ(dialog.cbWybor->currentText(), "PRZEWOŹNIK");
        QTest::mouseClick(dialog.btnCancel, Qt::LeftButton);
        return dialog.result();
    });
    form->pmZestaw->actions().at(2)->trigger();
    using Kind = TfrmWybierzDatyAndUsera1::Kind;
    const Kind kinds[] = {Kind::Rates, Kind::Invoices, Kind::CarrierInvoices};
    for (int i = 0; i < 3; ++i) {
        scriptedModalRunner().expect<TfrmWybierzDatyAndUsera1>(
            [kind = kinds[i]](TfrmWybierzDatyAndUsera1 &dialog) {
                EXPECT_EQ(dialog.kind(), kind);
                EXPECT_EQ(dialog.lblHeader->text(), TfrmWybierzDatyAndUsera1::title(kind));
                QTest::mouseClick(dialog.btnCancel, Qt::LeftButton);
                return dialog.result();
            });
        form->pmZestaw->actions().at(9 + i)->trigger();
    }
    EXPECT_TRUE(scriptedModalRunner().allRun());

    // The rate differences: the period, no executor to choose, a preview.
    QTemporaryDir dir;
    ReportOutputs::Scoped<PdfFileReportOutput> files{dir.path()};
    scriptedModalRunner().expect<TfrmWybierzDatyAndKontrahenta>(
        [](TfrmWybierzDatyAndKontrahenta &dialog) {
            EXPECT_FALSE(dialog.cbWlasny->isVisible());
            QTest::mouseClick(dialog.btnOk, Qt::LeftButton);
            return dialog.result();
        });
    form->pmZestaw->actions().at(7)->trigger();
    ASSERT_EQ(files->deliveries().size(), 1u);
    EXPECT_TRUE(files->deliveries()[0].title.startsWith("Faktury przewożnika i własne od "));
}

TEST_F(RegisterCarriers, IssuedInvoicesAndTheHiddenPartnersEntryPreviewTheirStatements)
{
    auto form = openRegister();
    QAction *issued = form->pmZestaw->actions().at(0);
    QAction *partners = form->pmZestaw->actions().at(8);
    EXPECT_TRUE(issued->isVisible());
    EXPECT_FALSE(partners->isVisible());
    QTemporaryDir dir;
    ReportOutputs::Scoped<PdfFileReportOutput> files{dir.path()};
    scriptedModalRunner().expect<TfrmWybierzDatyAndKontrahenta>(
        [](TfrmWybierzDatyAndKontrahenta &dialog) {
            QTest::mouseClick(dialog.btnOk, Qt::LeftButton);
            return dialog.result();
        });
    issued->trigger();
    scriptedModalRunner().expect<TfrmWyborWspolnika>([](TfrmWyborWspolnika &dialog) {
        QTest::mouseClick(dialog.btnOk, Qt::LeftButton);
        return dialog.result();
    });
    partners->trigger();
    EXPECT_TRUE(scriptedModalRunner().allRun());
    ASSERT_EQ(files->deliveries().size(), 2u);
    EXPECT_TRUE(files->deliveries()[0].title.startsWith(
        QStringLiteral("ZESTAWIENIE FAKTUR KRAJOWYCH  (WYKONAWCA OBCY) OD ")));
    EXPECT_EQ(files->deliveries()[1].title, "Zestawienie zleceń w podziale na kontrahenta");
}
