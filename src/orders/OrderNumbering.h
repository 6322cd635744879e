#pragma once

#include "NumberingLock.h"

class Connection;

namespace OrderNumbering {

// The number a new order of the loading year gets: the number of the most
// recently inserted order of that year plus one, 1 for the year's first.
// The latest insert decides, not the highest number, so that a dispatcher
// who restarts the numbering by hand is followed. The order being numbered
// (savedKey, 0 for a new one) and orders without a number do not count: a
// copy inserted with number 0 is numbered after the order before it, not
// after itself. Another workstation may propose the same number until the
// order is written: propose under the lock of series(year). DbError to
// the caller.
int propose(Connection &connection, int year, int savedKey = 0);

// The orders' numbers of one loading year.
NumberSeries series(int year);

} // namespace OrderNumbering
