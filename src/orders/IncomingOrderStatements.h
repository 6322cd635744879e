#pragma once

#include "TZlecenia_przychObj.h"

class Connection;

// The order editor's own statements on ZLECENIA_PRZYCH. They write only
// the columns the editor shows or carries over, so that what other dialogs
// keep in an order (invoice, collective order, carrier invoice, closing)
// survives a correction. Each throws DbError.
namespace IncomingOrderStatements {

// The order by key with every column; a key that is not there gives a
// record whose key is 0.
TZlecenia_przychObj load(Connection &connection, int orderKey);

// A new order with the issuing user IDUSER of the record; returns the key
// the database gave it.
int insert(Connection &connection, const TZlecenia_przychObj &order);

// The same columns but IDUSER, on the order with the record's key.
void update(Connection &connection, const TZlecenia_przychObj &order);

// The columns both statements write, as their texts spell them.
QStringList insertedColumns();

} // namespace IncomingOrderStatements
