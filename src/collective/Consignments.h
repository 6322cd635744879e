#pragma once

#include <QDate>
#include <QStringList>

#include <vector>

class Connection;
class Transaction;

// The incoming orders loaded on the vehicle of a collective order (their
// IDZLECENIAZBIOR points to it) and the unassigned ones that can be added.
namespace Consignments {

struct Column
{
    const char *caption;
    int width;   // -1: the list's default width
};
// "Typ", "Nazwa klienta", ("Miasto (city)",) "Plan palet", "Ilość palet",
// "Różnica palet", "Rampa nr", "Zwroty", "Awizo", "Przewoźnik" (the
// driver), "Numer pojazdu", "Ładowność palet", "Numer telefonu".
std::vector<Column> columns(bool withCity);

struct Row
{
    QStringList texts;   // the caption ("Typ") first
    int key = 0;         // ID_ZLECENIA_PRZYCH
    int plannedPallets = 0;
};

// The consignments of a collective order; DbError to the caller.
std::vector<Row> onVehicle(Connection &connection, int collectiveKey);

// Orders loaded within the range that no collective order holds (link
// NULL or 0), with the city column; undated orders are never among them.
std::vector<Row> unassigned(Connection &connection, const QDate &from, const QDate &to);

// What the vehicle is loaded with: the planned pallets, not those counted.
int plannedPallets(const std::vector<Row> &rows);

// More planned than the vehicle takes.
inline bool overloaded(int capacity, int planned)
{
    return capacity < planned;
}

// Takes one order off its vehicle; DbError to the caller.
void unlink(Connection &connection, int orderKey);

// Puts the orders on the collective order, all or none; false when a
// table object failed (and has shown why). DbError to the caller.
bool assign(Transaction &transaction, const std::vector<int> &orderKeys, int collectiveKey);

} // namespace Consignments
