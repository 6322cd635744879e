#include "TTerminyObj.h"

const TableDescription<TTerminyObj> &TTerminyObj::description()
{
    using T = TTerminyObj;
    static const TableDescription<T> d{
        {QStringLiteral("TERMINY"), QStringLiteral("ID_TERMINU"), ErrorLogFile::Sql,
         InsertWording::WithDo},
        &T::ID_TERMINU,
        {
            {QStringLiteral("DATA"), &T::DATA},
            {QStringLiteral("GODZINA"), &T::GODZINA},
            {QStringLiteral("TRESC"), &T::TRESC},
            {QStringLiteral("ID_USER"), &T::ID_USER},
            {QStringLiteral("WYKONANE"), &T::WYKONANE},
        },
    };
    return d;
}
