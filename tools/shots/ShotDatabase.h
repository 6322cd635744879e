#pragma once

#include "Connection.h"
#include "Transaction.h"

#include <QTemporaryDir>

// A throw-away database with a few users and orders, set as the session's
// database for the forms that read one.
class ShotDatabase
{
public:
    ShotDatabase();
    ~ShotDatabase();

    Connection &connection() { return m_connection; }
    // The key of the demo order the advanced edit opens.
    int orderKey() const { return m_orderKey; }

private:
    QTemporaryDir m_dir;
    Connection m_connection;
    Transaction m_transaction{m_connection};
    int m_orderKey = 0;
};
