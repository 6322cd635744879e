#pragma once

#include <cstdint>

class Connection;
class Transaction;

// What the exported Run_ZlecPrzychodzace does: stores the session context
// (user, connection, transaction, in that order), creates the incoming
// orders register, runs it modally and returns its modal result (1 OK,
// 2 cancel or the close box); the register is destroyed before returning.
std::int32_t runZlecPrzychodzace(std::int32_t userID, Connection *database,
                                 Transaction *transaction);
