#pragma once

#include <QString>

#include <vector>

// The revenue accounts an invoice of orders is booked to, in the order the
// header dialog offers them. The invoice keeps the chosen position + 1 in
// DZIAL; the accounting module reads the account from that position, so
// the order of the list is fixed.
namespace RevenueAccounts {

struct Account
{
    QString number;
    QString label;
    // As the dialog shows it: the number first, as accountants look for it.
    QString text() const { return number + QLatin1Char(' ') + label; }
};

const std::vector<Account> &all();

// Haulage with the company's own vehicles is booked as domestic haulage,
// everything else as domestic forwarding.
int defaultIndex(bool ownFleet);

} // namespace RevenueAccounts
