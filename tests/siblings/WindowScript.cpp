#include "WindowScript.h"

#include "Typing.h"

#include <QAbstractButton>
#include <QApplication>
#include <QWidget>

#include <gtest/gtest.h>

WindowScript::WindowScript()
{
    m_timer.setInterval(20);
    connect(&m_timer, &QTimer::timeout, this, &WindowScript::poll);
    m_timer.start();
}

void WindowScript::then(const QString &className, std::function<void(QWidget &)> step)
{
    m_steps.push_back({className, std::move(step)});
}

namespace {

constexpr qint64 StuckAfterMs = 15000;

} // namespace

void WindowScript::poll()
{
    QWidget *window = QApplication::activeModalWidget();
    if (!window)
        return;
    if (window != m_active) {
        m_active = window;
        m_activeSince.start();
    }
    for (const QPointer<QWidget> &handled : std::as_const(m_handled)) {
        if (handled != window)
            continue;
        if (m_activeSince.elapsed() > StuckAfterMs) {
            ADD_FAILURE() << "window left open: " << window->metaObject()->className();
            window->close();
        }
        return;
    }
    m_handled << window;
    const QString className = QString::fromLatin1(window->metaObject()->className());
    if (m_steps.empty() || m_steps.front().className != className) {
        m_seen << QLatin1Char('!') + className;
        ADD_FAILURE() << "unexpected window " << className.toStdString();
        window->close();
        return;
    }
    m_seen << className;
    // A step may open a nested window and wait for it; it runs on a timer
    // of its own, since Qt does not fire the polling timer again while its
    // own handler is still running.
    QTimer::singleShot(0, window, [run = std::move(m_steps.front().run), window] { run(*window); });
    m_steps.pop_front();
}

void WindowScript::type(QWidget &window, const QString &field, const QString &text)
{
    QWidget *widget = window.findChild<QWidget *>(field);
    ASSERT_NE(widget, nullptr) << field.toStdString();
    Typing::into(widget, text);
}

void WindowScript::click(QWidget &window, const QString &button)
{
    auto *widget = window.findChild<QAbstractButton *>(button);
    ASSERT_NE(widget, nullptr) << button.toStdString();
    Typing::click(widget);
}
