#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

// A Firebird server of the test's own: its configuration, security
// database and SYSDBA password in a temporary directory, listening on a
// free port of 127.0.0.1 only, stopped when the object goes. Nothing of
// the machine's own server (if any) is used or touched.
class PrivateFirebirdServer
{
public:
    PrivateFirebirdServer();
    ~PrivateFirebirdServer();
    PrivateFirebirdServer(const PrivateFirebirdServer &) = delete;
    PrivateFirebirdServer &operator=(const PrivateFirebirdServer &) = delete;

    // Empty when the server runs; otherwise why it could not be started.
    const QString &failure() const { return m_failure; }
    int port() const { return m_port; }
    // "127.0.0.1/port", as --server and in front of a database path.
    QString address() const;
    // A file with SYSDBA's login, readable by its owner only.
    QString adminLoginFile() const;
    QString directory() const { return m_dir.path(); }

    // A port no one listens on, for a server that is not there.
    static int freePort();

private:
    bool createSecurityDatabase();
    bool start();

    QTemporaryDir m_dir;
    int m_port = 0;
    QProcess m_server;
    QString m_failure;
};
