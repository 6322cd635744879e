#include "TSymbole_walutObj.h"

const TableDescription<TSymbole_walutObj> &TSymbole_walutObj::description()
{
    using T = TSymbole_walutObj;
    static const TableDescription<T> d{
        {QStringLiteral("SYMBOLE_WALUT"), QStringLiteral("ID_WALUTY"), ErrorLogFile::Haulix, InsertWording::WithDo},
        &T::ID_WALUTY,
        {
            {QStringLiteral("ID_KRAJU"), &T::ID_KRAJU},
            {QStringLiteral("SYMBOL"), &T::SYMBOL},
            {QStringLiteral("NAZWA"), &T::NAZWA},
            {QStringLiteral("DEF_ILOSC"), &T::DEF_ILOSC},
            {QStringLiteral("HTTPSTRING"), &T::HTTPSTRING},
        },
    };
    return d;
}
