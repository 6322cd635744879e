#pragma once

#include "DbError.h"

#include <QElapsedTimer>
#include <QString>

#include <type_traits>

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

    // Runs work in a scope and commits it, returning what work returns.
    // When the scope is the transaction itself (none was running) and a
    // statement meets a row that another workstation changed after the
    // start (DbError::Kind::Conflict), everything is undone and work runs
    // again in a new transaction, which sees that change. Inside a running
    // transaction no newer start is possible: the conflict goes on to the
    // caller, as every other failure does. work must be able to run again
    // from the start: nothing an undone attempt left in memory may count.
    template <class Work>
    static auto retrying(Transaction &transaction, Work &&work) -> decltype(work());

    // How long conflicts are met by starting over before the last one goes
    // to the caller. Each conflict means that another workstation finished
    // its own work meanwhile, and a workstation that keeps finishing first
    // can make another one start over many times in a row.
    static constexpr int ConflictPatienceMs = 20000;

private:
    Transaction &m_transaction;
    QString m_savepoint;
    bool m_done = false;
};

template <class Work>
auto TransactionScope::retrying(Transaction &transaction, Work &&work) -> decltype(work())
{
    QElapsedTimer patience;
    patience.start();
    for (;;) {
        const bool starts = !transaction.InTransaction();
        try {
            TransactionScope scope(transaction);
            if constexpr (std::is_void_v<decltype(work())>) {
                work();
                scope.commit();
                return;
            } else {
                auto result = work();
                scope.commit();
                return result;
            }
        } catch (const DbError &error) {
            if (!starts || error.kind() != DbError::Kind::Conflict
                || patience.hasExpired(ConflictPatienceMs))
                throw;
        }
    }
}
