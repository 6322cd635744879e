#include "Typing.h"

#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

void Typing::into(QWidget *field, const QString &text)
{
    ASSERT_NE(field, nullptr);
    field->setFocus();
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(field, Qt::Key_Delete);
    // QTest knows keys for ASCII only; other letters arrive as their text,
    // as from a Polish keyboard layout.
    for (const QChar c : text) {
        if (c.unicode() < 128)
            QTest::keyClick(field, c.toLatin1());
        else
            QTest::sendKeyEvent(QTest::Click, field, Qt::Key_unknown, QString(c), Qt::NoModifier);
    }
}

void Typing::click(QWidget *button)
{
    ASSERT_NE(button, nullptr);
    QTest::mouseClick(button, Qt::LeftButton);
}
