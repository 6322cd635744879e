#include "TfrmWaitPlease.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QFrame>
#include <QLabel>
#include <QProgressBar>

namespace {

QPointer<TfrmWaitPlease> &currentWindow()
{
    static QPointer<TfrmWaitPlease> window;
    return window;
}

} // namespace

TfrmWaitPlease::TfrmWaitPlease(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmWaitPlease"));
    setWindowTitle(QStringLiteral("Pobieranie danych"));
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint
                   | Qt::WindowStaysOnTopHint);

    lblMessage = new QLabel(QStringLiteral("Proszę czekać, trwa pobieranie danych."), this);
    lblMessage->setObjectName(QStringLiteral("lblMessage"));
    lblMessage->setAlignment(Qt::AlignCenter);
    pnlProgress = new QFrame(this);
    pnlProgress->setObjectName(QStringLiteral("pnlProgress"));
    pnlProgress->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    lblRachunek = new QLabel(QStringLiteral("Rachunek"), pnlProgress);
    lblRachunek->setObjectName(QStringLiteral("lblRachunek"));
    ProgressBar1 = new QProgressBar(pnlProgress);
    ProgressBar1->setObjectName(QStringLiteral("ProgressBar1"));
    ProgressBar1->setRange(0, 100);
    ProgressBar1->setValue(0);

    auto *panel = new QVBoxLayout(pnlProgress);
    panel->addWidget(lblRachunek);
    panel->addWidget(ProgressBar1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 12, 16, 12);
    layout->addWidget(lblMessage);
    layout->addWidget(pnlProgress);
    setMinimumWidth(320);
}

void TfrmWaitPlease::setMaximum(int maximum)
{
    ProgressBar1->setRange(0, maximum);
    ProgressBar1->setValue(0);
}

void TfrmWaitPlease::advance()
{
    ProgressBar1->setValue(std::min(ProgressBar1->value() + 1, ProgressBar1->maximum()));
    QCoreApplication::processEvents();
}

WaitPleaseScope::WaitPleaseScope(int maximum, QWidget *parent)
    : m_window(std::make_unique<TfrmWaitPlease>(parent)), m_previous(currentWindow())
{
    m_window->setMaximum(maximum);
    currentWindow() = m_window.get();
    m_window->show();
    QCoreApplication::processEvents();
}

WaitPleaseScope::~WaitPleaseScope()
{
    currentWindow() = m_previous;
}

TfrmWaitPlease *frmWaitPlease()
{
    return currentWindow();
}
