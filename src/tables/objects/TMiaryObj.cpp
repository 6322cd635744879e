#include "TMiaryObj.h"

const TableDescription<TMiaryObj> &TMiaryObj::description()
{
    using T = TMiaryObj;
    static const TableDescription<T> d{
        {QStringLiteral("MIARY"), QStringLiteral("ID_MIARY"), ErrorLogFile::Haulix, InsertWording::WithDo},
        &T::ID_MIARY,
        {
            {QStringLiteral("NAZWA"), &T::NAZWA},
            {QStringLiteral("SKROT"), &T::SKROT},
        },
    };
    return d;
}
