#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <deque>
#include <functional>

class QWidget;

// Plays the user in the windows that a loaded library shows with its own
// modal loop, where the test's modal runner and message service do not
// reach: each step runs on the next modal window that appears and must be
// of the class it names. A window nobody expected is closed and noted, and
// so is a window that stays up long after its step, so that a test fails
// instead of hanging.
class WindowScript : public QObject
{
public:
    WindowScript();

    void then(const QString &className, std::function<void(QWidget &)> step);

    bool finished() const { return m_steps.empty(); }
    // Class names of the windows met, unexpected ones marked with "!".
    const QStringList &seen() const { return m_seen; }

    // Children of a window by their objectName.
    static void type(QWidget &window, const QString &field, const QString &text);
    static void click(QWidget &window, const QString &button);

private:
    struct Step
    {
        QString className;
        std::function<void(QWidget &)> run;
    };

    void poll();

    QTimer m_timer;
    std::deque<Step> m_steps;
    QList<QPointer<QWidget>> m_handled;
    QPointer<QWidget> m_active;
    QElapsedTimer m_activeSince;
    QStringList m_seen;
};
