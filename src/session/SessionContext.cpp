#include "SessionContext.h"

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
