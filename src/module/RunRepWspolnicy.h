#pragma once

#include <cstdint>

class Connection;
class Transaction;

// What the exported Run_RepWspolnicy does: stores the session context,
// asks for the partners report's selection and previews the report when
// the user confirms it. Returns 1 also when the user cancels.
std::int32_t runRepWspolnicy(std::int32_t userID, Connection *database,
                             Transaction *transaction);
