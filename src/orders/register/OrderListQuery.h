#pragma once

#include <QDate>
#include <QStringList>

class Statement;

// What the register's filter controls say about the orders to list.
struct OrderListFilter
{
    // The kinds of order of the "Rodzaj zlecenia" group, by item index.
    enum Kind { AllKinds = 0, Forwarded = 1, OwnHaulage = 2 };
    // The "Umiejscowienie" group, by item index.
    enum Location { AllLocations = 0, OutsideBranch = 1, BranchOnly = 2 };

    QDate from;
    QDate to;
    int kind = AllKinds;
    int location = AllLocations;
    // The item index of the partner list; 0 is "---" (no filter).
    int partnerIndex = 0;
    // The company's own contractor (IDWłaściciela).
    int ownerKey = 0;
};

// The statement the register lists its orders with. Orders without a
// loading date (templates among them) are listed whatever the range.
namespace OrderListQuery {

QStringList lines(const OrderListFilter &filter);

// Puts the lines into the statement and binds the dates.
void prepare(Statement &statement, const OrderListFilter &filter);

} // namespace OrderListQuery
