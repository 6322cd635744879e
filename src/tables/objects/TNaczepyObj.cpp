#include "TNaczepyObj.h"

const TableDescription<TNaczepyObj> &TNaczepyObj::description()
{
    using T = TNaczepyObj;
    static const TableDescription<T> d{
        {QStringLiteral("NACZEPY"), QStringLiteral("ID_NACZEPY"), ErrorLogFile::Haulix, InsertWording::WithDo},
        &T::ID_NACZEPY,
        {
            {QStringLiteral("ID_GATUNKU_NACZ"), &T::ID_GATUNKU_NACZ},
            {QStringLiteral("NR_REJ"), &T::NR_REJ},
            {QStringLiteral("DOWOD_REJ"), &T::DOWOD_REJ},
            {QStringLiteral("ROK_PROD"), &T::ROK_PROD},
            {QStringLiteral("NR_EWID"), &T::NR_EWID},
            {QStringLiteral("ID_MARKA"), &T::ID_MARKA},
            {QStringLiteral("TYP"), &T::TYP},
            {QStringLiteral("ID_RODZAJ"), &T::ID_RODZAJ},
            {QStringLiteral("PRZEZNACZENIE"), &T::PRZEZNACZENIE},
            {QStringLiteral("NR_PODWOZIA"), &T::NR_PODWOZIA},
            {QStringLiteral("MASA"), &T::MASA},
            {QStringLiteral("DLUGOSC"), &T::DLUGOSC},
            {QStringLiteral("SZEROKOSC"), &T::SZEROKOSC},
            {QStringLiteral("WYSOKOSC"), &T::WYSOKOSC},
            {QStringLiteral("LADOWNOSC"), &T::LADOWNOSC},
            {QStringLiteral("IL_OSI"), &T::IL_OSI},
            {QStringLiteral("OPONY"), &T::OPONY},
            {QStringLiteral("AGREGAT"), &T::AGREGAT},
            {QStringLiteral("AGREGAT_ZBIORN"), &T::AGREGAT_ZBIORN},
            {QStringLiteral("KOMORA1"), &T::KOMORA1},
            {QStringLiteral("KOMORA2"), &T::KOMORA2},
            {QStringLiteral("KOMORA3"), &T::KOMORA3},
            {QStringLiteral("KOMORA4"), &T::KOMORA4},
            {QStringLiteral("KOMORA5"), &T::KOMORA5},
            {QStringLiteral("KOMORA6"), &T::KOMORA6},
            {QStringLiteral("KOMORA7"), &T::KOMORA7},
            {QStringLiteral("OPIS_ZACZEPOW"), &T::OPIS_ZACZEPOW},
            {QStringLiteral("DEF_KONTENER"), &T::DEF_KONTENER},
            {QStringLiteral("DEF_KONTENER1"), &T::DEF_KONTENER1},
            {QStringLiteral("OPIS"), &T::OPIS},
            {QStringLiteral("OGRZEWANIE"), &T::OGRZEWANIE},
        },
    };
    return d;
}
