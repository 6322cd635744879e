#pragma once

#include <QObject>

class QSocketNotifier;

// Ctrl+C or a kill ends the program as closing the window would: every
// event loop, the modal register's included, is left and the host goes on
// to commit and close the database. Installed after the database is open,
// because the embedded engine installs handlers of its own when it starts.
class TerminationSignals : public QObject
{
public:
    explicit TerminationSignals(QObject *parent = nullptr);
    ~TerminationSignals() override;

private:
    static void handle(int signal);

    QSocketNotifier *m_notifier = nullptr;
};
