#include "TframeListView.h"
#include "Reminders.h"
#include "ScriptedMessages.h"
#include "ScriptedModalRunner.h"
#include "SiblingFixture.h"
#include "SiblingRun.h"
#include "TBitBtn.h"
#include "TListView.h"
#include "TfrmAddEditTerminy.h"
#include "TfrmPokazTerminy.h"
#include "TfrmTerminarz.h"

#include <QAction>
#include <QCalendarWidget>
#include <QTextCharFormat>

namespace {

class Scheduler : public SiblingTest
{
protected:
    Scheduler()
    {
        grant({QStringLiteral("TfrmTerminarz"), QStringLiteral("TfrmPokazTerminy")});
        const QDate today = QDate::currentDate();
        overdue = add(1, today.addDays(-3), "", "Zaległy telefon", 0);
        doneBefore = add(1, today.addDays(-1), "08:00", "Zrobione wczoraj", 1);
        todayLater = add(1, today, "15:00", "Awizacja Gdynia", 0);
        todayAllDay = add(1, today, "", "Przegląd pojazdu", 0);
        tomorrow = add(1, today.addDays(1), "09:30", "Odebrać CMR", 0);
        nextMonth = add(1, QDate(today.year(), today.month(), 1).addMonths(1), "", "Polisa", 0);
        someoneElses = add(2, today, "10:00", "Cudzy termin", 0);
    }

    int add(int user, QDate day, const char *time, const char *text, int done)
    {
        TTerminyObj reminder(db.connection());
        reminder.ID_USER = user;
        reminder.DATA = DateTime::fromDate(day);
        reminder.GODZINA = QString::fromLatin1(time);
        reminder.TRESC = QString::fromUtf8(text);
        reminder.WYKONANE = done;
        EXPECT_TRUE(reminder.Insert());
        return lastKey(QStringLiteral("TERMINY"), QStringLiteral("ID_TERMINU"));
    }

    static QList<int> keys(TfrmRegister &form)
    {
        QList<int> result;
        const TListView &list = *form.frameListView1->lvMain;
        for (int row = 0; row < list.itemCount(); ++row)
            result << list.key(row);
        return result;
    }

    int overdue = 0, doneBefore = 0, todayLater = 0, todayAllDay = 0, tomorrow = 0;
    int nextMonth = 0, someoneElses = 0;
};

} // namespace

TEST_F(Scheduler, TodaysListHoldsTheUsersDueRemindersNotDoneWholeDayFirst)
{
    auto form = TfrmRODefault::create<TfrmPokazTerminy>(nullptr, TfrmRegister::Browse, 0);
    EXPECT_EQ(keys(*form), (QList<int>{overdue, todayAllDay, todayLater}));

    // Done, it leaves the list; marked again, it comes back.
    form->frameListView1->lvMain->selectByKey(todayLater);
    form->acWykonane->trigger();
    EXPECT_EQ(keys(*form), (QList<int>{overdue, todayAllDay}));
    EXPECT_EQ(db.scalar(QStringLiteral("SELECT WYKONANE FROM TERMINY WHERE ID_TERMINU = %1")
                            .arg(todayLater)),
              "1");
    EXPECT_TRUE(Reminders::setDone(db.connection(), todayLater, false));
    form->frameListView1->Refresh();
    EXPECT_EQ(keys(*form).size(), 3);

    // The entry shows the list of the user it is given.
    QList<int> listed;
    scriptedModalRunner().expect<TfrmPokazTerminy>([&](TfrmPokazTerminy &shown) {
        listed = keys(shown);
        click(shown.btnOk);
        return shown.result();
    });
    EXPECT_EQ(SiblingRun::window<TfrmPokazTerminy>(2, &db.connection(), &transaction), 1);
    EXPECT_EQ(listed, QList<int>{someoneElses});
}

TEST_F(Scheduler, TheCalendarListsTheMonthOfItsPageAndAddsOnTheChosenDay)
{
    auto form = TfrmRODefault::create<TfrmTerminarz>(nullptr, TfrmRegister::Browse, 0);
    const QDate today = QDate::currentDate();
    QList<int> thisMonth;
    for (const auto &[key, day] : {std::pair{overdue, today.addDays(-3)},
                                   {doneBefore, today.addDays(-1)}, {todayAllDay, today},
                                   {todayLater, today}, {tomorrow, today.addDays(1)}}) {
        if (day.month() == today.month())
            thisMonth << key;
    }
    EXPECT_EQ(keys(*form), thisMonth);
    EXPECT_EQ(form->calTerminarz->dateTextFormat(today).fontWeight(), QFont::Bold);

    form->calTerminarz->showNextMonth();
    EXPECT_EQ(keys(*form), QList<int>{nextMonth});
    EXPECT_NE(form->calTerminarz->dateTextFormat(today).fontWeight(), QFont::Bold);

    // A new reminder is the user's, on the day chosen.
    const QDate day = today.addDays(2);
    form->calTerminarz->setSelectedDate(day);
    scriptedModalRunner().expect<TfrmAddEditTerminy>([](TfrmAddEditTerminy &editor) {
        type(editor.field(QStringLiteral("edTresc")), QStringLiteral("Zamówić paliwo"));
        type(editor.field(QStringLiteral("edGodzina")), QStringLiteral("25:10"));
        scriptedMessages().expect();
        click(editor.btnOk);
        type(editor.field(QStringLiteral("edGodzina")), QStringLiteral("7:05"));
        click(editor.btnOk);
        return editor.result();
    });
    form->acDodaj->trigger();
    EXPECT_TRUE(scriptedMessages().shown().at(0).text.startsWith("Godzina 25:10 nie jest godziną"));
    const TTerminyObj saved = TTerminyObj(db.connection()).SelectById(form->selectedKey());
    EXPECT_EQ(saved.TRESC, "Zamówić paliwo");
    EXPECT_EQ(saved.GODZINA, "07:05");
    EXPECT_EQ(saved.DATA.date(), day);
    EXPECT_EQ(saved.ID_USER, 1);
    EXPECT_EQ(saved.WYKONANE, 0);
}
