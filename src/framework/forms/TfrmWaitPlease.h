#pragma once

#include <QDialog>
#include <QPointer>

#include <memory>

class QFrame;
class QLabel;
class QProgressBar;

// "Proszę czekać": the window long report and invoice routines show while
// they work. It has no behaviour of its own beyond moving its bar.
class TfrmWaitPlease : public QDialog
{
    Q_OBJECT

public:
    explicit TfrmWaitPlease(QWidget *parent = nullptr);

    // The number of items the routine will go through.
    void setMaximum(int maximum);
    // One item done; the window repaints at once.
    void advance();

    QLabel *lblMessage;
    QFrame *pnlProgress;
    QLabel *lblRachunek;
    QProgressBar *ProgressBar1;
};

// Shows the process's one wait window for as long as it lives; routines
// reach that window through frmWaitPlease().
class WaitPleaseScope
{
public:
    explicit WaitPleaseScope(int maximum, QWidget *parent = nullptr);
    ~WaitPleaseScope();
    WaitPleaseScope(const WaitPleaseScope &) = delete;
    WaitPleaseScope &operator=(const WaitPleaseScope &) = delete;

    TfrmWaitPlease &window() { return *m_window; }

private:
    std::unique_ptr<TfrmWaitPlease> m_window;
    QPointer<TfrmWaitPlease> m_previous;
};

// The wait window being shown, null when none is.
TfrmWaitPlease *frmWaitPlease();
