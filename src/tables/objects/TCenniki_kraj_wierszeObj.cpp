#include "TCenniki_kraj_wierszeObj.h"

const TableDescription<TCenniki_kraj_wierszeObj> &TCenniki_kraj_wierszeObj::description()
{
    using T = TCenniki_kraj_wierszeObj;
    static const TableDescription<T> d{
        {QStringLiteral("CENNIKI_KRAJ_WIERSZE"), QStringLiteral("ID_CENNIKI_KRAJ_WIERSZE"), ErrorLogFile::Sql, InsertWording::WithDo},
        &T::ID_CENNIKI_KRAJ_WIERSZE,
        {
            {QStringLiteral("ZAKRES_WOD"), &T::ZAKRES_WOD},
            {QStringLiteral("ZAKRES_WDO"), &T::ZAKRES_WDO},
        },
    };
    return d;
}
