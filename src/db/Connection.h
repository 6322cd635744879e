#pragma once

#include <QSqlDatabase>
#include <QString>

#include <memory>

class StatementCache;

// The suite's database connection: Qt's QIBASE driver on a Firebird
// database, always in UTF8. A plain file path opens the file with the
// embedded engine; "host[/port]:path" goes through a Firebird server.
// The host owns it; the module only ever uses the one it is handed.
class Connection
{
public:
    Connection();
    ~Connection();
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    // Throws DbError with the path and the driver's reason. Without a
    // user, a database on a server is opened with the workstation's login
    // file (FirebirdLogin::workstationFile()), a file as SYSDBA.
    void open(const QString &target, const QString &user = QString(),
              const QString &password = QString());
    void close();
    bool isOpen() const;

    const QString &target() const { return m_target; }
    QSqlDatabase database() const;
    QString connectionName() const { return m_name; }

    static bool isServerTarget(const QString &target);

    // Kept by Transaction: whether an explicit transaction runs, and a count
    // of its starts and ends, by which a statement kept prepared learns that
    // the transaction it was prepared in is gone.
    bool inTransaction() const { return m_inTransaction; }
    quint64 transactionEpoch() const { return m_transactionEpoch; }
    void transactionChanged(bool running);

    // Statements run again and again (the table objects' writes), kept
    // prepared while the connection is open.
    StatementCache &statements();

    // Creates an empty UTF8 database file; throws DbError when the file
    // exists or cannot be written. Never overwrites.
    static void createDatabase(const QString &target,
                               const QString &user = QStringLiteral("SYSDBA"),
                               const QString &password = QStringLiteral("masterkey"));

    // Whether the engine writes each commit through to the disk before it
    // returns (on for every database people work in). Switched off only
    // while a new database is being built, and for throw-away copies in
    // tests. Needs a moment when no one else is attached; throws DbError.
    static void setForcedWrites(const QString &target, bool on,
                                const QString &user = QStringLiteral("SYSDBA"),
                                const QString &password = QStringLiteral("masterkey"));

    // Removes a database that was made by mistake or not finished; throws
    // DbError.
    static void dropDatabase(const QString &target, const QString &user,
                             const QString &password);

private:
    QString m_name;
    QString m_target;
    bool m_inTransaction = false;
    quint64 m_transactionEpoch = 0;
    std::unique_ptr<StatementCache> m_statements;
};
