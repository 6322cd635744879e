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

namespace {

// Written into the marker; a demo database of another edition (an older
// schema, other demo data) is made again.
constexpr char Edition[] = "6: collective orders with consignments";

bool currentEdition(const QString &marker)
{
    QFile file(marker);
    return file.open(QIODevice::ReadOnly) && file.readAll() == QByteArray(Edition);
}

} // namespace

QString DemoDatabase::ensure(const std::function<void(const QString &)> &progress)
{
    const QString path = defaultPath();
    // The seeder writes everything in one transaction, so the file is
    // complete once the marker exists.
    const QString marker = path + QStringLiteral(".ready");
    if (QFile::exists(path) && currentEdition(marker))
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
    if (ready.open(QIODevice::WriteOnly))
        ready.write(Edition);
    progress(QStringLiteral("Baza demonstracyjna gotowa."));
    return path;
}
