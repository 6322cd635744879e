#include "TCenniki_krajObj.h"

const TableDescription<TCenniki_krajObj> &TCenniki_krajObj::description()
{
    using T = TCenniki_krajObj;
    static const TableDescription<T> d{
        {QStringLiteral("CENNIKI_KRAJ"), QStringLiteral("ID_CENNIKI_KRAJ"), ErrorLogFile::Sql, InsertWording::WithDo},
        &T::ID_CENNIKI_KRAJ,
        {
            {QStringLiteral("GRUPA"), &T::GRUPA},
            {QStringLiteral("KWOTA"), &T::KWOTA},
            {QStringLiteral("KILOGRAMY"), &T::KILOGRAMY},
            {QStringLiteral("KILOMETRY"), &T::KILOMETRY},
        },
    };
    return d;
}
