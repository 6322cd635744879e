#pragma once

#include "TFakturyObj.h"

#include <QString>

#include <vector>

class Transaction;

// Writing an invoice of orders: its number, the invoice, its one position,
// the orders linked to it and its remarks, all or nothing. The number is
// proposed and written under the lock of its series, so that two
// workstations never give the same number; an order that another
// workstation invoiced meanwhile stops the invoicing instead of being
// invoiced twice.
namespace OrderInvoicing {

struct Request
{
    // The header as confirmed (TfrmFakturowanie or its proposal);
    // OPIS_POZYCJI holds the service name.
    TFakturyObj header;
    std::vector<int> orderKeys;
    double netTotal = 0.0;
    // Whether the month of the date of sale numbers the invoice, rather
    // than the month of issue.
    bool bySaleDate = false;
    QString remarks;
    int userId = 0;
};

struct Issued
{
    int key = 0;
    int number = 0;
    QString fullNumber;
};

// Throws InvoicingError (shown already by a table object when its message
// is empty) or DbError; nothing of the invoice is left behind then.
Issued issue(Transaction &transaction, const Request &request);

} // namespace OrderInvoicing
