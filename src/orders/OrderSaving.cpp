#include "OrderSaving.h"

#include "Distances.h"
#include "IncomingOrderStatements.h"
#include "NumberingLock.h"
#include "OrderNumbering.h"
#include "TZlecenia_przychObj.h"
#include "Transaction.h"

namespace OrderSaving {

namespace {

void write(Connection &connection, TZlecenia_przychObj &order, bool adding)
{
    if (adding)
        order.ID_ZLECENIA_PRZYCH = IncomingOrderStatements::insert(connection, order);
    else
        IncomingOrderStatements::update(connection, order);
    Distances::learn(connection, order.IDMIASTO_OD, order.IDMIASTO_VIA, order.IDMIASTO_DO,
                     order.ODLEGLOSC);
}

int loadingYear(const TZlecenia_przychObj &order)
{
    return order.DATA.isNull() ? 0 : order.DATA.date().year();
}

} // namespace

void save(Transaction &transaction, TZlecenia_przychObj &order, bool adding)
{
    Connection &connection = transaction.connection();
    // Every attempt starts from the order as the editor handed it over.
    TZlecenia_przychObj saved = order;
    if (order.NUMER > 0) {
        TransactionScope scope(transaction);
        write(connection, saved, adding);
        scope.commit();
    } else {
        const int year = loadingYear(order);
        NumberingLock::run(transaction, OrderNumbering::series(year), [&] {
            saved = order;
            saved.NUMER = OrderNumbering::propose(connection, year, order.ID_ZLECENIA_PRZYCH);
            write(connection, saved, adding);
        });
    }
    order = saved;
}

} // namespace OrderSaving
