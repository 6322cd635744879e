#include "TStawki_vatObj.h"

const TableDescription<TStawki_vatObj> &TStawki_vatObj::description()
{
    using T = TStawki_vatObj;
    static const TableDescription<T> d{
        {QStringLiteral("STAWKI_VAT"), QStringLiteral("ID_STAWKI"), ErrorLogFile::Haulix, InsertWording::WithDo},
        &T::ID_STAWKI,
        {
            {QStringLiteral("OPIS"), &T::OPIS},
            {QStringLiteral("PROCENT"), &T::PROCENT},
        },
    };
    return d;
}
