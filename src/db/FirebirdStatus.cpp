#include "FirebirdStatus.h"

#include <QStringList>

QString firebirdStatusText(const ISC_STATUS *status)
{
    QStringList parts;
    char buffer[1024];
    const ISC_STATUS *cursor = status;
    while (fb_interpret(buffer, sizeof buffer, &cursor))
        parts << QString::fromLocal8Bit(buffer);
    return parts.join(QStringLiteral(" - "));
}
