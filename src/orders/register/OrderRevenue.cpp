#include "OrderRevenue.h"

#include "Money.h"

double orderRevenue(const OrderRevenueFigures &f)
{
    if (f.wholeAmount >= 1)
        return f.wholeAmount;
    return Money::RoundTo2(f.loadedKm * f.loadedKmRate) + Money::RoundTo2(f.emptyKm * f.emptyKmRate)
        + Money::RoundTo2(f.hours * f.hourRate) + Money::RoundTo2(f.pallets * f.palletRate);
}
