#include "TMiejscaObj.h"

const TableDescription<TMiejscaObj> &TMiejscaObj::description()
{
    using T = TMiejscaObj;
    static const TableDescription<T> d{
        {QStringLiteral("MIEJSCA"), QStringLiteral("ID_MIEJSCA"), ErrorLogFile::Haulix, InsertWording::WithDo},
        &T::ID_MIEJSCA,
        {
            {QStringLiteral("MIASTO"), &T::MIASTO},
            {QStringLiteral("KOD"), &T::KOD},
            {QStringLiteral("ADRES"), &T::ADRES},
            {QStringLiteral("ID_KRAJU"), &T::ID_KRAJU},
            {QStringLiteral("UWAGI"), &T::UWAGI},
            {QStringLiteral("NAZWA"), &T::NAZWA},
        },
    };
    return d;
}
