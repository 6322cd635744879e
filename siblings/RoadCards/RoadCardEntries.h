#pragma once

#include <cstdint>

class Connection;
class Transaction;

// What the RoadCards library's entries for one card do (see
// RoadCardsExports.cpp). The suite calls them without a user: they check
// no privileges.
namespace RoadCardEntries {

// The card's editor; 1 when the card was saved, 0 when cancelled or when
// there is no such card.
std::int32_t editCard(std::int32_t cardID, Connection *database, Transaction *transaction);

// The road card of an incoming order: the order's own card when it has
// one, else a new card filled from the order. On OK the card is saved and
// the order points at it (IDKARTYDR), together; the card's key is returned.
// 0 when cancelled or when there is no such order.
std::int32_t generateCard(std::int32_t orderID, Connection *database, Transaction *transaction);

} // namespace RoadCardEntries
