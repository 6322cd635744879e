#include "DbError.h"
#include "ErrorLog.h"
#include "ErrorLogs.h"
#include "Privileges.h"
#include "ScriptedMessages.h"
#include "SessionContext.h"
#include "SessionFixture.h"
#include "TDaneFirmy.h"

#include <QObject>

#include <gtest/gtest.h>

// Forms as the privilege tables know them: by their C++ class names.
class TfrmZlecPrzychodzace : public QObject
{
    Q_OBJECT
};

class TfrmMiasta : public QObject
{
    Q_OBJECT
};

class TfrmBezUprawnien : public QObject
{
    Q_OBJECT
};

namespace {

class PrivilegesTest : public SessionFixture
{
protected:
    PrivilegesTest() : SessionFixture(5)
    {
        zleceniaID = addForm(QStringLiteral("TfrmZlecPrzychodzace"));
        // Run 1, add 256, edit 255, delete 0.
        grant(5, zleceniaID, QStringLiteral("1, 256, 255, 0"));
        // Only the delete column set: kind 3 must read PRIVIL_DELETE.
        grant(6, zleceniaID, QStringLiteral("0, 0, 0, 1"));
        // Stored upper-cased: differs from the class name in letter case only.
        miastaID = addForm(QStringLiteral("TFRMMIASTA"));
        grant(5, miastaID, QStringLiteral("1, 1, 1, 1"));
    }

    int addForm(const QString &name)
    {
        db.exec(QStringLiteral("INSERT INTO FORMS (NAZWA) VALUES ('%1')").arg(name));
        return db.scalar(QStringLiteral("SELECT MAX(ID_FORMATKI) FROM FORMS")).toInt();
    }

    void grant(int user, int form, const QString &flags)
    {
        db.exec(QStringLiteral("INSERT INTO USER_ACCESS (ID_USER, ID_FORMATKI, PRIVIL_RUN, "
                               "PRIVIL_ADD, PRIVIL_EDIT, PRIVIL_DELETE) VALUES (%1, %2, %3)")
                    .arg(user)
                    .arg(form)
                    .arg(flags));
    }

    int zleceniaID = 0;
    int miastaID = 0;
    TfrmZlecPrzychodzace zlecenia;
    TfrmMiasta miasta;
    TfrmBezUprawnien bezUprawnien;
};

} // namespace

TEST_F(PrivilegesTest, TheLowByteOfTheKindsColumnDecidesForTheFormOfTheClassName)
{
    EXPECT_EQ(Privileges::formClass(&zlecenia), QStringLiteral("TfrmZlecPrzychodzace"));
    TDaneFirmy firma;
    EXPECT_TRUE(firma.CheckPrivilege(Privileges::Run, &zlecenia, 5));
    EXPECT_FALSE(firma.CheckPrivilege(Privileges::Add, &zlecenia, 5));    // 256
    EXPECT_TRUE(firma.CheckPrivilege(Privileges::Edit, &zlecenia, 5));    // 255
    EXPECT_FALSE(firma.CheckPrivilege(Privileges::Delete, &zlecenia, 5));
    // Delete is 3, edit is 4.
    EXPECT_TRUE(firma.CheckPrivilege(3, &zlecenia, 6));
    EXPECT_FALSE(firma.CheckPrivilege(4, &zlecenia, 6));
    EXPECT_THROW(firma.CheckPrivilege(7, &zlecenia, 5), DbError);
}

TEST_F(PrivilegesTest, NoRowOrANameDifferingInLetterCaseGrantsNothing)
{
    TDaneFirmy firma;
    for (int kind = Privileges::Run; kind <= Privileges::Edit; ++kind) {
        EXPECT_FALSE(firma.CheckPrivilege(kind, &zlecenia, 99)) << kind;
        EXPECT_FALSE(firma.CheckPrivilege(kind, &miasta, 5)) << kind;
    }
    EXPECT_FALSE(firma.CheckPrivilege(Privileges::Run, &bezUprawnien, 5));
    // ... though the form is found by it.
    EXPECT_EQ(firma.GetFormID(&miasta), miastaID);
    EXPECT_EQ(firma.GetFormID(&zlecenia), zleceniaID);
    EXPECT_EQ(firma.GetFormID(&bezUprawnien), 0);
}

TEST_F(PrivilegesTest, RequireShowsTheRefusalForTheSessionUser)
{
    EXPECT_TRUE(Privileges::require(Privileges::Run, &zlecenia));
    EXPECT_TRUE(scriptedMessages().shown().empty());

    scriptedMessages().expect(MessageService::Ok);
    EXPECT_FALSE(Privileges::require(Privileges::Add, &zlecenia));
    ASSERT_EQ(scriptedMessages().shown().size(), 1u);
    const ScriptedMessages::Shown &box = scriptedMessages().shown().front();
    EXPECT_EQ(box.caption, QStringLiteral("Uprawnienia"));
    EXPECT_EQ(box.text,
              QStringLiteral("Uprawnienia do tej operacji nie zostały nadane przez administratora."));
    EXPECT_EQ(box.icon, MessageService::Icon::Warning);
    EXPECT_EQ(box.buttons, MessageService::Buttons(MessageService::Ok));

    // The session's user decides: user 6 may delete, user 5 may not.
    setUser(6);
    EXPECT_TRUE(Privileges::require(Privileges::Delete, &zlecenia));
}

TEST_F(PrivilegesTest, RequireRefusesWithAnErrorWhenTheDatabaseFails)
{
    scriptedMessages().expect(MessageService::Ok);
    EXPECT_FALSE(Privileges::require(9, &zlecenia));
    ASSERT_EQ(scriptedMessages().shown().size(), 1u);
    EXPECT_EQ(scriptedMessages().shown().front().caption, QStringLiteral("Błąd"));
    // The engine's words and the statement are for the log only.
    EXPECT_EQ(scriptedMessages().shown().front().text,
              QStringLiteral("Nie można sprawdzić uprawnień.\nBaza danych nie wykonała tej "
                             "operacji. Szczegóły zapisano w pliku HaulixErrors.ini; gdy błąd się "
                             "powtarza, przekaż je administratorowi."));
    ASSERT_EQ(loggedToday(ErrorLog::HaulixErrors).size(), 1);
    EXPECT_TRUE(loggedToday(ErrorLog::HaulixErrors).front().contains(QStringLiteral("SELECT")));

    setSession(5, nullptr, nullptr);
    scriptedMessages().expect(MessageService::Ok);
    EXPECT_FALSE(Privileges::require(Privileges::Run, &zlecenia));
}

#include "PrivilegesTest.moc"
