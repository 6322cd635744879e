#pragma once

#include "Transaction.h"

#include <optional>

// A scope of the session's transaction (a savepoint when one is running),
// so that work of several statements is all or nothing; without a session
// transaction the statements commit as they run.
class SessionScope
{
public:
    SessionScope();
    void commit();

private:
    std::optional<TransactionScope> m_scope;
};
