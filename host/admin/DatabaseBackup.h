#pragma once

#include "FirebirdLogin.h"

#include <QString>

#include <optional>

// Backup and restore of a database, a file or one on a server, through
// gbak. A backup is one consistent snapshot, so workstations may go on
// working meanwhile. Nothing half-made is left behind: a copy is written
// beside its place under a temporary name and renamed once complete (an
// older copy stays until then), and a restore never overwrites a database.
class DatabaseBackup
{
public:
    // The login for a database on a server and the file it came from.
    DatabaseBackup(std::optional<FirebirdLogin> login, const QString &loginFile);

    // Each throws DbError with one Polish sentence.
    void backup(const QString &database, const QString &file) const;
    void restore(const QString &file, const QString &database) const;

private:
    void restoreOnServer(const QString &file, const QString &database) const;
    void restoreToFile(const QString &file, const QString &database) const;
    QString temporaryBeside(const QString &file, const QString &suffix) const;

    std::optional<FirebirdLogin> m_login;
    QString m_loginFile;
};
