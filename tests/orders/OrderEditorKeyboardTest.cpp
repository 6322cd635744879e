#include "OrdersFixture.h"

#include "ScriptedMessages.h"
#include "ScriptedModalRunner.h"
#include "TBitBtn.h"
#include "TDateEdit.h"
#include "TLimitedSpinEdit.h"
#include "TNumberEdit.h"
#include "TfrmAddEditZlecenia_Przych.h"
#include "Typing.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>

namespace {

using Editor = TfrmAddEditZlecenia_Przych;

// The order editor driven from the keyboard only, as a dispatcher does.
class OrderEditorKeyboard : public OrdersFixture
{
protected:
    void SetUp() override
    {
        client = TestData::addContractor(db.connection(), QStringLiteral("Agromax"));
        carrier = TestData::addContractor(db.connection(), QStringLiteral("Spedpol"));
    }

    // Opens the order (a new one for key 0) in the editor; the handler
    // plays the dispatcher.
    int addOrder(const std::function<void(Editor &)> &user, int key = 0)
    {
        auto form = TfrmRODefault::create<Editor>(nullptr, key, key ? Editor::Edit : Editor::Add);
        scriptedModalRunner().expect<Editor>([&](Editor &editor) {
            Typing::activate(&editor);
            user(editor);
            return editor.result();
        });
        return form->showModal();
    }

    // Alt+Z, "Zapisz i zamknij"; true when the editor closed.
    static bool saveAndClose(Editor &editor)
    {
        Typing::accelerator(Qt::Key_Z);
        return Typing::closes(&editor);
    }

    int client = 0;
    int carrier = 0;
};

} // namespace

TEST_F(OrderEditorKeyboard, AmountsTypedThenAltZAreSaved)
{
    const int result = addOrder([&](Editor &e) {
        Typing::into(e.seKwota, QStringLiteral("1500"));
        EXPECT_EQ(e.lblStawkaRazem->text(), QStringLiteral("1\u00A0500,00"));
        Typing::into(e.seKosztKwota, QStringLiteral("1 200,5"));
        // The focus is still in the cost field: nothing has left it yet.
        EXPECT_EQ(QApplication::focusWidget(), e.seKosztKwota);
        EXPECT_TRUE(saveAndClose(e));
    });
    EXPECT_EQ(result, TfrmRODefault::mrOk);
    const TZlecenia_przychObj o = lastOrder();
    EXPECT_DOUBLE_EQ(o.KWOTA, 1500.0);
    EXPECT_DOUBLE_EQ(o.STAWKA_RAZEM, 1500.0);
    EXPECT_DOUBLE_EQ(o.KOSZTKWOTA, 1200.5);
    EXPECT_DOUBLE_EQ(o.KOSZTRAZEM, 1200.5);
}

TEST_F(OrderEditorKeyboard, AnEditedOrderKeepsWhatWasTypedLastWhateverClosesIt)
{
    TZlecenia_przychObj order(db.connection());
    order.NUMER = 12;
    order.KWOTA = 100.0;
    order.Insert();
    const int result = addOrder(
        [](Editor &e) {
            Typing::into(e.seKwota, QStringLiteral("250"));
            Typing::click(e.btnOk);
        },
        order.GetMaxId());
    EXPECT_EQ(result, TfrmRODefault::mrOk);
    EXPECT_DOUBLE_EQ(lastOrder().KWOTA, 250.0);
}

TEST_F(OrderEditorKeyboard, DatesAreTypedInEachUsualForm)
{
    const QDate expected(2026, 11, 25);
    for (const auto &[loading, unloading] :
         {std::pair{"2026-11-25", "25.11.2026"}, std::pair{"25.11.26", "20261125"}}) {
        addOrder([&](Editor &e) {
            Typing::into(e.deAwizo, QString::fromLatin1(loading));
            Typing::press(Qt::Key_Tab);
            EXPECT_EQ(e.deAwizo->text(), "2026-11-25");
            Typing::into(e.deRozladunek, QString::fromLatin1(unloading));
            EXPECT_TRUE(saveAndClose(e));
        });
        const TZlecenia_przychObj o = lastOrder();
        EXPECT_EQ(o.DATA.date(), expected) << loading;
        EXPECT_EQ(o.DOSTARCZENIE.date(), expected) << unloading;
    }
    EXPECT_TRUE(scriptedMessages().shown().empty());
}

TEST_F(OrderEditorKeyboard, AnEmptyDateStaysNoDate)
{
    addOrder([&](Editor &e) {
        Typing::into(e.deAwizo, QStringLiteral("25.11.2026"));
        Typing::into(e.deAwizo, QString());
        EXPECT_TRUE(saveAndClose(e));
    });
    EXPECT_TRUE(lastOrder().DATA.isNull());
    EXPECT_TRUE(lastOrder().AWIZO.isNull());
}

