#pragma once

#include <QString>

#include <vector>

class Connection;

// The goods of an order (TOWARY) with the abbreviation of their unit
// (MIARY), in the order they were entered.
struct OrderGoodsItem
{
    QString name;          // NAZWA
    double quantity = 0.0; // ILOSC, the actual quantity
    double declared = 0.0; // ILOSC_DEKLAROWANA
    QString unit;          // MIARY.SKROT
    QString adr;           // NUMER1, the dangerous goods class
    QString description;   // NUMER2

    // "Cement workowany 12,5 t": the name, then the quantity and unit when
    // there is a quantity.
    QString text() const;
};

namespace OrderGoods {

// Throws DbError.
std::vector<OrderGoodsItem> of(Connection &connection, int orderKey);

} // namespace OrderGoods
