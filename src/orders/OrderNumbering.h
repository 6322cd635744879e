#pragma once

class Connection;

namespace OrderNumbering {

// The number a new order of the loading year gets: the number of the most
// recently inserted order of that year plus one, 1 for the year's first.
// The latest insert decides, not the highest number, so that a dispatcher
// who restarts the numbering by hand is followed. DbError to the caller.
int propose(Connection &connection, int year);

} // namespace OrderNumbering
