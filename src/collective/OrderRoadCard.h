#pragma once

class Connection;

// Puts an incoming order on a road card: the card's key goes into the
// order's NR_KARTY, and nothing else of the order is written, so that what
// another workstation changed in it meanwhile stays.
namespace OrderRoadCard {

// False when the order is not there any more. Throws DbError.
bool assign(Connection &connection, int orderKey, int cardKey);

} // namespace OrderRoadCard
