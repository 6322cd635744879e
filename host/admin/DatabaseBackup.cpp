#include "DatabaseBackup.h"

#include "Connection.h"
#include "DbError.h"
#include "FirebirdFailure.h"
#include "Gbak.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <filesystem>
#include <system_error>

namespace {

void requireWritableDirectory(const QString &file)
{
    const QString directory = QFileInfo(file).absolutePath();
    if (!QFileInfo(directory).isDir() || !QFileInfo(directory).isWritable())
        throw DbError(QStringLiteral("Nie można zapisać w katalogu %1.").arg(directory));
}

// Removes a temporary file whatever way the work ends.
class TemporaryFile
{
public:
    explicit TemporaryFile(QString path) : m_path(std::move(path)) { QFile::remove(m_path); }
    ~TemporaryFile() { QFile::remove(m_path); }
    TemporaryFile(const TemporaryFile &) = delete;
    TemporaryFile &operator=(const TemporaryFile &) = delete;
    const QString &path() const { return m_path; }

private:
    QString m_path;
};

} // namespace

DatabaseBackup::DatabaseBackup(std::optional<FirebirdLogin> login, const QString &loginFile)
    : m_login(std::move(login)), m_loginFile(loginFile)
{
}

QString DatabaseBackup::temporaryBeside(const QString &file, const QString &suffix) const
{
    const QFileInfo info(file);
    return info.absolutePath() + QStringLiteral("/.") + info.fileName()
        + QStringLiteral(".%1").arg(QCoreApplication::applicationPid()) + suffix;
}

void DatabaseBackup::backup(const QString &database, const QString &file) const
{
    if (!Connection::isServerTarget(database) && !QFileInfo::exists(database))
        throw DbError(
            QStringLiteral("Nie można otworzyć bazy danych %1: plik nie istnieje.").arg(database));
    requireWritableDirectory(file);
    const TemporaryFile partial(temporaryBeside(file, QStringLiteral(".part")));
    FirebirdFailure failure{database, m_loginFile, m_login ? m_login->user : QString(), file,
                            file};
    Gbak(m_login).run({QStringLiteral("-b"), database, partial.path()}, failure);
    // The copy holds all the company's data, whoever may list the folder.
    QFile::setPermissions(partial.path(), QFile::ReadOwner | QFile::WriteOwner);
    // rename(2) replaces an older copy in one step.
    std::error_code error;
    std::filesystem::rename(QFile::encodeName(partial.path()).toStdString(),
                            QFile::encodeName(file).toStdString(), error);
    if (error)
        throw DbError(QStringLiteral("Nie można zapisać pliku %1: %2")
                          .arg(file, QString::fromStdString(error.message())));
}

void DatabaseBackup::restore(const QString &file, const QString &database) const
{
    if (!QFileInfo(file).isFile())
        throw DbError(QStringLiteral("Brak pliku kopii %1.").arg(file));
    if (Connection::isServerTarget(database))
        restoreOnServer(file, database);
    else
        restoreToFile(file, database);
}

void DatabaseBackup::restoreToFile(const QString &file, const QString &database) const
{
    if (QFileInfo::exists(database))
        throw DbError(
            QStringLiteral("Plik %1 już istnieje; baza nie zostanie nadpisana.").arg(database));
    requireWritableDirectory(database);
    const TemporaryFile partial(temporaryBeside(database, QStringLiteral(".part.fdb")));
    FirebirdFailure failure{database, QString(), QString(), database, file};
    Gbak(std::nullopt).run({QStringLiteral("-c"), file, partial.path()}, failure);
    // Refuses, as a restore must, when the name was taken meanwhile.
    if (!QFile::rename(partial.path(), database))
        throw DbError(
            QStringLiteral("Plik %1 już istnieje; baza nie zostanie nadpisana.").arg(database));
}

void DatabaseBackup::restoreOnServer(const QString &file, const QString &database) const
{
    const FirebirdLogin &login = m_login.value();
    FirebirdFailure failure{database, m_loginFile, login.user, database, file};
    // Whether the database is there decides whether a failed restore may
    // take away what it made: gbak leaves a half-restored database behind.
    try {
        Connection probe;
        probe.open(database, login.user, login.password);
    } catch (const DbError &error) {
        if (!FirebirdFailure::isFileAccess(error.message()))
            throw DbError(failure.explain(error.message()));
        try {
            Gbak(login).run({QStringLiteral("-c"), file, database}, failure);
        } catch (const DbError &) {
            try {
                Connection::dropDatabase(database, login.user, login.password);
            } catch (const DbError &) {
                // Nothing was made, or the server went away.
            }
            throw;
        }
        return;
    }
    throw DbError(failure.alreadyThere());
}
