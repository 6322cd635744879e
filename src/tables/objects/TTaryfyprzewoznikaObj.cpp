#include "TTaryfyprzewoznikaObj.h"

const TableDescription<TTaryfyprzewoznikaObj> &TTaryfyprzewoznikaObj::description()
{
    using T = TTaryfyprzewoznikaObj;
    static const TableDescription<T> d{
        {QStringLiteral("TARYFYPRZEWOZNIKA"), QStringLiteral("ID_TARYFYPRZEWOZNIKA"), ErrorLogFile::Sql, InsertWording::WithDo},
        &T::ID_TARYFYPRZEWOZNIKA,
        {
            {QStringLiteral("KWOTA_ZA_KM"), &T::KWOTA_ZA_KM},
            {QStringLiteral("KWOTA_ZA_KM_LAD"), &T::KWOTA_ZA_KM_LAD},
            {QStringLiteral("KWOTA_ZA_GODZ"), &T::KWOTA_ZA_GODZ},
            {QStringLiteral("KWOTA_ZA_PALETE"), &T::KWOTA_ZA_PALETE},
            {QStringLiteral("NAZWA_STAWKI"), &T::NAZWA_STAWKI},
            {QStringLiteral("NUMER_STAWKI"), &T::NUMER_STAWKI},
            {QStringLiteral("TARYFAWLASNA"), &T::TARYFAWLASNA},
            {QStringLiteral("MAGAZYNOWANIE"), &T::MAGAZYNOWANIE},
            {QStringLiteral("INNE"), &T::INNE},
        },
    };
    return d;
}
