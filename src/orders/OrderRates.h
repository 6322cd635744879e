#pragma once

// What an order is priced from: four quantities, each with its unit rate.
// The tonnage travels in the column KM_PUSTE and its rate in STAWKA_KMPUSTY;
// the names stayed when the meaning moved.
struct OrderQuantities
{
    int loadedKilometres = 0;
    double tonnes = 0.0;
    double hours = 0.0;
    int pallets = 0;
};

struct UnitRates
{
    double perLoadedKilometre = 0.0;
    double perTonne = 0.0;
    double perHour = 0.0;
    double perPallet = 0.0;
};

namespace OrderRates {

// Each product rounded to the grosz before the products are added, so the
// sum matches what the invoice lines show one by one.
double priced(const OrderQuantities &quantities, const UnitRates &rates);

// The order's total rate: the agreed amount when the rate is agreed,
// otherwise the quantities priced at the rates.
double total(bool agreed, double agreedAmount, const OrderQuantities &quantities,
             const UnitRates &rates);

} // namespace OrderRates
