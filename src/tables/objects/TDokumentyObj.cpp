#include "TDokumentyObj.h"

const TableDescription<TDokumentyObj> &TDokumentyObj::description()
{
    using T = TDokumentyObj;
    static const TableDescription<T> d{
        {QStringLiteral("DOKUMENTY"), QStringLiteral("ID_DOKUMENTU"), ErrorLogFile::Sql, InsertWording::WithDo},
        &T::ID_DOKUMENTU,
        {
            {QStringLiteral("NAZWA"), &T::NAZWA},
            {QStringLiteral("RODZAJE_AKCJI"), &T::RODZAJE_AKCJI},
            {QStringLiteral("DOMYSLNY"), &T::DOMYSLNY},
            {QStringLiteral("ID_MASKI"), &T::ID_MASKI},
        },
    };
    return d;
}
