#include "ScriptedMessages.h"
#include "TBitBtn.h"
#include "TDateEdit.h"
#include "TLimitedSpinEdit.h"
#include "TNumberEdit.h"
#include "TfrmRODefault.h"
#include "Typing.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCalendarWidget>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace {

const QChar Nbsp(0x00A0);

// A small editor with the kinds of typed fields the module's forms use and
// a button that reads them.
class TypedForm : public TfrmRODefault
{
public:
    TypedForm()
    {
        setObjectName(QStringLiteral("frmTyped"));
        edNazwa = new QLineEdit(pnlClient);
        edNazwa->setMaxLength(20);
        seKwota = new TNumberEdit(QStringLiteral("#,##0.00"), 2, 99999.0, pnlClient);
        seKwota->setObjectName(QStringLiteral("seKwota"));
        edOdleglosc = new TLimitedSpinEdit(pnlClient);
        edOdleglosc->setRange(0, 99999);
        edOdleglosc->setGroupSeparatorShown(true);
        edOdleglosc->setSuffix(QStringLiteral(" km"));
        deData = new TDateEdit(pnlClient);
        btnPrzelicz = new QPushButton(QStringLiteral("&Przelicz"), pnlClient);
        auto *label = new QLabel(QStringLiteral("&Kwota:"), pnlClient);
        label->setBuddy(seKwota);
        auto *layout = new QVBoxLayout(pnlClient);
        for (QWidget *widget : std::initializer_list<QWidget *>{
                 edNazwa, label, seKwota, edOdleglosc, deData, btnPrzelicz})
            layout->addWidget(widget);
        connect(btnPrzelicz, &QPushButton::clicked, this, [this] { readAt = seKwota->value(); });
        setROCloseOnESC(true);
    }

    QLineEdit *edNazwa;
    TNumberEdit *seKwota;
    TLimitedSpinEdit *edOdleglosc;
    TDateEdit *deData;
    QPushButton *btnPrzelicz;
    double readAt = -1.0;
};

std::unique_ptr<TypedForm> shownForm()
{
    auto form = TfrmRODefault::create<TypedForm>();
    Typing::activate(form.get());
    return form;
}

} // namespace

TEST(TypedFields, ANumberShowsItsPatternAndIsEditedPlain)
{
    auto form = shownForm();
    Typing::into(form->seKwota, QStringLiteral("1500"));
    Typing::into(form->edOdleglosc, QStringLiteral("12345"));
    Typing::press(Qt::Key_Tab);
    EXPECT_EQ(form->seKwota->text(), QStringLiteral("1") + Nbsp + QStringLiteral("500,00"));
    EXPECT_EQ(form->edOdleglosc->text(), QStringLiteral("12") + Nbsp + QStringLiteral("345 km"));
    form->seKwota->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(form->seKwota->text(), "1500");
    Typing::press(Qt::Key_Tab);
    EXPECT_EQ(form->seKwota->text(), QStringLiteral("1") + Nbsp + QStringLiteral("500,00"));
    EXPECT_EQ(QApplication::focusWidget(), form->edOdleglosc);
    EXPECT_EQ(form->edOdleglosc->text(), "12345");
    Typing::press(Qt::Key_Up);
    EXPECT_EQ(form->edOdleglosc->value(), 12346);
}

TEST(TypedFields, AValueFollowsTheTypingAndAProgramValueIsStillKeptInRange)
{
    auto form = shownForm();
    std::vector<double> seen;
    QObject::connect(form->seKwota, &TNumberEdit::valueChanged,
                     [&](double value) { seen.push_back(value); });
    Typing::into(form->seKwota, QStringLiteral("12,5"));
    EXPECT_EQ(seen, std::vector<double>({1.0, 12.0, 12.5}));
    form->seKwota->setValue(123456.789);
    EXPECT_DOUBLE_EQ(form->seKwota->value(), 99999.0);
    form->seKwota->setValue(2.675);
    EXPECT_DOUBLE_EQ(form->seKwota->value(), 2.68);
}

