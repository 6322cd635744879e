#pragma once

class Connection;
class Transaction;

// Copies an incoming order with its first loading place, its first
// unloading place and its goods, as one transaction: when any step fails
// (the failing table object has shown why) nothing of the copy stays.
// The copy has no invoice and number 0, so the editor proposes a fresh
// number when it is saved; every other column comes from the source.
// Returns the new order's key, 0 when nothing was copied. A database
// failure outside the table objects throws DbError, after the rollback.
int copyOrderWithPlacesAndGoods(Connection &connection, Transaction &transaction, int sourceKey);
