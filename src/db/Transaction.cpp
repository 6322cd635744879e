#include "Transaction.h"

#include "Connection.h"
#include "DbError.h"

#include <QSqlError>
#include <QSqlQuery>

Transaction::Transaction(Connection &connection) : m_connection(connection) {}

void Transaction::StartTransaction()
{
    if (m_active)
        throw DbError(QStringLiteral("Transakcja jest już rozpoczęta."));
    QSqlDatabase db = m_connection.database();
    if (!db.transaction()) {
        throw DbError::fromSql(QStringLiteral("Nie można rozpocząć transakcji"), db.lastError());
    }
    m_active = true;
    m_connection.transactionChanged(true);
}

void Transaction::Commit()
{
    if (!m_active)
        throw DbError(QStringLiteral("Brak rozpoczętej transakcji do zatwierdzenia."));
    QSqlDatabase db = m_connection.database();
    const bool committed = db.commit();
    // Kept statements prepare again either way.
    m_connection.transactionChanged(!committed);
    if (!committed)
        throw DbError::fromSql(QStringLiteral("Nie można zatwierdzić transakcji"), db.lastError());
    m_active = false;
}

void Transaction::Rollback()
{
    if (!m_active)
        return;
    m_active = false;
    m_connection.transactionChanged(false);
    QSqlDatabase db = m_connection.database();
    if (!db.rollback())
        throw DbError::fromSql(QStringLiteral("Nie można wycofać transakcji"), db.lastError());
}

void Transaction::run(const QString &sql)
{
    if (!m_active)
        throw DbError(QStringLiteral("Brak rozpoczętej transakcji: %1").arg(sql));
    QSqlQuery query(m_connection.database());
    if (!query.exec(sql))
        throw DbError::fromSql(sql, query.lastError());
}

QString Transaction::setSavepoint()
{
    const QString name = QStringLiteral("HX_SP%1").arg(++m_savepoints);
    run(QStringLiteral("SAVEPOINT ") + name);
    return name;
}

void Transaction::releaseSavepoint(const QString &name)
{
    run(QStringLiteral("RELEASE SAVEPOINT ") + name);
}

void Transaction::rollbackToSavepoint(const QString &name)
{
    run(QStringLiteral("ROLLBACK TO SAVEPOINT ") + name);
}

TransactionScope::TransactionScope(Transaction &transaction) : m_transaction(transaction)
{
    if (m_transaction.InTransaction())
        m_savepoint = m_transaction.setSavepoint();
    else
        m_transaction.StartTransaction();
}

TransactionScope::~TransactionScope()
{
    if (m_done)
        return;
    try {
        if (m_savepoint.isEmpty())
            m_transaction.Rollback();
        else
            m_transaction.rollbackToSavepoint(m_savepoint);
    } catch (const DbError &) {
        // A destructor must not throw; the transaction is gone either way.
    }
}

void TransactionScope::commit()
{
    if (m_savepoint.isEmpty())
        m_transaction.Commit();
    else
        m_transaction.releaseSavepoint(m_savepoint);
    m_done = true;
}
