#pragma once

#include "DateTime.h"

#include <QString>

#include <optional>

class Connection;

// A carrier's invoice for an incoming order, kept in the order's own row.
// NRRAMPY serves as its paid mark (1 = paid, anything else unpaid): the
// carriers' lists select on it.
struct CarrierInvoice
{
    bool paid = false;            // NRRAMPY = 1
    QString number;               // NUMER_FAKT_PRZEW
    DateTime issued;              // DATA_FAKT_WYSTAWIENIA
    DateTime received;            // DATA_FAKT_OTRZYMANIA
    double amount = 0.0;          // KWOTA_FAKT_PRZEW, as typed in the net field
    int paymentDays = 0;          // DNI_FAKT
    DateTime paymentDate;         // DATA_FAKT_PLATNOSCI
    double paidAmount = 0.0;      // ZAPLACONA_KWOTA

    // The limits of what the entry dialog lets through.
    static constexpr double MaxAmount = 99999.0;
    static constexpr int MaxPaymentDays = 999;
    static constexpr int MaxNumberLength = 40;

    enum class Field { Number, Issued, Received, PaymentDays, Amount, PaymentDate, PaidAmount };
    struct Problem
    {
        Field field;
        QString message;   // a Polish sentence for the dispatcher
    };
    // The first value that cannot be stored as it is: a date outside the
    // years 1900-2100, an amount or a number of days out of range, a number
    // too long. Nothing when all can be stored.
    std::optional<Problem> problem() const;

    // What the dialog shows beside the amount: the amount with 23 % VAT.
    // Only shown; the lists print the typed amount.
    static double gross(double amount) { return amount + amount * 0.23; }

    // The invoice of an order; nothing when the order is not there (another
    // workstation may have deleted it). Throws DbError.
    static std::optional<CarrierInvoice> load(Connection &connection, int orderKey);

    // Writes the eight columns of the invoice into the order and nothing
    // else, so that what another workstation changed in the order meanwhile
    // stays. False when the order is not there. Throws DbError.
    bool save(Connection &connection, int orderKey) const;
};
