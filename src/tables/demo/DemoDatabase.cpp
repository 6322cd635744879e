#include "DemoDatabase.h"

#include "Connection.h"
#include "DemoSeeder.h"
#include "Schema.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

QString DemoDatabase::defaultPath()
{
    QString dir = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    if (dir.isEmpty())
        dir = QDir::homePath();
    return dir + QStringLiteral("/Kelvaro/Haulix/demo.fdb");
}

QString DemoDatabase::ensure(const std::function<void(const QString &)> &progress)
{
    const QString path = defaultPath();
    // The seeder writes everything in one transaction, so the file is
    // complete once the marker exists.
    const QString marker = path + QStringLiteral(".ready");
    if (QFile::exists(path) && QFile::exists(marker))
        return path;
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile::remove(path);
    progress(QStringLiteral("Tworzenie bazy demonstracyjnej: %1").arg(path));
    Schema::createDatabase(path);
    {
        Connection connection;
        connection.open(path);
        DemoSeeder(connection, DemoSeeder::Options()).seed();
    }
    QFile ready(marker);
    ready.open(QIODevice::WriteOnly);
    progress(QStringLiteral("Baza demonstracyjna gotowa."));
    return path;
}
