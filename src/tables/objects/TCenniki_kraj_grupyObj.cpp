#include "TCenniki_kraj_grupyObj.h"

const TableDescription<TCenniki_kraj_grupyObj> &TCenniki_kraj_grupyObj::description()
{
    using T = TCenniki_kraj_grupyObj;
    static const TableDescription<T> d{
        {QStringLiteral("CENNIKI_KRAJ_GRUPY"), QStringLiteral("ID_CENNIKI_KRAJ_GRUPY"), ErrorLogFile::Sql, InsertWording::WithDo},
        &T::ID_CENNIKI_KRAJ_GRUPY,
        {
            {QStringLiteral("NAZWA"), &T::NAZWA},
            {QStringLiteral("BLOKADA"), &T::BLOKADA},
        },
    };
    return d;
}
