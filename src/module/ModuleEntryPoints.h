#pragma once

#include <cstdint>

class Connection;
class Transaction;

// What this module exports to the host (extern "C", file Library/IncomingOrders
// with the platform's suffix). The host keeps the connection and the
// transaction; the module only uses them.
extern "C" {

using ModuleEntry = std::int32_t (*)(std::int32_t userID, Connection *database,
                                     Transaction *transaction);
}

namespace ModuleEntryPoints {
inline constexpr char LibraryName[] = "IncomingOrders";
inline constexpr char IncomingOrders[] = "Run_ZlecPrzychodzace";
inline constexpr char PartnersReport[] = "Run_RepWspolnicy";
} // namespace ModuleEntryPoints
