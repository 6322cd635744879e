#include "OrderCopy.h"

#include "OrderPlaces.h"
#include "TMiejsca_zlecObj.h"
#include "TTowaryObj.h"
#include "TZlecenia_przychObj.h"
#include "Transaction.h"

namespace {

bool copyFirstPlace(Connection &connection, int sourceKey, int placeType, int targetKey)
{
    const std::vector<TMiejsca_zlecObj> places
        = TMiejsca_zlecObj(connection).SelectClause(OrderPlaces::clause(sourceKey, placeType));
    if (places.empty())
        return true;
    TMiejsca_zlecObj copy = places.front();
    copy.ID_ZLECENIA = targetKey;
    return copy.Insert();
}

bool copyGoods(Connection &connection, int sourceKey, int targetKey)
{
    const std::vector<TTowaryObj> goods = TTowaryObj(connection).SelectClause(
        QStringLiteral("WHERE id_zlecenia=") + QString::number(sourceKey));
    for (const TTowaryObj &item : goods) {
        TTowaryObj copy(connection);
        copy.ID_ZLECENIA = targetKey;
        copy.NAZWA = item.NAZWA;
        copy.NUMER1 = item.NUMER1;
        copy.NUMER2 = item.NUMER2;
        copy.ILOSC = item.ILOSC;
        copy.ID_JEDNOSTKI_MIARY = item.ID_JEDNOSTKI_MIARY;
        copy.ILOSC_DEKLAROWANA = item.ILOSC_DEKLAROWANA;
        if (!copy.Insert())
            return false;
    }
    return true;
}

} // namespace

int copyOrderWithPlacesAndGoods(Connection &connection, Transaction &transaction, int sourceKey)
{
    TransactionScope scope(transaction);
    TZlecenia_przychObj order = TZlecenia_przychObj(connection).SelectById(sourceKey);
    if (order.ID_ZLECENIA_PRZYCH == 0)
        return 0;
    order.IDFAKTURY = 0;
    order.NUMER = 0;
    if (!order.Insert())
        return 0;
    const int copyKey = order.ID_ZLECENIA_PRZYCH;
    if (!copyFirstPlace(connection, sourceKey, OrderPlaces::Loading, copyKey)
        || !copyFirstPlace(connection, sourceKey, OrderPlaces::Unloading, copyKey)
        || !copyGoods(connection, sourceKey, copyKey))
        return 0;
    scope.commit();
    return copyKey;
}
