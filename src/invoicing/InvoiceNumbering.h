#pragma once

#include "DateTime.h"
#include "NumberingLock.h"

class Connection;

// Invoices are numbered per document kind and settlement month: the month
// of the issue date, or of the date of sale when the dispatcher settles by
// sale. The year is always the issue date's, also when the month is the
// sale's: a sale in December invoiced in January starts no new year.
namespace InvoiceNumbering {

struct Settlement
{
    int documentKind = 0;
    DateTime issued;
    DateTime sold;
    bool bySaleDate = false;

    // The date whose month numbers the invoice.
    DateTime date() const { return bySaleDate ? sold : issued; }
};

// The highest NR_KOLEJNY of the settlement's series plus one, 1 for the
// first. Another workstation may propose the same number until the invoice
// is written: propose under the lock of series(). DbError to the caller.
int next(Connection &connection, const Settlement &settlement);

// The lock that makes proposing and writing one step across workstations.
NumberSeries series(const Settlement &settlement);

} // namespace InvoiceNumbering
