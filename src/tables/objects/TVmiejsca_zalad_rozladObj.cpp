#include "TVmiejsca_zalad_rozladObj.h"

const TableDescription<TVmiejsca_zalad_rozladObj> &TVmiejsca_zalad_rozladObj::description()
{
    using T = TVmiejsca_zalad_rozladObj;
    static const TableDescription<T> d{
        {QStringLiteral("VMIEJSCA_ZALAD_ROZLAD"), QStringLiteral("ID_MIEJSCA_ZALAD_ROZLAD"), ErrorLogFile::Sql, InsertWording::WithDo},
        &T::ID_MIEJSCA_ZALAD_ROZLAD,
        {
            {QStringLiteral("ID_MIEJSCA"), &T::ID_MIEJSCA},
            {QStringLiteral("ID_ZLECENIA"), &T::ID_ZLECENIA},
            {QStringLiteral("MIEJSCA_NAZWA"), &T::MIEJSCA_NAZWA},
            {QStringLiteral("MIEJSCA_MIASTO"), &T::MIEJSCA_MIASTO},
            {QStringLiteral("MIEJSCA_KOD"), &T::MIEJSCA_KOD},
            {QStringLiteral("MIEJSCA_ADRES"), &T::MIEJSCA_ADRES},
            {QStringLiteral("KRAJE_NAZWA"), &T::KRAJE_NAZWA},
            {QStringLiteral("ID_ZRP"), &T::ID_ZRP},
        },
    };
    return d;
}
