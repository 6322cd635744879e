#pragma once

#include <QString>

class TZlecenia_przychObj;

// The "Stawka:" text of an invoice that covers one order.
namespace InvoiceRateText {

// An order with a tariff: its rates on one line and the quantities they
// apply to on the next (joined by CR LF), each part only when both the rate
// and its quantity are above zero: per tonne, per kilometre, per hour.
// perKilometre words the kilometres as "za każdy kilometr" instead of per
// laden kilometre. An order without a tariff shows its agreed amount.
QString of(const TZlecenia_przychObj &order, bool perKilometre);

} // namespace InvoiceRateText
