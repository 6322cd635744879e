#include "SessionContext.h"

#include "DbError.h"

SessionContext &session()
{
    static SessionContext context;
    return context;
}

void setSession(qint32 userId, Connection *database, ::Transaction *transaction)
{
    SessionContext &context = session();
    context.UserID = userId;
    context.Database = database;
    context.Transaction = transaction;
}

Transaction &SessionContext::transaction() const
{
    if (!Transaction)
        throw DbError(QStringLiteral("Brak transakcji sesji"));
    return *Transaction;
}