TEST(TypedFields, AButtonReadsWhatIsTypedEvenWhenTheFocusNeverLeft)
{
    auto form = shownForm();
    Typing::into(form->seKwota, QStringLiteral("77"));
    Typing::accelerator(Qt::Key_P);
    EXPECT_EQ(form->readAt, 77.0);
}

TEST(TypedFields, AFieldThatCannotBeTakenStopsEveryButtonButCancel)
{
    auto form = shownForm();
    Typing::into(form->edOdleglosc, QStringLiteral("150000"));
    const QString message = QStringLiteral("„150000” jest poza zakresem. Wpisz liczbę od 0 "
                                           "do 99") + Nbsp + QStringLiteral("999.");

    scriptedMessages().expect(MessageService::Ok);
    Typing::click(form->btnPrzelicz);
    EXPECT_EQ(form->readAt, -1.0);
    scriptedMessages().expect(MessageService::Ok);
    Typing::click(form->btnOk);
    EXPECT_TRUE(form->isVisible());
    ASSERT_EQ(scriptedMessages().shown().size(), 2u);
    EXPECT_EQ(scriptedMessages().shown()[1].text, message);
    EXPECT_EQ(QApplication::focusWidget(), form->edOdleglosc);
    EXPECT_EQ(form->edOdleglosc->text(), "150000");
    // Ready to be typed over.
    EXPECT_EQ(form->edOdleglosc->findChild<QLineEdit *>()->selectedText(), "150000");

    Typing::click(form->btnCancel);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(form->result(), TfrmRODefault::mrCancel);
    EXPECT_EQ(scriptedMessages().shown().size(), 2u);
}

TEST(TypedFields, AFieldThatCannotBeTakenIsMarkedWithoutAWordAndEscStillCloses)
{
    auto form = shownForm();
    Typing::into(form->deData, QStringLiteral("2026-02-30"));
    QTest::mouseClick(form->edNazwa, Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(QApplication::focusWidget(), form->edNazwa);
    EXPECT_EQ(form->deData->text(), "2026-02-30");
    EXPECT_TRUE(form->deData->problem().contains(u"nie jest datą"));
    EXPECT_EQ(form->deData->toolTip(), form->deData->problem());
    Typing::into(form->deData, QStringLiteral("2026-02-28"));
    EXPECT_TRUE(form->deData->problem().isEmpty());
    EXPECT_TRUE(form->deData->toolTip().isEmpty());

    Typing::into(form->deData, QStringLiteral("31.02.2026"));
    Typing::press(Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible());
    QCoreApplication::processEvents();
    EXPECT_TRUE(scriptedMessages().shown().empty());
}

TEST(TypedFields, TheCalendarPicksADayForAnEmptyField)
{
    auto form = shownForm();
    ASSERT_TRUE(form->deData->isEmpty());
    form->deData->setFocus();
    Typing::press(Qt::Key_F4);
    QCalendarWidget *calendar = form->deData->calendarWidget();
    ASSERT_NE(calendar, nullptr);
    EXPECT_TRUE(calendar->isVisible());
    EXPECT_EQ(calendar->selectedDate(), QDate::currentDate());
    Typing::press(Qt::Key_Right);
    Typing::press(Qt::Key_Return);
    EXPECT_FALSE(calendar->isVisible());
    EXPECT_EQ(form->deData->date(), QDate::currentDate().addDays(1));
    EXPECT_EQ(QApplication::focusWidget(), form->deData);
}

TEST(TypedFields, ADateThatMustBeGivenRefusesTheEmptyField)
{
    auto form = shownForm();
    form->deData->setEmptyAllowed(false);
    Typing::into(form->deData, QStringLiteral("2026-01-02"));
    Typing::into(form->deData, QString());
    scriptedMessages().expect(MessageService::Ok);
    Typing::accelerator(Qt::Key_Z);
    EXPECT_TRUE(form->isVisible());
    ASSERT_EQ(scriptedMessages().shown().size(), 1u);
    EXPECT_EQ(scriptedMessages().shown()[0].text,
              "Wpisz datę jako rrrr-mm-dd, dd.mm.rrrr, dd.mm.rr lub rrrrmmdd.");
    EXPECT_EQ(form->deData->date(), QDate(2026, 1, 2));
}
