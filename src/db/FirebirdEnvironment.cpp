#include "FirebirdEnvironment.h"

#include "DbError.h"
#include "LocalTimeZone.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QtGlobal>

#include <unistd.h>

namespace {

const char ConfigText[] =
    "ServerMode = SuperClassic\n"
    "UdfAccess = None\n"
    "RemoteBindAddress = 127.0.0.1\n";

QString privateDirectory()
{
    return QDir::tempPath() + QStringLiteral("/haulix-firebird-%1").arg(getuid());
}

QString writeConfiguration()
{
    const QString dir = privateDirectory();
    if (!QDir().mkpath(dir))
        throw DbError(QStringLiteral("Nie można utworzyć katalogu konfiguracji Firebird: %1").arg(dir));
    const QString path = dir + QStringLiteral("/firebird.conf");
    QFile file(path);
    if (file.exists() && file.open(QIODevice::ReadOnly) && file.readAll() == ConfigText)
        return dir;
    file.close();
    // Written to a temporary name first: another process may be starting
    // its engine from the same directory right now.
    QFile temporary(path + QStringLiteral(".%1").arg(getpid()));
    if (!temporary.open(QIODevice::WriteOnly | QIODevice::Truncate)
        || temporary.write(ConfigText) != qint64(sizeof ConfigText - 1)) {
        throw DbError(QStringLiteral("Nie można zapisać pliku %1").arg(path));
    }
    temporary.close();
    QFile::remove(path);
    if (!temporary.rename(path) && !QFile::exists(path))
        throw DbError(QStringLiteral("Nie można zapisać pliku %1").arg(path));
    return dir;
}

} // namespace

QString FirebirdEnvironment::prepare()
{
    // Every program opens its first connection through here, early and
    // from its main thread: the place to settle the process's time zone.
    LocalTimeZone::pin();
    static const QString directory = [] {
        if (qEnvironmentVariableIsSet("FIREBIRD"))
            return qEnvironmentVariable("FIREBIRD");
        const QString dir = writeConfiguration();
        qputenv("FIREBIRD", QFile::encodeName(dir));
        return dir;
    }();
    return directory;
}
