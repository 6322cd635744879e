#pragma once

#include "OrderGoods.h"

#include <QString>

#include <vector>

class TZlecenia_przychObj;

// The block of an invoice's title that names what the invoice is for: no
// order, exactly one (described in full) or several (listed on the
// attachment instead).
struct InvoiceOrderBlock
{
    QString reference;     // "Dotyczy zlecenia: " and the number, one order only
    QString serviceDate;   // after "Za: Usługi haulixowe w dniu:"
    QString goods;         // after "Przewóz towaru:"
    QString rate;          // after "Stawka:"
    QString vehicle;       // after "Pojazd:"
    QString card;          // after "Nr karty:"
    QString orderNumber;   // after "Nr zlecenia:"

    // goods are those of the order when there is exactly one.
    static InvoiceOrderBlock of(const std::vector<TZlecenia_przychObj> &orders,
                                const std::vector<OrderGoodsItem> &goods, bool perKilometre);
};
