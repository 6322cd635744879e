#pragma once

#include <QDate>
#include <QStringList>

#include <vector>

class Connection;
class Statement;

// The orders the invoicing form offers: loaded within the range and not
// invoiced yet, of one client or of all (a client key of 0 or less).
namespace InvoiceableOrders {

struct Column
{
    const char *caption;
    int width;
};
// "Numer", "Zleceniodawca", "Przewoźnik", "Data załad", "Typ", "Trasa",
// "Nr.Karty", "Nr.Listu".
const std::vector<Column> &columns();

struct Row
{
    QStringList texts;   // the caption ("Numer") first
    int key = 0;         // ID_ZLECENIA_PRZYCH
};

// Reads them; DbError to the caller.
std::vector<Row> read(Connection &connection, const QDate &from, const QDate &to, int client);

} // namespace InvoiceableOrders
