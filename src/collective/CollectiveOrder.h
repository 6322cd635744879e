#pragma once

#include "DateTime.h"

#include <QString>

class Connection;
class TZlecenia_zbiorObj;

// The head of one collective order as its editor shows it: number, dates,
// the trip, and who carries it (the company itself or an outside carrier)
// with vehicle, driver, rate, payment term and the carrier's invoice.
struct CollectiveOrder
{
    int number = 0;
    DateTime date;
    DateTime loadingDate;
    DateTime unloadingDate;
    int paymentDays = 35;
    int textNumber = 0;          // the fixed text printed with the order
    int tripNumber = 0;
    int ownTariff = 0;
    QString ownTariffName;
    // The company's own fleet carries it when true; carrier is then the
    // company's own contractor key.
    bool ownFleet = false;
    int carrier = 0;
    int vehicle = 0;
    QString vehicleText;
    int driver = 0;
    QString driverText;
    double ownRate = 0.0;
    // Only what was typed in this edit: the stored number is not read
    // back, so an edit that does not retype it clears it.
    QString carrierInvoice;
    int vatRate = 0;
    DateTime carrierIssued;
    double carrierAmount = 0.0;

    // Reads it from VZLECENIA_ZBIOR; ownerKey is the company's own key
    // as a carrier. A key not there gives a record of number 0. DbError
    // reaches the caller; a failed select has been shown by its table
    // object.
    static CollectiveOrder load(Connection &connection, int key, int ownerKey);

    // The record as saved: the columns above (dates only, no time of
    // day), the carrier's side by ownFleet; every other column keeps what
    // the table object gives a new record.
    TZlecenia_zbiorObj record(Connection &connection, int key, int ownerKey) const;

    // Inserts (key 0) or updates the record; false after a failure its
    // table object has shown. An insert gives back the new key.
    bool save(Connection &connection, int &key, int ownerKey) const;
};
