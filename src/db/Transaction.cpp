#include "Transaction.h"

#include "Connection.h"
#include "DbError.h"

#include <QSqlError>

Transaction::Transaction(Connection &connection) : m_connection(connection) {}

void Transaction::StartTransaction()
{
    if (m_active)
        throw DbError(QStringLiteral("Transakcja jest już rozpoczęta."));
    QSqlDatabase db = m_connection.database();
    if (!db.transaction()) {
        throw DbError(QStringLiteral("Nie można rozpocząć transakcji: %1").arg(db.lastError().text()));
    }
    m_active = true;
}

void Transaction::Commit()
{
    if (!m_active)
        throw DbError(QStringLiteral("Brak rozpoczętej transakcji do zatwierdzenia."));
    QSqlDatabase db = m_connection.database();
    if (!db.commit())
        throw DbError(QStringLiteral("Nie można zatwierdzić transakcji: %1").arg(db.lastError().text()));
    m_active = false;
}

void Transaction::Rollback()
{
    if (!m_active)
        return;
    m_active = false;
    QSqlDatabase db = m_connection.database();
    if (!db.rollback())
        throw DbError(QStringLiteral("Nie można wycofać transakcji: %1").arg(db.lastError().text()));
}

TransactionScope::TransactionScope(Transaction &transaction) : m_transaction(transaction)
{
    m_transaction.StartTransaction();
}

TransactionScope::~TransactionScope()
{
    if (m_done)
        return;
    try {
        m_transaction.Rollback();
    } catch (const DbError &) {
        // A destructor must not throw; the transaction is gone either way.
    }
}

void TransactionScope::commit()
{
    m_transaction.Commit();
    m_done = true;
}
