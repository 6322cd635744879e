#include "Typing.h"

#include <QApplication>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

namespace {

// QTest knows keys for ASCII only; other letters arrive as their text,
// as from a Polish keyboard layout.
void typeInto(QWidget *widget, const QString &text)
{
    for (const QChar c : text) {
        if (c.unicode() < 128)
            QTest::keyClick(widget, c.toLatin1());
        else
            QTest::sendKeyEvent(QTest::Click, widget, Qt::Key_unknown, QString(c), Qt::NoModifier);
    }
}

QWidget *focused()
{
    QWidget *widget = QApplication::focusWidget();
    EXPECT_NE(widget, nullptr) << "no widget has the focus";
    return widget;
}

} // namespace

void Typing::into(QWidget *field, const QString &text)
{
    ASSERT_NE(field, nullptr);
    field->setFocus();
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(field, Qt::Key_Delete);
    typeInto(field, text);
}

void Typing::click(QWidget *button)
{
    ASSERT_NE(button, nullptr);
    QTest::mouseClick(button, Qt::LeftButton);
}

void Typing::activate(QWidget *window)
{
    ASSERT_NE(window, nullptr);
    window->show();
    QApplication::setActiveWindow(window);
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
}

void Typing::keys(const QString &text)
{
    for (const QChar c : text) {
        if (QWidget *widget = focused())
            typeInto(widget, QString(c));
    }
}

void Typing::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    if (QWidget *widget = focused())
        QTest::keyClick(widget, key, modifiers);
}
