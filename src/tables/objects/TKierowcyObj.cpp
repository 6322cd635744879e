#include "TKierowcyObj.h"

const TableDescription<TKierowcyObj> &TKierowcyObj::description()
{
    using T = TKierowcyObj;
    static const TableDescription<T> d{
        {QStringLiteral("KIEROWCY"), QStringLiteral("ID_KIEROWCA"), ErrorLogFile::Sql, InsertWording::WithDo},
        &T::ID_KIEROWCA,
        {
            {QStringLiteral("IMIE"), &T::IMIE},
            {QStringLiteral("IMIE2"), &T::IMIE2},
            {QStringLiteral("NAZWISKO"), &T::NAZWISKO},
            {QStringLiteral("ADRES"), &T::ADRES},
            {QStringLiteral("MIEJSCOWSC"), &T::MIEJSCOWSC},
            {QStringLiteral("KOD"), &T::KOD},
            {QStringLiteral("WOJEWODZTWO"), &T::WOJEWODZTWO},
            {QStringLiteral("GMINA"), &T::GMINA},
            {QStringLiteral("POWIAT"), &T::POWIAT},
            {QStringLiteral("POCZTA"), &T::POCZTA},
            {QStringLiteral("TEL_DOM"), &T::TEL_DOM},
            {QStringLiteral("TEL_KOM"), &T::TEL_KOM},
            {QStringLiteral("NIP"), &T::NIP},
            {QStringLiteral("PESEL"), &T::PESEL},
            {QStringLiteral("IM_OJCA"), &T::IM_OJCA},
            {QStringLiteral("IM_MATKI"), &T::IM_MATKI},
            {QStringLiteral("DATA_UR"), &T::DATA_UR},
            {QStringLiteral("M_URODZ"), &T::M_URODZ},
            {QStringLiteral("REGON"), &T::REGON},
            {QStringLiteral("NR_DZIALGOSP"), &T::NR_DZIALGOSP},
            {QStringLiteral("GRUPA_ZASZEREGOWANIA"), &T::GRUPA_ZASZEREGOWANIA},
            {QStringLiteral("NIEAKTYWNY"), &T::NIEAKTYWNY},
        },
    };
    return d;
}
