#include "SessionScope.h"

#include "SessionContext.h"

SessionScope::SessionScope()
{
    if (::Transaction *transaction = session().Transaction)
        m_scope.emplace(*transaction);
}

void SessionScope::commit()
{
    if (m_scope)
        m_scope->commit();
}
