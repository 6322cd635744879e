#pragma once

#include <optional>

class Connection;

// The distance memory of routes between cities (table ODLEGLOSCI). A route
// is three cities: from, via (0 for none) and to. A stored distance holds
// both ways with the same via city. Database failures throw DbError.
namespace Distances {

// The distance of the route as stored or reversed; nothing when unknown.
std::optional<int> lookup(Connection &connection, int fromCity, int viaCity, int toCity);

// Stores the route's distance (no check whether it is known already).
void remember(Connection &connection, int fromCity, int viaCity, int toCity, int kilometres);

// What the order editor does on saving: stores the distance when the route
// is unknown and the distance is not 0. True when a row was stored.
bool learn(Connection &connection, int fromCity, int viaCity, int toCity, int kilometres);

} // namespace Distances
