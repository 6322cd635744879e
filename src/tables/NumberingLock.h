#pragma once

#include "Transaction.h"

#include <QString>

// A series of numbers proposed from the rows numbered before: the orders
// of a year, the invoices of a kind and month, the road cards of a year.
struct NumberSeries
{
    QString kind;    // what is numbered, e.g. its table's name
    int year = 0;
    int month = 0;   // 0 for a series that runs the whole year
};

// Proposing a number from earlier rows and writing the numbered row must
// be one step across workstations, or two of them propose the same number.
// The series' row of NUMERACJA is the lock: taken with SELECT ... WITH LOCK
// before the proposal, held until the transaction ends.
//
// The transactions are snapshots: one that started before another
// workstation committed its numbered row would not see that row even
// after getting the lock. Firebird refuses such a lock with an update
// conflict, since the other workstation changed the lock row after the
// start; run() then starts over in a new transaction, which sees it.
class NumberingLock
{
public:
    // Takes the series' lock in the running transaction, adding the
    // series' row on its first use. DbError of kind Conflict when another
    // workstation numbered in the series after this transaction started;
    // DbError when no transaction is running (the lock would end with the
    // statement).
    static void take(Transaction &transaction, const NumberSeries &series);

    // Runs work, which proposes and writes numbers of the series, in a
    // scope of the transaction that holds the series' lock, and commits.
    // A conflict starts it over in a new transaction when the scope is the
    // transaction (TransactionScope::retrying), so work must be able to
    // run again from the start. Returns what work returns.
    template <class Work>
    static auto run(Transaction &transaction, const NumberSeries &series, Work &&work)
        -> decltype(work())
    {
        return TransactionScope::retrying(transaction, [&] {
            take(transaction, series);
            return work();
        });
    }
};
