#include "TKonta_bankoweObj.h"

const TableDescription<TKonta_bankoweObj> &TKonta_bankoweObj::description()
{
    using T = TKonta_bankoweObj;
    static const TableDescription<T> d{
        {QStringLiteral("KONTA_BANKOWE"), QStringLiteral("ID_KONTA"), ErrorLogFile::Sql, InsertWording::WithoutDo},
        &T::ID_KONTA,
        {
            {QStringLiteral("BANK"), &T::BANK},
            {QStringLiteral("RACHUNEK"), &T::RACHUNEK},
            {QStringLiteral("OPIS"), &T::OPIS},
            {QStringLiteral("DEFAULT_KONTO"), &T::DEFAULT_KONTO},
            {QStringLiteral("RACHUNEK1"), &T::RACHUNEK1},
            {QStringLiteral("RACHUNEK2"), &T::RACHUNEK2},
            {QStringLiteral("RACHUNEK3"), &T::RACHUNEK3},
        },
    };
    return d;
}
