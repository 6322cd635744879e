#include "TKrajeObj.h"

const TableDescription<TKrajeObj> &TKrajeObj::description()
{
    using T = TKrajeObj;
    static const TableDescription<T> d{
        {QStringLiteral("KRAJE"), QStringLiteral("ID_KRAJU"), ErrorLogFile::Sql, InsertWording::WithDo},
        &T::ID_KRAJU,
        {
            {QStringLiteral("SYMBOL"), &T::SYMBOL},
            {QStringLiteral("NAZWA"), &T::NAZWA},
            {QStringLiteral("HTTPSTRING"), &T::HTTPSTRING},
            {QStringLiteral("KOD_POCZTOWY_MASKA"), &T::KOD_POCZTOWY_MASKA},
        },
    };
    return d;
}
