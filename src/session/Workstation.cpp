#include "Workstation.h"

#include <QSysInfo>

#ifdef Q_OS_UNIX
#include <pwd.h>
#include <unistd.h>
#endif

namespace {

constexpr int ComputerNameLength = 16;
constexpr int LoginNameLength = 51;

} // namespace

QString Workstation::computerName()
{
    return QSysInfo::machineHostName().left(ComputerNameLength);
}

QString Workstation::loginName()
{
    QString name;
#ifdef Q_OS_UNIX
    if (const passwd *entry = getpwuid(geteuid()))
        name = QString::fromLocal8Bit(entry->pw_name);
#endif
    if (name.isEmpty())
        name = qEnvironmentVariable("USERNAME", qEnvironmentVariable("USER"));
    return name.left(LoginNameLength);
}
