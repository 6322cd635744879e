#include "WaitCursor.h"

#include <QCursor>
#include <QGuiApplication>

WaitCursor::WaitCursor()
{
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance())) {
        QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
        m_shown = true;
    }
}

WaitCursor::~WaitCursor()
{
    if (m_shown)
        QGuiApplication::restoreOverrideCursor();
}
