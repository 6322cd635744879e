#pragma once

#include "FirebirdLogin.h"

#include <QStringList>

// Puts a database on a Firebird server for the workstations of an office.
// The database is copied from a file (or made empty from the schema) and
// restored by the server itself, so that it is the server's own file in a
// place the server may read. The workstations log in as a user of their
// own, allowed to read and write every table but not to manage the server;
// its login is read from a file, or made and written to it the first time.
class ServerSetup
{
public:
    struct Options
    {
        QString path;                  // where the server keeps the database
        QString server = QStringLiteral("localhost");   // host[/port]
        QString from;                  // a database file to copy; empty: a new one
        QString adminFile = QStringLiteral("/etc/firebird/3.0/SYSDBA.password");
        QString loginFile = FirebirdLogin::workstationFile();
    };

    explicit ServerSetup(Options options) : m_options(std::move(options)) {}

    // What to tell the person setting up; throws DbError with one Polish
    // sentence, having left neither a database nor a login file behind.
    QStringList run() const;

    // "host/port:path" as the workstations give it to haulix --db.
    QString workstationAddress() const;

private:
    QString target() const;
    void checkUserName(const FirebirdLogin &admin, const FirebirdLogin &workstation) const;
    void copySource(const FirebirdLogin &admin) const;
    void admitWorkstations(const FirebirdLogin &admin, const FirebirdLogin &workstation) const;
    void dropQuietly(const FirebirdLogin &admin) const;

    Options m_options;
};