TEST_F(OrderEditorKeyboard, ANonDateIsNamedKeptForCorrectionAndNeverSaved)
{
    const QString message = QStringLiteral(
        "Pole „Data” (Załadunek): „32.11.2026” nie jest datą. Wpisz datę jako rrrr-mm-dd, "
        "dd.mm.rrrr, dd.mm.rr lub rrrrmmdd.");
    const int result = addOrder([&](Editor &e) {
        Typing::into(e.deAwizo, QStringLiteral("32.11.2026"));
        // Tab leaves the field; the message follows.
        scriptedMessages().expect(MessageService::Ok);
        Typing::press(Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), e.meAwizo);
        QCoreApplication::processEvents();
        ASSERT_EQ(scriptedMessages().shown().size(), 1u);
        EXPECT_EQ(scriptedMessages().shown()[0].text, message);
        EXPECT_EQ(scriptedMessages().shown()[0].caption, "Błąd");
        EXPECT_EQ(e.deAwizo->text(), "32.11.2026");

        // Saving names it again and brings the dispatcher back to it.
        scriptedMessages().expect(MessageService::Ok);
        Typing::accelerator(Qt::Key_Z);
        EXPECT_TRUE(e.isVisible());
        ASSERT_EQ(scriptedMessages().shown().size(), 2u);
        EXPECT_EQ(scriptedMessages().shown()[1].text, message);
        EXPECT_EQ(QApplication::focusWidget(), e.deAwizo);
        EXPECT_EQ(e.deAwizo->text(), "32.11.2026");
        EXPECT_EQ(db.count(QStringLiteral("ZLECENIA_PRZYCH")), 0);

        Typing::keys(QStringLiteral("30.11.2026"));
        EXPECT_TRUE(saveAndClose(e));
    });
    EXPECT_EQ(result, TfrmRODefault::mrOk);
    EXPECT_EQ(lastOrder().DATA.date(), QDate(2026, 11, 30));
}

TEST_F(OrderEditorKeyboard, UpInAnEmptyDateStartsFromTodayAndAYearCanThenBeTyped)
{
    addOrder([&](Editor &e) {
        e.deAwizo->setFocus();
        Typing::press(Qt::Key_Up);
        EXPECT_EQ(e.deAwizo->date(), QDate::currentDate());
        // The dispatcher selects the year and types another one over it.
        Typing::press(Qt::Key_Home);
        for (int i = 0; i < 4; ++i)
            Typing::press(Qt::Key_Right, Qt::ShiftModifier);
        Typing::keys(QStringLiteral("2030"));
        EXPECT_TRUE(saveAndClose(e));
    });
    const QDate today = QDate::currentDate();
    EXPECT_EQ(lastOrder().DATA.date(), QDate(2030, today.month(), today.day()));
}

TEST_F(OrderEditorKeyboard, LettersAreRefusedAsTheyAreTyped)
{
    addOrder([&](Editor &e) {
        Typing::into(e.seKwota, QStringLiteral("1O00"));
        EXPECT_EQ(e.seKwota->text(), "100");
        Typing::into(e.seKosztKwota, QStringLiteral("12abc,5x"));
        EXPECT_EQ(e.seKosztKwota->text(), "12,5");
        Typing::into(e.seOdleglosc, QStringLiteral("-5abc"));
        EXPECT_EQ(e.seOdleglosc->text(), "5");
        Typing::into(e.seKMPustych, QStringLiteral("1,2345"));
        EXPECT_EQ(e.seKMPustych->text(), "1,234");
        EXPECT_TRUE(saveAndClose(e));
    });
    const TZlecenia_przychObj o = lastOrder();
    EXPECT_DOUBLE_EQ(o.KWOTA, 100.0);
    EXPECT_DOUBLE_EQ(o.KOSZTKWOTA, 12.5);
    EXPECT_EQ(o.ODLEGLOSC, 5);
    EXPECT_DOUBLE_EQ(o.KM_PUSTE, 1.234);
}

TEST_F(OrderEditorKeyboard, ANumberOutOfRangeIsNamedNotClipped)
{
    addOrder([&](Editor &e) {
        Typing::into(e.seOdleglosc, QStringLiteral("150000"));
        scriptedMessages().expect(MessageService::Ok);
        Typing::accelerator(Qt::Key_Z);
        EXPECT_TRUE(e.isVisible());
        ASSERT_EQ(scriptedMessages().shown().size(), 1u);
        EXPECT_EQ(scriptedMessages().shown()[0].text,
                  QStringLiteral("Pole „Odległość”: „150000” jest poza zakresem. Wpisz liczbę "
                                 "od 0 do 99\u00A0999."));
        EXPECT_EQ(e.seOdleglosc->text(), "150000");
        EXPECT_EQ(db.count(QStringLiteral("ZLECENIA_PRZYCH")), 0);
        Typing::into(e.seOdleglosc, QStringLiteral("15000"));
        EXPECT_TRUE(saveAndClose(e));
    });
    EXPECT_EQ(lastOrder().ODLEGLOSC, 15000);
}

TEST_F(OrderEditorKeyboard, EnterMovesThroughTheFieldsAndNeverPressesAButton)
{
    const int result = addOrder([&](Editor &e) {
        EXPECT_EQ(QApplication::focusWidget(), e.seNumerKolejny);
        QList<QWidget *> path;
        // Down to the description, where Enter is a new line.
        while (path.size() < 40 && QApplication::focusWidget() != e.memOpisDod) {
            path.append(QApplication::focusWidget());
            Typing::press(Qt::Key_Return);
        }
        for (QWidget *stop : path)
            EXPECT_EQ(qobject_cast<QAbstractButton *>(stop), nullptr)
                << stop->objectName().toStdString();
        const auto after = [&](QWidget *field) { return path.value(path.indexOf(field) + 1); };
        EXPECT_EQ(after(e.seNumerKolejny), e.edPrzeladunek);
        EXPECT_EQ(after(e.cbKlient), e.cbPrzewoznik);
        EXPECT_EQ(after(e.seKwota), e.seKosztKwota);
        EXPECT_EQ(after(e.edNrListu), nullptr);   // the description came next
        EXPECT_EQ(QApplication::focusWidget(), e.memOpisDod);
        EXPECT_TRUE(e.isVisible());
        EXPECT_EQ(e.result(), 0);
    });
    EXPECT_EQ(result, 0);
    EXPECT_TRUE(scriptedModalRunner().allRun());
    EXPECT_EQ(db.count(QStringLiteral("ZLECENIA_PRZYCH")), 0);
}
