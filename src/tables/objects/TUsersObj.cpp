#include "TUsersObj.h"

const TableDescription<TUsersObj> &TUsersObj::description()
{
    using T = TUsersObj;
    static const TableDescription<T> d{
        {QStringLiteral("USERS"), QStringLiteral("ID_USER"), ErrorLogFile::Haulix, InsertWording::WithDo},
        &T::ID_USER,
        {
            {QStringLiteral("LOGIN"), &T::LOGIN},
            {QStringLiteral("IMIE"), &T::IMIE},
            {QStringLiteral("NAZWISKO"), &T::NAZWISKO},
            {QStringLiteral("VISIBLE"), &T::VISIBLE},
            {QStringLiteral("ID_GRUPY"), &T::ID_GRUPY},
            {QStringLiteral("ADRES"), &T::ADRES},
            {QStringLiteral("KOD"), &T::KOD},
            {QStringLiteral("MIASTO"), &T::MIASTO},
            {QStringLiteral("LOCK"), &T::LOCK},
            {QStringLiteral("PASSCHANGED"), &T::PASSCHANGED},
            {QStringLiteral("PASS"), &T::PASS},
        },
    };
    return d;
}
