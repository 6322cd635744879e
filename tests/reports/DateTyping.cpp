#include "DateTyping.h"

#include "TDateEdit.h"

#include <QTest>

void DateTyping::retype(TDateEdit *field, const QString &date)
{
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Home);
    for (int i = 0; i < 4; ++i)
        QTest::keyClick(field, Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClicks(field, QString(date).remove(QLatin1Char('-')));
}
