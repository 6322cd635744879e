#pragma once

// The figures of an order the register's revenue column is made of.
struct OrderRevenueFigures
{
    int wholeAmount = 0;   // KWOTA read as a whole number
    int loadedKm = 0;      // KM_LADOWNE, a whole number
    double loadedKmRate = 0.0;
    double emptyKm = 0.0;
    double emptyKmRate = 0.0;
    double hours = 0.0;
    double hourRate = 0.0;
    int pallets = 0;       // PALETYILOSC, a whole number
    double palletRate = 0.0;
};

// An agreed amount of at least 1 is the revenue, without its fraction (a
// whole-number reading that the dispatchers' figures have always shown).
// Below that, the revenue is the sum of kilometres, hours and pallets at
// their rates, each product rounded to the cent first.
double orderRevenue(const OrderRevenueFigures &figures);
