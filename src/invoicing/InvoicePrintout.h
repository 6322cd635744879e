#pragma once

#include "DateTime.h"
#include "InvoiceLine.h"
#include "InvoiceOrderBlock.h"
#include "InvoiceTotals.h"

#include <QString>

#include <vector>

struct InvoiceData;

// The texts and amounts of an invoice printout, worked out from its data;
// the report form only places them.
struct InvoicePrintout
{
    QString title;          // the document kind + " Nr " + the full number
    QString placeAndDate;   // place of issue + " dn.  " + the issue date

    QString sellerName;
    QString sellerStreet;   // after "Ul.", with the PO box when there is one
    QString sellerTown;
    QString sellerNip;      // after "NIP:"
    QString sellerBank;

    QString buyerName;
    QString buyerStreet;
    QString buyerTown;
    QString buyerNip;       // after "NIP:"
    QString buyerIdent;     // after "Ident:"; empty: the line is left out

    QString saleDate;       // after "Data sprzedaży:"
    QString paymentType;    // after "Sposób zapłaty:"
    QString dueDate;        // after "Termin zapłaty:": issue date + payment days
    QString remarks;        // the invoice's remarks; empty: left out

    InvoiceOrderBlock orders;
    std::vector<InvoiceLine> lines;
    InvoiceTotals totals;

    double amountDue = 0.0;
    QString amountDueText;   // after "Do zapłaty:"
    QString amountInWords;   // after "Słownie złotych:"

    QString issuer;          // above the issuer's signature line
    QString receiver;        // above the receiver's signature line

    static InvoicePrintout of(const InvoiceData &data, bool perKilometre);

    // The month and year ("07-2026") when the short form is configured,
    // else the full date.
    static QString saleDateText(DateTime saleDate, bool shortForm);
    // A receiver named "Upoważnienie" (any case) prints three blanks, no
    // receiver four, anyone else by name: the blanks keep the line's place.
    static QString receiverText(const QString &receiver);
};
