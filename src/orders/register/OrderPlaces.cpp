#include "OrderPlaces.h"

#include "TMiejsca_zlecObj.h"

namespace OrderPlaces {

QString clause(int orderKey, int type)
{
    return QStringLiteral("where ID_ZLECENIA=") + QString::number(orderKey)
        + QStringLiteral(" AND ID_ZRP=") + QString::number(type);
}

TMiejsca_zlecObj placeOf(Connection &connection, int orderKey, int type)
{
    TMiejsca_zlecObj places(connection);
    std::vector<TMiejsca_zlecObj> found = places.SelectClause(clause(orderKey, type));
    if (!found.empty())
        return std::move(found.front());
    TMiejsca_zlecObj place(connection);
    place.ID_ZLECENIA = orderKey;
    place.ID_ZRP = type;
    place.Insert();
    return place;
}

} // namespace OrderPlaces
