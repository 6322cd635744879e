#include "SiblingFixture.h"

#include "SessionContext.h"

#include <QComboBox>
#include <QLineEdit>

SiblingTest::SiblingTest()
{
    setSession(1, &db.connection(), &transaction);
}

SiblingTest::~SiblingTest()
{
    setSession(0, nullptr, nullptr);
}

void SiblingTest::grant(const QStringList &formClasses, int userId, bool add, bool edit,
                        bool remove)
{
    for (const QString &formClass : formClasses) {
        int form = db.scalar(QStringLiteral("SELECT COALESCE(MAX(ID_FORMATKI), 0) FROM FORMS "
                                            "WHERE NAZWA = '%1'")
                                 .arg(formClass))
                       .toInt();
        if (form == 0) {
            db.exec(QStringLiteral("INSERT INTO FORMS (NAZWA) VALUES ('%1')").arg(formClass));
            form = lastKey(QStringLiteral("FORMS"), QStringLiteral("ID_FORMATKI"));
        }
        db.exec(QStringLiteral("INSERT INTO USER_ACCESS (ID_USER, ID_FORMATKI, PRIVIL_RUN, "
                               "PRIVIL_ADD, PRIVIL_EDIT, PRIVIL_DELETE) "
                               "VALUES (%1, %2, 1, %3, %4, %5)")
                    .arg(userId)
                    .arg(form)
                    .arg(int(add))
                    .arg(int(edit))
                    .arg(int(remove)));
    }
}

int SiblingTest::lastKey(const QString &table, const QString &key)
{
    return db.scalar(QStringLiteral("SELECT MAX(%1) FROM %2").arg(key, table)).toInt();
}

QString SiblingTest::shown(QWidget *field)
{
    if (const auto *box = qobject_cast<QComboBox *>(field))
        return box->currentText();
    const auto *edit = qobject_cast<QLineEdit *>(field);
    EXPECT_NE(edit, nullptr);
    return edit ? edit->text() : QString();
}
