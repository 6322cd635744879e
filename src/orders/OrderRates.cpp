#include "OrderRates.h"

#include "Money.h"

namespace OrderRates {

double priced(const OrderQuantities &q, const UnitRates &r)
{
    return Money::RoundTo2(q.loadedKilometres * r.perLoadedKilometre)
        + Money::RoundTo2(q.tonnes * r.perTonne) + Money::RoundTo2(q.hours * r.perHour)
        + Money::RoundTo2(q.pallets * r.perPallet);
}

double total(bool agreed, double agreedAmount, const OrderQuantities &quantities,
             const UnitRates &rates)
{
    return agreed ? agreedAmount : priced(quantities, rates);
}

} // namespace OrderRates
