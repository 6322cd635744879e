#pragma once

#include "DateTime.h"

#include <QString>

#include <vector>

class Statement;

// One carrier's invoice as the carriers' lists print it, under the names
// their statements give the columns.
struct CarrierInvoiceRow
{
    int orderNumber = 0;      // nr_zlecenia
    QString number;           // numer_pelny
    DateTime received;        // Data_otrzy
    DateTime issued;          // data_wystawienia
    DateTime due;             // platnedo: issue date + payment days
    DateTime paymentDate;     // DATAPLAT
    double amount = 0.0;      // brutto
    double paidAmount = 0.0;  // ZAPLACONA_KWOTA, payment list only
    double days = 0.0;        // DNI: days before the due date, negative when late
    QString shortName;        // skrot
    QString street;           // ulica
    QString city;             // miasto
    QString name;             // nazwa

    // "Ilość dni spóźnienia": the whole days the invoice is (or was paid)
    // late, blank when it is not late. DNI counts from the start of the due
    // day, so an invoice due today, or paid on its due day, is not late.
    QString daysLate() const;
    // The carrier's header line: skrot ; miasto  ulica
    QString carrierHeader() const;

    // Every row of an executed statement of the carriers' lists; the
    // payment list alone has ZAPLACONA_KWOTA. Throws DbError.
    static std::vector<CarrierInvoiceRow> readAll(Statement &statement);
};
