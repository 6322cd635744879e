#pragma once

#include <QString>

// A login to a Firebird server, kept in a file only its owner may read, in
// the form of the server package's own /etc/firebird/3.0/SYSDBA.password:
//
//   ISC_USER=HAULIX
//   ISC_PASSWORD="..."
//
// Passwords never travel on a command line, where every user of the
// machine could read them.
class FirebirdLogin
{
public:
    QString user;
    QString password;

    // Throws DbError with a Polish sentence: the file is missing, cannot
    // be read, may be read by others, or lacks a name or a password.
    static FirebirdLogin read(const QString &path);
    // Writes the file readable by its owner only, whole or not at all.
    // Throws DbError.
    void write(const QString &path) const;

    // A new login with a random password.
    static FirebirdLogin generated(const QString &user);

    // The login a workstation uses for a database on a server:
    // $HAULIX_LOGIN, or haulix-login.conf in the user's Kelvaro settings.
    static QString workstationFile();
};
