#include "FrameEvents.h"

#include <QCoreApplication>

void FrameEvents::send(QObject *receiver, QEvent::Type type)
{
    if (!receiver)
        return;
    QEvent event(type);
    QCoreApplication::sendEvent(receiver, &event);
}
