#include "Typing.h"

#include <QApplication>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

namespace {

// Qt shows a button pressed for 100 ms when its accelerator is used.
constexpr int AnimatedClick = 200;

// QTest knows keys for ASCII only; other letters arrive as their text,
// as from a Polish keyboard layout. A line break is Enter, a tab Tab.
void typeInto(QWidget *widget, const QString &text)
{
    for (const QChar c : text) {
        if (c == u'\n')
            QTest::keyClick(widget, Qt::Key_Return);
        else if (c == u'\t')
            QTest::keyClick(widget, Qt::Key_Tab);
        else if (c.unicode() < 128)
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

void Typing::accelerator(Qt::Key letter)
{
    press(letter, Qt::AltModifier);
    QTest::qWait(AnimatedClick);
}

bool Typing::closes(const QWidget *window)
{
    return QTest::qWaitFor([window] { return !window->isVisible(); }, 2000);
}
