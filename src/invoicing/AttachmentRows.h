#pragma once

#include "DateTime.h"

#include <QString>

#include <vector>

class Connection;
class TVzlecenia_przychObj;

// One order of an invoice's attachment as its line prints it.
struct AttachmentRow
{
    QString number;       // "Nr.zlecenia": NUMER, or NR_KARTY when NUMER is below 1
    QString vehicle;      // "Nr.rejestr"
    QString amount;       // "Kwota"
    QString quantities;   // "Kilometry": "---" for an agreed amount
    QString rates;        // "Stawka": "Umowna" for an agreed amount
    QString from;         // "Miejsce Zał."
    QString via;          // "Przez"
    QString to;           // "Miejsce rozł."
    QString dates;        // loading and unloading date
    QString goods;        // the first goods of the order
    QString deliveryNote; // "NrWZ"
    QString tax;          // "Podatek": the stamp fee
    QString total;        // "Razem": amount + stamp fee

    double amountValue = 0.0;
    double taxValue = 0.0;
    double totalValue = 0.0;

    // The unloading date and the first goods name come from outside the
    // view the row is made from.
    static AttachmentRow of(const TVzlecenia_przychObj &order, DateTime unloading,
                            const QString &firstGoods);
};

// The attachment of one invoice: its number, the orders it covers sorted
// by their six-character number and then by vehicle, and the totals.
struct AttachmentRows
{
    QString invoiceNumber;
    std::vector<AttachmentRow> rows;
    double amount = 0.0;
    double tax = 0.0;
    double total = 0.0;

    // Throws PrintoutError for an invoice that is not there, DbError when
    // the database fails.
    static AttachmentRows load(Connection &connection, int invoiceKey);
};
