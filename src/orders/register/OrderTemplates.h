#pragma once

#include <QDate>

class Connection;
class Transaction;

// Template orders: orders without a loading date whose PALETYPLAN is not 0.
// A set of templates is used once: inserting them for a day turns them
// into plain undated orders.
namespace OrderTemplates {

// Whether some order is loaded on the day already.
bool ordersOnDay(Connection &connection, const QDate &day);

// Inserts one order per template for the day, with the template's goods,
// then stops the templates being templates; all in one transaction. The
// new orders are planned for as many pallets as their template and
// unloaded now. Returns how many orders were inserted; 0 and nothing
// changed when a table object failed (it has said why). Other database
// failures throw DbError, after the rollback.
int insertForDay(Connection &connection, Transaction &transaction, const QDate &day);

} // namespace OrderTemplates
