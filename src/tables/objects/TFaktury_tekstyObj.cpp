#include "TFaktury_tekstyObj.h"

const TableDescription<TFaktury_tekstyObj> &TFaktury_tekstyObj::description()
{
    using T = TFaktury_tekstyObj;
    static const TableDescription<T> d{
        {QStringLiteral("FAKTURY_TEKSTY"), QStringLiteral("ID_TEKSTU"), ErrorLogFile::Haulix, InsertWording::WithDo},
        &T::ID_TEKSTU,
        {
            {QStringLiteral("NAZWA"), &T::NAZWA},
        },
    };
    return d;
}
