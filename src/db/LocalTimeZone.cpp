#include "LocalTimeZone.h"

#include <QFileInfo>
#include <QtGlobal>

#include <ctime>

void LocalTimeZone::pin()
{
    static const bool pinned = [] {
        if (qEnvironmentVariableIsSet("TZ") || !QFileInfo::exists(QStringLiteral("/etc/localtime")))
            return false;
        qputenv("TZ", ":/etc/localtime");
        tzset();
        return true;
    }();
    Q_UNUSED(pinned);
}
