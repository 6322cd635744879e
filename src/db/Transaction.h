#pragma once

#include <QString>

class Connection;

// The explicit transaction of a connection. While none is active, every
// statement commits as it runs. Code of this project brackets work with a
// TransactionScope; start/commit/rollback are here for the host.
class Transaction
{
public:
    explicit Transaction(Connection &connection);
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;

    // Each throws DbError when the database refuses.
    void StartTransaction();
    void Commit();
    void Rollback();
    bool InTransaction() const { return m_active; }

    Connection &connection() const { return m_connection; }

    // Savepoints inside the active transaction, for nested scopes.
    QString setSavepoint();
    void releaseSavepoint(const QString &name);
    void rollbackToSavepoint(const QString &name);

private:
    void run(const QString &sql);

    Connection &m_connection;
    bool m_active = false;
    int m_savepoints = 0;
};

// Starts the transaction on creation and rolls it back on destruction
// unless commit() was called: an early return or an exception can never
// leave half of a group of statements applied. Inside a transaction that is
// already running, the scope is a savepoint of it, so scopes nest.
class TransactionScope
{
public:
    explicit TransactionScope(Transaction &transaction);
    ~TransactionScope();
    TransactionScope(const TransactionScope &) = delete;
    TransactionScope &operator=(const TransactionScope &) = delete;

    void commit();

private:
    Transaction &m_transaction;
    QString m_savepoint;
    bool m_done = false;
};
