#include "TMiastaObj.h"

const TableDescription<TMiastaObj> &TMiastaObj::description()
{
    using T = TMiastaObj;
    static const TableDescription<T> d{
        {QStringLiteral("MIASTA"), QStringLiteral("ID_MIASTA"), ErrorLogFile::Sql, InsertWording::WithDo},
        &T::ID_MIASTA,
        {
            {QStringLiteral("NAZWA"), &T::NAZWA},
            {QStringLiteral("KOD"), &T::KOD},
            {QStringLiteral("IDWOJEWODZTWA"), &T::IDWOJEWODZTWA},
            {QStringLiteral("IDKRAJU"), &T::IDKRAJU},
        },
    };
    return d;
}
