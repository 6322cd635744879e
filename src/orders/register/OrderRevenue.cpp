#include "OrderRevenue.h"

#include "OrderRates.h"

double orderRevenue(const OrderRevenueFigures &f)
{
    if (f.wholeAmount >= 1)
        return f.wholeAmount;
    return OrderRates::priced({f.loadedKm, f.emptyKm, f.hours, f.pallets},
                              {f.loadedKmRate, f.emptyKmRate, f.hourRate, f.palletRate});
}
