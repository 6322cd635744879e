#pragma once

#include <QString>

#include <vector>

class Connection;

// The stored routes of the distance register, read and corrected by key
// (ID_ODLEGLOSCI). Every function throws DbError on a database failure.
struct RouteRow
{
    int key = 0;
    int fromCity = 0;
    int toCity = 0;
    int kilometres = 0;
    QString fromName;
    QString toName;
    QString toPostcode;
    QString viaName;
};

namespace Routes {

// The routes that start in the city (not those that end there).
std::vector<RouteRow> startingIn(Connection &connection, int cityKey);
// One route with its city names; key 0 when there is no such route.
RouteRow load(Connection &connection, int routeKey);
void setDistance(Connection &connection, int routeKey, int kilometres);
void remove(Connection &connection, int routeKey);

} // namespace Routes
