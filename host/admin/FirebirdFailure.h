#pragma once

#include <QString>

// What the engine or gbak said, turned into one Polish sentence saying what
// to do: server not reachable, login refused, a path the server cannot use,
// a full disk, a database that is already there. The engine's own words
// follow only where no sentence fits.
class FirebirdFailure
{
public:
    QString target;     // the database, a file or "host[/port]:path"
    QString loginFile;  // where the login to the server came from
    QString user;
    QString written;    // the file being written, if any
    QString backupFile; // the copy gbak writes or reads

    QString explain(const QString &engineText) const;
    QString alreadyThere() const;

    // Whether the engine said the database file does not exist or cannot
    // be reached on the disk.
    static bool isFileAccess(const QString &engineText);
};
