#pragma once

#include "DateTime.h"

#include <QString>

class Connection;

// Conversion of a foreign-currency amount into the domestic currency by the
// exchange-rate tables of NUMERY_TABEL_KURSOW and TABELE_KURSOW.
namespace CurrencyConversion {

// What a conversion found. quantity 0 means no rate (the caller shows its
// own message).
struct Rate
{
    int tableID = -1;      // the rate table used; -1 when none is dated on or before the date
    DateTime date;         // the date of the table found, else the date asked for
    QString tableNumber;   // its NUMER
    int quantity = 0;      // ILOSC: units of the currency the rate is quoted for
    double rate = 0.0;     // KURS
    double amount = 0.0;   // the converted amount, 0 without a rate
};

// The domestic currency converts at rate 1 for 1 without a query. For
// another currency a tableID below 1 asks for the latest table dated on or
// before `date`; a tableID of 1 or more uses that table (its number read by
// key, the date left as given). The result is rate / quantity x amount
// rounded to the cent with ties to the even cent. tableNumber is cut to
// nameLength characters. Database failures throw DbError.
Rate convert(Connection &connection, int domesticCurrencyID, int tableID, int currencyID,
             DateTime date, int nameLength, double amount);

} // namespace CurrencyConversion
