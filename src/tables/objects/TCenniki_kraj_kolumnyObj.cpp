#include "TCenniki_kraj_kolumnyObj.h"

const TableDescription<TCenniki_kraj_kolumnyObj> &TCenniki_kraj_kolumnyObj::description()
{
    using T = TCenniki_kraj_kolumnyObj;
    static const TableDescription<T> d{
        {QStringLiteral("CENNIKI_KRAJ_KOLUMNY"), QStringLiteral("ID_CENNIKI_KRAJ_KOLUMNY"), ErrorLogFile::Sql, InsertWording::WithDo},
        &T::ID_CENNIKI_KRAJ_KOLUMNY,
        {
            {QStringLiteral("ZAKRES_KOD"), &T::ZAKRES_KOD},
            {QStringLiteral("ZAKRES_KDO"), &T::ZAKRES_KDO},
        },
    };
    return d;
}
