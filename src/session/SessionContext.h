#pragma once

#include <QtGlobal>

class Connection;
class Transaction;

// The three values an entry point is handed by the host. They stay set
// after the entry point returns; the next call overwrites them. The
// connection and transaction belong to the host and are never opened,
// closed or freed here.
struct SessionContext
{
    qint32 UserID = 0;
    Connection *Database = nullptr;
    ::Transaction *Transaction = nullptr;
    // Whether the last invoicing of the session was for an order carried
    // by the company itself. Not handed over by the host: it lives as long
    // as the module is loaded and is false until the first invoicing. The
    // invoice header dialog proposes its revenue account from it.
    bool OwnFleet = false;

    // The host's transaction. The host hands one to every entry point, and
    // every program or test that opens the module's forms does the same;
    // work that must be all-or-nothing runs in a TransactionScope on it.
    // DbError when none was handed over.
    ::Transaction &transaction() const;
};

// The process-wide context of the module.
SessionContext &session();

// Stores the values in the order the host hands them over.
void setSession(qint32 userId, Connection *database, ::Transaction *transaction);
