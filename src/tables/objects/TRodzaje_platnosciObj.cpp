#include "TRodzaje_platnosciObj.h"

const TableDescription<TRodzaje_platnosciObj> &TRodzaje_platnosciObj::description()
{
    using T = TRodzaje_platnosciObj;
    static const TableDescription<T> d{
        {QStringLiteral("RODZAJE_PLATNOSCI"), QStringLiteral("ID_RODZ_PLATNOSCI"), ErrorLogFile::Haulix, InsertWording::WithDo},
        &T::ID_RODZ_PLATNOSCI,
        {
            {QStringLiteral("OPIS"), &T::OPIS},
        },
    };
    return d;
}
