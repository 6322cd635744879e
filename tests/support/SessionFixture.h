#pragma once

#include "TestDatabase.h"
#include "Transaction.h"

#include <gtest/gtest.h>

// A fresh database handed to the module as the host hands it: while the
// test runs, the session carries the user, the test's connection and a
// transaction on it; afterwards it is cleared.
class SessionFixture : public testing::Test
{
protected:
    explicit SessionFixture(int userId = 1);
    ~SessionFixture() override;

    void setUser(int userId);

    TestDatabase db;
    Transaction transaction{db.connection()};
};
